"""A dropped file, the run button, the options dialog; what is kept of the window."""
import time

from catalogue import SZ
from machine import wait_for
from player import SET_OPTIONS, Player, start
from test_messages import PROFILES

DUEL, LEAGUE, CHAT = (PROFILES + name + ".QRN" for name in ("DUEL", "LEAGUE", "CHAT"))


def edit(player, name):
    player.replace(player.beside("Pilot Name :"), name)


def question(player, text, button):
    player.quirn.expect("Save changes to " + text, caption="Save Changes?", button=button)


def test_a_window_that_waits_for_a_dialog_takes_no_dropped_file(desk):
    player = start(desk)
    before = player.title()
    player.quirn.choose(SET_OPTIONS)
    options = Player(player.quirn, player.quirn.window("Options")["handle"])
    desk.user.ask("drop", player.handle, LEAGUE)
    options.keys("Escape")
    options.gone()
    assert player.title() == before


def test_the_run_button_asks_and_may_be_stopped(desk):
    player = start(desk)
    before = desk.registry()
    edit(player, "Runner")
    run = player.find("Transfer Profile And Run Subspace")
    player.click(run)
    question(player, "<current SS settings>", "Cancel")
    assert desk.registry() == before and player.visible() and not desk.file("started.txt").exists()
    player.click(run)
    question(player, "<current SS settings>", "No")
    assert desk.game_report()["Dialog.PlayerName (1)"] == "Runner"
    wait_for(lambda: not player.visible(), what="the hidden window")
    assert player.quirn.process.poll() is None
    desk.close_game()


def test_options_dialog(desk):
    player = start(desk)

    def open_options(tab=0):
        player.quirn.choose(SET_OPTIONS)
        dialog = player.dialog("Options")
        dialog.front()
        for _ in range(tab):
            dialog.keys("ctrl+Tab")
        return dialog

    # Typed text is not taken, a folder from Browse is.
    desk.machine.path(r"C:\Other").mkdir(exist_ok=True)
    desk.machine.path(r"C:\Other\any.txt").write_bytes(b"")
    dialog = open_options()
    game, profiles = dialog.of_class("Edit")
    dialog.replace(game, r"C:\Typed")
    browse = [c for c in dialog.of_class("Button") if c["caption"] == "Browse..."]
    dialog.click(browse[1])
    assert dialog.in_file_dialog("Default QRN File Location", r"C:\Other\any.txt") == "AnyFile"
    assert dialog.text(profiles) == r"C:\Other"
    dialog.click(dialog.find("OK"))
    dialog.gone()
    dialog = open_options()
    assert [c["caption"] for c in dialog.of_class("Edit")] == [r"C:\SubSpace", r"C:\Other"]
    dialog.click(next(c for c in dialog.of_class("Button") if c["caption"] == "Browse..."))
    assert dialog.in_file_dialog("Locate Subspace.EXE", r"C:\SubSpace\subspace.exe") == "subspace.exe"
    dialog.keys("Escape")
    dialog.gone()

    # Favourites: the lowest gap is filled first, five are all, and only Apply and OK count.
    dialog = open_options(1)
    rows = dialog.of_class("ListBox")[0]
    empty = [f"<click to add Favourite {i}>" for i in range(1, 6)]
    assert dialog.items(rows) == empty
    desk.file("Profiles/NOBODY.QRN").write_bytes(b"[Other]\r\n")
    for path in (DUEL, LEAGUE, CHAT, DUEL, PROFILES + "NOBODY.QRN"):
        dialog.click(dialog.find("Add"))
        dialog.in_file_dialog("Add Favourite QRN File", path)
    names = dialog.items(rows)
    assert names[0] == "Vex Calder - Tin Meridian" and names[4] == "<invalid> - <invalid>"
    dialog.click(dialog.find("Remove"))  # nothing is selected, nothing happens
    assert dialog.items(rows) == names
    # A name in "<" counts as an empty row, so there is room still.
    dialog.click(dialog.find("Add"))
    dialog.in_file_dialog("Add Favourite QRN File", LEAGUE)
    dialog.click(dialog.find("Add"))
    player.quirn.expect("No room to add more. Remove one first.")
    l, t, _, _ = rows["rect"]
    dialog.point(l + 30, t + 21)
    dialog.xdo("click", 1)
    time.sleep(0.1)
    dialog.click(dialog.find("Remove"))
    assert dialog.items(rows)[1] == empty[1] and dialog.items(rows)[2] != empty[2]
    dialog.click(dialog.find("Apply"))
    dialog.click(dialog.find("Clear All"))
    assert dialog.items(rows) == empty
    dialog.click(dialog.find("Cancel"))
    dialog.gone()
    player.quirn.close()
    settings = desk.own_settings()
    assert settings[r"Favourites\Fav1Path"] == (SZ, DUEL) and settings[r"Favourites\Fav2Name"] == (SZ, empty[1])
    assert settings[r"Favourites\Fav2Path"] == (SZ, "") and settings[r"Favourites\Fav3Path"] == (SZ, CHAT)
    assert settings[r"File Locations\QRN Files"] == (SZ, r"C:\Other")
    assert settings[r"File Locations\SubSpace"] == (SZ, r"C:\SubSpace")


def test_the_window_opens_where_it_was(desk):
    player = start(desk)
    desk.user.ask("place", player.handle, 200, 150)
    player.quirn.close()
    # Twips at 96 dpi; the window manager may move a window by its frame.
    settings = desk.own_settings()
    assert abs(int(settings[r"Settings\MainLeft"][1]) - 200 * 15) <= 60
    again = start(desk)
    wait_for(lambda: abs(again.window()["rect"][0] - 200) <= 4, what="the place")
