"""A dropped file, the run button; what is kept of the window."""
from machine import wait_for
from player import SET_OPTIONS, Player, start
from test_messages import PROFILES



def edit(player, name):
    player.replace(player.beside("Pilot Name :"), name)


def question(player, text, button):
    player.quirn.expect("Save changes to " + text, caption="Save Changes?", button=button)


def test_a_window_that_waits_for_a_dialog_takes_no_dropped_file(desk):
    player = start(desk)
    before = player.title()
    player.quirn.choose(SET_OPTIONS)
    options = Player(player.quirn, player.quirn.window("Options")["handle"])
    desk.user.ask("drop", player.handle, PROFILES + "LEAGUE.QRN")
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


def test_the_window_opens_where_it_was(desk):
    player = start(desk)
    desk.user.ask("place", player.handle, 200, 150)
    player.quirn.close()
    # Twips at 96 dpi; the window manager may move a window by its frame.
    settings = desk.own_settings()
    assert abs(int(settings[r"Settings\MainLeft"][1]) - 200 * 15) <= 60
    again = start(desk)
    wait_for(lambda: abs(again.window()["rect"][0] - 200) <= 4, what="the place")
