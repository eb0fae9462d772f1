"""Starting with and without options, a second copy, closing."""
import shutil
import time

import pytest

from conftest import OWN_KEY, TITLE
from machine import wait_for
from player import Player
from test_messages import NO_ZONES


def hidden_window(quirn):
    return wait_for(lambda: [w for w in quirn.desk.user.ask("windows", "all")["windows"]
                             if w["pid"] == quirn.pid and TITLE in w["caption"]], what="the hidden main window")[0]


def test_quiet_shows_no_window(desk):
    quirn = desk.start("/Q")
    hidden_window(quirn)
    end = time.monotonic() + 1.5
    while time.monotonic() < end:
        assert quirn.windows() == []
        time.sleep(0.05)
    assert quirn.process.poll() is None


def test_a_second_copy_brings_the_first_forward_and_ends(desk):
    first = desk.start()
    window = first.main_window()["handle"]
    desk.user.ask("minimise", window)
    wait_for(lambda: desk.user.ask("wait", "", TITLE, first.pid, 500)["minimised"], what="the small window")
    second = desk.start("/LR:DUEL.QRN")
    assert second.ended() == 0
    wait_for(lambda: not desk.user.ask("wait", "", TITLE, first.pid, 500)["minimised"], what="the restored window")
    wait_for(lambda: desk.user.ask("foreground")["handle"] == window, what="the window in front")
    assert desk.user.processes("QUIRN.exe") == [first.pid]
    assert not desk.file("started.txt").exists(), "the second copy has handled its command line"


@pytest.mark.parametrize("arguments", [(), ("/Q",)])
def test_a_window_that_is_still_being_loaded_cannot_be_used(desk, arguments):
    zones = desk.file("favorite.lst").read_bytes()
    desk.file("favorite.lst").unlink()
    before = desk.registry()
    first = desk.start(*arguments)
    main = Player(first, hidden_window(first)["handle"])

    def a_second_copy_shows(waiting):
        assert desk.start().ended() == 0
        wait_for(lambda: desk.user.ask("foreground")["handle"] == waiting, what="what waits, in front")
        desk.screenshot("still being loaded")
        assert not main.visible()

    box = first.box()
    assert box.text == NO_ZONES
    a_second_copy_shows(box.handle)
    box.press()
    options = Player(first, first.window("Options")["handle"])
    a_second_copy_shows(options.handle)
    desk.file("favorite.lst").write_bytes(zones)
    options.keys("Escape")
    options.gone()

    if arguments:
        wait_for(main.tray_icons, what="the icon")
        assert desk.start().ended() == 0
    wait_for(main.visible, what="the window")
    main.front()
    wait_for(main.focus, what="the focus")
    assert main.text(main.beside("Pilot Name :")) == before[r"Dialog\PlayerName"][1]
    main.click(main.find("Transfer Profile And Run Subspace"))
    desk.game_report()
    assert desk.registry() == before


def test_of_two_copies_started_at_one_moment_one_survives(desk):
    for _ in range(3):
        copies = [desk.machine.start(r"C:\QUIRN\QUIRN.exe") for _ in range(2)]

        def settled():
            # The one that came late finds the other's window and ends, or says that it is running.
            for window in desk.user.ask("windows")["windows"]:
                if window["class"] == "#32770" and window["caption"] == "QUIRN":
                    message = desk.user.ask("message", window["handle"])
                    if message and message["text"]:
                        assert message["text"] == "QUIRN is already running."
                        desk.user.ask("press", window["handle"], "OK")
            return any(copy.poll() is not None for copy in copies)

        wait_for(settled, what="the end of one copy")
        time.sleep(0.7)
        assert sorted(copy.poll() is None for copy in copies) == [False, True]
        assert desk.user.ask("wait", "", TITLE, 0, 5000)
        for pid in desk.user.processes("QUIRN.exe"):
            desk.user.ask("end", pid)
        for copy in copies:
            copy.wait(10)


def test_a_game_that_the_start_menu_names_is_offered_on_the_first_day(desk):
    machine = desk.machine
    game = machine.path("C:\\Games\\Far Away")
    programs = next(machine.drive.glob("users/*/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"))
    link = programs / "Games/Play.lnk"
    try:
        shutil.move(desk.file(""), game)
        link.parent.mkdir()
        in_windows = "C:\\" + str(link.relative_to(machine.drive)).replace("/", "\\")
        script = machine.path("C:\\link.vbs")
        script.write_text(f'''Set link = CreateObject("WScript.Shell").CreateShortcut("{in_windows}")
link.TargetPath = "C:\\Games\\Far Away\\subspace.exe"
link.Save
''', newline="\r\n")
        machine.start("wscript", "C:\\link.vbs").wait(30)
        assert link.exists()
        machine.reg("delete", OWN_KEY, "/f")
        quirn = desk.start()
        assert quirn.box().text == NO_ZONES
        Player(quirn, quirn.box().handle).keys("Return")
        options = Player(quirn, quirn.window("Options")["handle"])
        options.find("Found a game in C:\\Games\\Far Away")
        desk.screenshot("found")
        options.user.ask("press", options.handle, "Use It")
        options.keys("Return")  # OK has the keyboard
        main = Player(quirn, quirn.main_window()["handle"])
        wait_for(main.visible, what="the window")
        quirn.close()
        assert desk.own_settings()["File Locations\\SubSpace"][1] == "C:\\Games\\Far Away"
    finally:
        desk.end_all()
        shutil.rmtree(game.parent, ignore_errors=True)
        shutil.rmtree(link.parent, ignore_errors=True)
