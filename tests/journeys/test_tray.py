"""The tray icon: what the player does with the real one in the window manager's tray; how the window goes and comes."""
import time

import pytest

from catalogue import SZ
from conftest import OWN_KEY, WM_CLOSE
from machine import wait_for
from player import CLOSE, Player, start
from test_messages import NOT_FOUND, PROFILES
from test_startup import hidden_window

MENU = "#32768"
ICON = 100


@pytest.fixture
def favourites(desk):
    desk.machine.import_registry(f"""REGEDIT4

[{OWN_KEY}\\Favourites]
"Fav1Name"="Vex Calder - Tin Meridian"
"Fav1Path"="C:\\\\SubSpace\\\\Profiles\\\\DUEL.QRN"
"Fav2Name"="Gone"
"Fav2Path"="C:\\\\SubSpace\\\\Profiles\\\\GONE.QRN"
""")
    return desk


def hidden_player(desk, *arguments):
    quirn = desk.start(*arguments)
    return Player(quirn, hidden_window(quirn)["handle"])


def tray_menu(player, number):
    """Opens the menu by the right button on the icon, and clicks on its item, counted from 1 without the two lines."""
    player.point_at_tray_icon()
    player.xdo("click", 3)
    menu = wait_for(lambda: [w for w in player.quirn.windows() if w["class"] == MENU], what="the menu")[0]
    time.sleep(0.3)
    player.desk.screenshot("tray menu")
    left, top, _, bottom = menu["rect"]
    border, line = 3, 9
    item = (bottom - top - 2 * border - 2 * line) / 7
    player.point(left + 40, top + border + item * (number - 0.5) + line * ((number > 1) + (number > 6)))
    player.xdo("click", 1)
    wait_for(lambda: not [w for w in player.quirn.windows() if w["class"] == MENU], what="the menu's end")


OPEN_QUIRN, FAVOURITE_1, FAVOURITE_2, FAVOURITE_3, EXIT_ITEM = 1, 2, 3, 4, 7


def test_hidden_and_shown_again(desk):
    player = hidden_player(desk, "/Q")
    wait_for(player.tray_icons, what="the icon")
    assert player.quirn.windows() == []

    # Open QUIRN, then the three ways to hide it, then a double-click; the icon stays all the time.
    tray_menu(player, OPEN_QUIRN)
    wait_for(player.visible, what="the window")
    player.front()
    player.replace(player.beside("Pilot Name :"), "Unsaved")
    for hide in (lambda: desk.user.ask("post", player.handle, WM_CLOSE, 0, 0), lambda: player.quirn.choose(CLOSE),
                 lambda: player.keys("alt+f", "c")):
        hide()
        wait_for(lambda: not player.visible(), what="the hidden window")
        assert player.quirn.windows() == [], "hiding asks nothing"
        player.point_at_tray_icon()
        player.xdo("click", 1)
        time.sleep(0.7)
        assert not player.visible(), "one click does nothing"
        player.xdo("click", "--repeat", 2, "--delay", 60, 1)
        wait_for(player.visible, what="the window")
        wait_for(lambda: desk.user.ask("foreground")["handle"] == player.handle, what="the window in front")
    assert player.beside("Pilot Name :")["caption"] == "Unsaved"
    assert len(player.tray_icons()) == 1


def test_the_icon_comes_back_when_the_shell_starts_anew(desk):
    player = hidden_player(desk, "/Q")
    wait_for(player.tray_icons, what="the icon")
    assert desk.user.ask("take-icon", player.handle, ICON)
    wait_for(lambda: not player.tray_icons(), what="the icon's end")
    desk.user.ask("tell-all", "TaskbarCreated")
    wait_for(player.tray_icons, what="the icon again")
    tray_menu(player, OPEN_QUIRN)
    wait_for(player.visible, what="the window")


def test_a_favourite_plays_and_an_empty_one_opens_the_options(favourites):
    desk = favourites
    player = start(desk)
    tray_menu(player, FAVOURITE_2)
    player.quirn.expect(NOT_FOUND.format(PROFILES + "GONE.QRN"))
    assert player.visible()

    tray_menu(player, FAVOURITE_1)
    assert desk.game_report()["Dialog.PlayerName (1)"] == "Vex Calder"
    assert desk.registry()[r"Messages\ShiftF1"] == (SZ, "Well flown!")
    wait_for(lambda: not player.visible(), what="the hidden window")
    desk.close_game()
    time.sleep(1.5)
    assert player.quirn.process.poll() is None and not player.visible()

    tray_menu(player, FAVOURITE_3)
    dialog = player.dialog("Options")
    assert player.visible() and dialog.page() == 1
    rows = dialog.items(dialog.of_class("ListBox")[0])
    assert rows == ["Vex Calder - Tin Meridian", "Gone", *(f"<click to add Favourite {i}>" for i in (3, 4, 5))]
    dialog.keys("Escape")
    dialog.gone()
    tray_menu(player, EXIT_ITEM)
    assert player.quirn.ended() == 0
    wait_for(lambda: not player.tray_icons(), what="the icon's end")
    settings = desk.own_settings()
    assert settings[r"Favourites\Fav2Path"] == (SZ, PROFILES + "GONE.QRN"), "one that is gone stays"


def test_exit_ends_the_program_while_a_game_without_a_window_starts(favourites):
    desk = favourites
    (desk.file("Profiles") / "DUEL.QRN").write_bytes((desk.file("Profiles") / "LEAGUE.QRN").read_bytes())  # no run box
    desk.hang_game()
    player = start(desk)
    tray_menu(player, FAVOURITE_1)
    wait_for(lambda: desk.user.processes("subspace.exe"), what="the program")
    tray_menu(player, EXIT_ITEM)
    assert player.quirn.ended(5) == 0
    assert desk.start().main_window()


def test_a_second_copy_shows_a_window_that_never_was(desk):
    player = hidden_player(desk, "/Q")
    assert desk.start().ended() == 0
    wait_for(player.visible, what="the window")
    wait_for(lambda: player.of_class("msctls_statusbar32"), what="the controls")
    player.front()
    name = player.beside("Pilot Name :")
    assert player.focus()["handle"] == name["handle"]
    player.keys("End")
    player.type("x")
    assert player.text(name) == name["caption"] + "x"
