"""What saving a profile leaves on the disk, read by an INI reader that is not ours."""
import os
import re
import subprocess

import pytest

from catalogue import GROUPS, MESSAGES
from conftest import EXE, Profile
from machine import wait_for

DUEL = r"C:\SubSpace\Profiles\DUEL.QRN"
TARGET = r"C:\SubSpace\Profiles\my.best.qrn"
GAME = r"C:\SubSpace"
UNFINISHED = ".quirn-unfinished"


def save(desk, source=DUEL, target=TARGET, game=GAME):
    """Saves with the program's own code; the number of the run-time error, 0 for none."""
    process = desk.machine.start(EXE.parent / "tests/save.exe", source, target, game, stdout=subprocess.PIPE)
    printed = process.communicate(timeout=60)[0]
    assert process.returncode == 0
    return int(printed)


def test_another_reader_finds_every_key_and_the_macro_file_every_byte(desk):
    for name in ("DUEL", "CHAT"):
        source = Profile(desk.file(f"Profiles/{name}.QRN"))
        assert save(desk, rf"C:\SubSpace\Profiles\{name}.QRN") == 0
        saved = Profile(desk.machine.path(TARGET))
        assert saved.settings() == source.settings()
        assert saved.ignored() == source.ignored()
        for key in ("WaveFileF11", "WaveFileF12"):
            assert saved.sections["Dialog"][key] == source.sections["Dialog"][key]
        assert saved.sections["QUIRN"]["Version"] == "1.61"
        assert re.fullmatch(r"\d+/\d+/\d+ \d+:\d\d( [AP]M)?", saved.sections["QUIRN"]["Modified"])
        assert [list(saved.sections[group]) for group in ("Messages", "Options", "Advanced", "HiddenOptions")] == [
            GROUPS[group] for group in ("Messages", "Options", "Advanced", "HiddenOptions")]
        assert list(saved.sections) == ["QUIRN", "Dialog", "Messages", "Options", "Advanced", "IgnoreList",
                                        "HiddenOptions"]
        # The name ends at its first point. The chat channel is no macro.
        macros = "".join(source.sections["Messages"][key] + "\r\n" for key in MESSAGES[:16])
        assert desk.file("my.ssm").read_bytes() == macros.encode("cp1252")


def test_two_ignored_players_over_five_and_foreign_keys_survive(desk):
    target = desk.machine.path(TARGET)
    target.write_bytes(b"; mine\r\n[IgnoreList]\r\nIgnore1=a\r\nIgnore2=b\r\nIgnore3=c\r\nIgnore4=d\r\nIgnore5=e\r\n"
                       b"[Notes]\r\nwho=me\r\n")
    source = desk.file("Profiles/DUEL.QRN")
    text = source.read_bytes().decode("cp1252")
    source.write_bytes(re.sub(r"(?s)\[IgnoreList\].*?(?=\[)", "[IgnoreList]\r\nIgnore1=Zed\r\nIgnore2=Yma\r\n",
                              text).encode("cp1252"))
    assert save(desk) == 0
    saved = Profile(target)
    assert saved.ignored() == ["Zed", "Yma"]
    assert saved.sections["IgnoreList"] == {"Ignore1": "Zed", "Ignore2": "Yma", "Ignore3": "", "Ignore4": "d",
                                            "Ignore5": "e"}
    assert saved.sections["Notes"] == {"who": "me"}
    assert b"; mine" in target.read_bytes()


def test_what_cannot_be_written_is_said_and_the_old_file_is_whole(desk):
    target = desk.machine.path(TARGET)
    old = b"[Dialog]\r\nPlayerName=Old\r\n"
    target.write_bytes(old)
    unfinished = target.with_name(target.name + UNFINISHED)

    target.chmod(0o444)
    assert save(desk) == 75
    target.chmod(0o644)
    assert desk.user.ask("hold", TARGET)
    assert save(desk) == 70
    desk.user.ask("release")
    assert save(desk, target=r"C:\Nowhere\x.qrn") == 76
    assert target.read_bytes() == old and not unfinished.exists()

    # Without a game folder for the macro file everything before it is saved, and HiddenOptions is not.
    for game in (r"C:\Nowhere", "<not set>"):
        target.write_bytes(old)
        assert save(desk, game=game) == 76
        saved = Profile(target).sections
        assert saved["Dialog"]["PlayerName"] != "Old" and "IgnoreList" in saved and "HiddenOptions" not in saved


def test_a_save_that_is_killed_leaves_a_whole_file(desk):
    assert save(desk) == 0
    whole = Profile(desk.machine.path(TARGET)).settings()
    for _ in range(5):
        process = desk.machine.start(EXE.parent / "tests/save.exe", DUEL, TARGET, GAME, "again", stdout=subprocess.PIPE)
        for _ in range(3):
            assert process.stdout.readline().strip() == b"0"
        for pid in wait_for(lambda: desk.user.processes("save.exe"), what="the saving process"):
            assert desk.user.ask("end", pid)
        process.communicate(timeout=20)
        assert Profile(desk.machine.path(TARGET)).settings() == whole
    # What the kill left beside it is no hindrance.
    assert save(desk) == 0


def test_a_full_disk_leaves_the_old_file_whole(desk):
    folder = desk.file("Full")
    folder.mkdir()
    mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=16k", "tmpfs", str(folder)], check=False,
                             capture_output=True).returncode == 0
    if not mounted or "QUIRN_WINE32" in os.environ and EXE.parent.name == "win32":
        if mounted:
            subprocess.run(["umount", str(folder)], check=True)
        pytest.skip("a small disk cannot be mounted where the program would see it")
    try:
        old = b"[Dialog]\r\nPlayerName=Old\r\n[Notes]\r\n" + b"a=1\r\n" * 100
        (folder / "x.qrn").write_bytes(old)
        (folder / "ballast").write_bytes(b"." * 4096 * 2)
        assert save(desk, target=r"C:\SubSpace\Full\x.qrn") == 61
        assert (folder / "x.qrn").read_bytes() == old
        assert sorted(f.name for f in folder.iterdir()) == ["ballast", "x.qrn"]
    finally:
        subprocess.run(["umount", str(folder)], check=True)
