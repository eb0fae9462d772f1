"""A profile goes from a QRN file into the game, and the game is started."""
import time

import pytest

from catalogue import DWORD, SZ, type_of
from conftest import Profile
from machine import wait_for


def expected_registry(profile):
    values = {f"{group}\\{name}": (type_of(group, name), value)
              for (group, name), value in profile.settings().items()}
    assert len(values) == 122
    return values


def settings_only(registry):
    return {name: value for name, value in registry.items() if value[0] != "key"}


@pytest.mark.parametrize("name, argument", [("DUEL", "/lr:duel.qrn"), ("LEAGUE", r"/LR:profiles\league.qrn")])
def test_every_setting_of_a_profile_reaches_the_game(desk, name, argument):
    profile = Profile(desk.file(f"Profiles/{name}.QRN"))
    assert desk.registry() and settings_only(desk.registry()) != expected_registry(profile)

    quirn = desk.start(argument, folder=desk.file(""))
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

    # The registry, as two programs see it that are not ours.
    assert settings_only(desk.registry()) == expected_registry(profile)
    numbers = {SZ: 1, DWORD: 4}
    for (group, setting), value in profile.settings().items():
        assert report[f"{group}.{setting} ({numbers[type_of(group, setting)]})"] == value
    assert report["Folder"].lower() == r"c:\subspace"
    assert "/LR" not in report["CommandLine"]

    # The files beside the game.
    assert desk.file("ignore.txt").read_bytes() == "".join(f"{n}\r\n" for n in profile.ignored()).encode("cp1252")
    for key, target in (("WaveFileF11", "record0.wav"), ("WaveFileF12", "record1.wav")):
        assert desk.file(target).read_bytes() == desk.machine.path(profile.sections["Dialog"][key]).read_bytes()


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
