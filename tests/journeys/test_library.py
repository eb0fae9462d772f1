"""The profile library by its keys, and what it leaves behind."""
import shutil
import time

from machine import wait_for
from player import start

LIBRARY = "Profile Library - "


def rows(library):
    """How many profiles it shows, as it says itself."""
    count = [c["caption"] for c in library.controls() if c["caption"].split(" ")[-1].startswith("profile")]
    return int(count[0].split()[0]) if count and "reading" not in count[0] else None


def test_profiles_are_found_opened_renamed_linked_and_deleted(desk):
    profiles = desk.file("Profiles")
    shutil.copy(profiles / "DUEL.QRN", profiles / "nova")
    shutil.copy(desk.file("monday.log"), profiles)
    desktop = next(desk.machine.drive.glob("users/*/Desktop"))
    if desktop.is_symlink():  # to the home of the real user
        desktop.unlink()
        desktop.mkdir()
    player = start(desk)
    player.keys("ctrl+l")
    library = player.dialog(LIBRARY)
    library.front()
    wait_for(lambda: rows(library) == 4, what="four profiles")
    desk.screenshot("library")
    library.keys("d", "Return")
    player.expect_status("File has been loaded")
    assert player.title().endswith("DUEL.QRN")

    library.keys("ctrl+2", "F2")
    rename = player.dialog("Rename")
    rename.keys("ctrl+a")
    rename.type("best")
    rename.keys("Return")
    rename.gone()
    wait_for((profiles / "best.QRN").exists, what="the new name")
    assert not (profiles / "DUEL.QRN").exists() and player.title().endswith("best.QRN")

    wait_for(lambda: rows(library) == 4, what="four profiles")
    library.keys("n", "Delete")
    box = player.quirn.box()
    assert box.text == "Move nova to the recycle bin?"
    box.press()
    wait_for(lambda: not (profiles / "nova").exists(), what="the file's end")

    library.keys("l")
    library.click(library.find("More", "Button"))
    library.xdo("key", "s")
    player.expect_status("A shortcut has been put on the desktop")
    link = (desktop / "LEAGUE.lnk").read_bytes()
    assert "/LR:LEAGUE.QRN".encode("utf-16-le") in link or b"/LR:LEAGUE.QRN" in link

    assert "PlayerPassword=\n" not in (profiles / "LEAGUE.QRN").read_text("cp1252")
    library.click(library.find("More", "Button"))
    library.xdo("key", "w")
    player.dialog("Copy Without Password").keys("Return")
    player.in_file_dialog("Copy Without Password", r"C:\SubSpace\Profiles\for-a-friend")
    copy = profiles / "for-a-friend.qrn"
    wait_for(copy.exists, what="the copy")
    text = copy.read_text("cp1252")
    assert "PlayerPassword=\n" in text and "PlayerName=Ødegård" in text and "Ignore1=\n" in text
    assert player.title().endswith("best.QRN")

    library.keys("ctrl+Return")
    assert desk.game_report()["Dialog.PlayerName (1)"] == "Ødegård"
    library.gone()


def test_a_thousand_profiles_are_there_at_once(desk):
    profiles = desk.file("Profiles")
    for number in range(1000):
        shutil.copy(profiles / "DUEL.QRN", profiles / f"many{number}.qrn")
    player = start(desk)
    began = time.monotonic()
    player.quirn.choose(48)
    library = player.dialog(LIBRARY)
    wait_for(lambda: rows(library) == 1003, what="all profiles")
    print(f"{time.monotonic() - began:.2f} s until a thousand profiles are listed, with the looking")
