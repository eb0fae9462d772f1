"""A profile goes from a QRN file into the game, and the game is started."""
import time

import pytest

from catalogue import DWORD, GROUPS, SZ, type_of
from conftest import GAME_KEY, Profile
from machine import wait_for


def expected_registry(profile):
    values = {(group, name): (type_of(group, name), value) for (group, name), value in profile.settings().items()}
    assert len(values) == 122
    return {f"{group}\\{name}": value for (group, name), value in values.items()}


def settings_only(registry):
    return {name: value for name, value in registry.items() if value[0] != "key"}


def queried(desk):
    """What `reg query` prints, as {(group, name): (type, value)}; its text comes in the console's code page."""
    rows, group = {}, ""
    for line in desk.machine.reg("query", GAME_KEY, "/s").stdout.decode("cp437").splitlines():
        if line.startswith("HKEY"):
            group = line.rsplit("\\", 1)[1]
        elif line.strip():
            name, kind, value = (line[4:].split("    ", 2) + [""])[:3]
            rows[group, name] = (kind, value)
    return rows


@pytest.mark.parametrize("name", ["DUEL", "LEAGUE", "CHAT"])
def test_every_setting_of_a_profile_reaches_the_game(desk, name):
    profile = Profile(desk.file(f"Profiles/{name}.QRN"))
    assert desk.registry() and settings_only(desk.registry()) != expected_registry(profile)

    quirn = desk.start(f"/LR:{name}.QRN")
    shows_run_box = profile.sections["Advanced"]["SkipSplash"] == "0"
    if shows_run_box:
        box = quirn.window(seconds=5)
        desk.screenshot("run box")
        labels = [c["caption"] for c in desk.user.ask("controls", box["handle"])["controls"] if c["visible"]]
        for text in ("The Vellick", "SUBSPACE", "Manager", "Thanks for using..."):
            assert text in labels
    report = desk.game_report()
    game_window = desk.user.ask("wait", "SubSpaceClass", "", 0, 10000)
    seen = time.monotonic()
    assert game_window
    if not shows_run_box:
        assert [w for w in quirn.windows()] == []
    assert quirn.ended(5) == 0
    assert 0.7 < time.monotonic() - seen < 2.5

    # The registry, as two programs see it that are not ours: reg and the stand-in game.
    assert settings_only(desk.registry()) == expected_registry(profile)
    rows = queried(desk)
    for (group, setting), value in profile.settings().items():
        kind = type_of(group, setting)
        shown = value if kind == SZ else hex(int(value) & 0xFFFFFFFF)
        assert rows[group, setting][0] == kind
        if shown.isascii():
            assert rows[group, setting][1].rstrip() == shown.rstrip()
    numbers = {SZ: 1, DWORD: 4}
    for (group, setting), value in profile.settings().items():
        assert report[f"{group}.{setting} ({numbers[type_of(group, setting)]})"] == value
    assert report["Folder"].lower() == r"c:\subspace"
    assert "/LR" not in report["CommandLine"]

    # The files beside the game.
    assert desk.file("ignore.txt").read_bytes() == "".join(f"{n}\r\n" for n in profile.ignored()).encode("cp1252")
    for key, target in (("WaveFileF11", "record0.wav"), ("WaveFileF12", "record1.wav")):
        assert desk.file(target).read_bytes() == desk.machine.path(profile.sections["Dialog"][key]).read_bytes()


def test_numbers_that_are_none_and_keys_that_are_missing(desk):
    desk.file("Profiles/ODD.QRN").write_bytes(
        b"[QUIRN]\r\nVersion=1.61\r\n[Dialog]\r\nPlayerName=\xdcnwin\r\nPlayerShipType=-3\r\n"
        b"[Options]\r\nMusicVolume=loud\r\nJoystick=12.9\r\n[Advanced]\r\nGammaPercent=none\r\nSkipSplash=1\r\n")
    waves = [desk.file(f"record{k}.wav").read_bytes() for k in (0, 1)]
    assert desk.start("/LR:ODD.QRN").ended(15) == 0
    registry = desk.registry()
    assert registry["Dialog\\PlayerName"] == (SZ, "Ünwin")
    assert registry["Dialog\\PlayerPassword"] == (SZ, "0")
    assert registry["Dialog\\PlayerShipType"] == (DWORD, "-3")
    assert registry["Messages\\ShiftF1"] == (SZ, "")
    assert registry["Options\\MusicVolume"] == (DWORD, "0")
    assert registry["Options\\Joystick"] == (DWORD, "12")
    assert registry["Advanced\\GammaPercent"] == (DWORD, "100")
    assert desk.file("ignore.txt").read_bytes() == b""
    # Without a wave of its own the profile leaves the recordings alone.
    assert [desk.file(f"record{k}.wav").read_bytes() for k in (0, 1)] == waves


def test_values_of_other_types_stay_as_they_are(desk):
    desk.machine.import_registry(f"""REGEDIT4

[{GAME_KEY}\\Options]
"3dSound"=hex:01,02,ff
"Clock"=hex(7):61,62,00,63,00,00
"OfSomebodyElse"="keep"

[{GAME_KEY}\\Dialog]
"Extra"=hex:00

[{GAME_KEY}\\Other]
"Value"=dword:00000007
""")
    foreign = {k: v for k, v in desk.registry().items()
               if k in (r"Options\3dSound", r"Options\Clock", r"Options\OfSomebodyElse", r"Dialog\Extra",
                        r"Other\Value")}
    assert len(foreign) == 5 and foreign[r"Options\3dSound"][0] == "hex"
    assert desk.start("/LR:LEAGUE.QRN").ended(15) == 0
    assert {k: v for k, v in desk.registry().items() if k in foreign} == foreign


def test_without_the_games_keys_nothing_is_created(desk):
    desk.machine.reg("delete", GAME_KEY, "/f")
    assert desk.start("/LR:LEAGUE.QRN").ended(15) == 0
    assert desk.registry() is None
    assert [k for k in desk.game_report() if "." in k] == []


def test_keys_that_are_partly_there_are_not_completed(desk):
    desk.machine.reg("delete", GAME_KEY + r"\Advanced", "/f")
    assert desk.start("/LR:LEAGUE.QRN").ended(15) == 0
    registry = desk.registry()
    assert not [k for k in registry if k.startswith("Advanced")]
    assert registry[r"HiddenOptions\FlickSystemMemory"] == (DWORD, "0")
    assert len([k for k in registry if k.split("\\")[0] in GROUPS and not k.endswith("\\")]) == 122 - 56


@pytest.mark.parametrize("argument", [r"C:\SubSpace\Profiles\LEAGUE.QRN", r"profiles\league.qrn", "/lr:league.qrn"])
def test_the_ways_to_name_a_profile(desk, argument):
    argument = argument if argument.startswith("/") else "/LR:" + argument
    quirn = desk.start(argument, folder=desk.file(""))
    assert quirn.ended(15) == 0
    assert desk.registry()[r"Dialog\PlayerName"] == (SZ, "Ødegård")


def test_waiting_for_the_game_costs_no_processor_and_can_be_ended(desk):
    desk.hang_game()  # the wait has no end but the player's
    quirn = desk.start("/LR:DUEL.QRN")
    wait_for(lambda: desk.user.processes("subspace.exe"), what="the program")
    box = quirn.window(seconds=5)
    time.sleep(0.5)
    spent, since = quirn.processor_seconds(), time.monotonic()
    time.sleep(3)
    assert (quirn.processor_seconds() - spent) / (time.monotonic() - since) < 0.02
    assert quirn.process.poll() is None
    desk.user.ask("post", box["handle"], 16, 0, 0)
    assert quirn.ended(5) == 0
