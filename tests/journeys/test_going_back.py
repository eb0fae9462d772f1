"""The way back: what a transfer overwrote, what the game has changed, and a transfer that was cut off."""
import pytest

from conftest import GAME_KEY, Profile
from machine import wait_for
from player import RECENT, start
from test_messages import PROFILES

OTHER_VALUES = """REGEDIT4

[HKEY_CURRENT_USER\\Software\\Virgin\\SubSpace\\Messages]
"ShiftF1"="say \\"hi\\" at C:\\\\games, Ødegård"
"ShiftF2"=""
"ShiftF3"=-
"ShiftF4"=hex(7):61,00,00
"ShiftF5"="one
two"
"Foreign"="stays"

[HKEY_CURRENT_USER\\Software\\Virgin\\SubSpace\\Options]
"MusicVolume"=hex:01,02,03
"TargetBounty"=dword:fffffffe
"""


def transfers(desk):
    return next(desk.machine.drive.glob("users/*/AppData/Local")) / "QUIRN/Transfers"


def notice(player, text):
    """The line beside the Run button that begins so."""
    return wait_for(lambda: [c for c in player.controls() if c["caption"].startswith(text)], what=f"'{text}'")[0]


@pytest.fixture
def strange_game(desk):
    """Values that a profile would never write."""
    desk.machine.import_registry(OTHER_VALUES)
    return desk


def test_a_wrong_profile_is_undone_by_the_keyboard(strange_game):
    desk = strange_game
    before, files = desk.registry(), desk.folder_state()
    assert before[r"Messages\ShiftF4"][0] == "hex(7)" and r"Messages\ShiftF3" not in before
    player = start(desk)
    player.open(PROFILES + "LEAGUE.QRN")
    player.keys("ctrl+t")
    player.expect_status("Profile has been transferred")
    assert desk.registry()[r"Dialog\PlayerName"][1] == "Ødegård" and desk.folder_state() != files
    player.keys("ctrl+shift+z")
    question = player.dialog("Undo Last Transfer")
    desk.screenshot("undo")
    assert any("'LEAGUE.QRN'" in c["caption"] for c in question.controls())
    question.keys("Return")
    player.expect_status("Settings have been put back")
    assert desk.registry() == before and desk.folder_state() == files

    # Without the program: the text of the registry editor, into keys that are empty.
    entry = sorted(transfers(desk).glob("20*"))[0]
    foreign = before.pop(r"Messages\Foreign")
    assert foreign and desk.machine.reg("delete", GAME_KEY, "/f").returncode == 0
    assert desk.machine.reg("import", "C:\\" + str((entry / "before.reg").relative_to(desk.machine.drive))
                            .replace("/", "\\")).returncode == 0
    assert desk.registry() == before


def test_what_the_game_changes_is_kept_by_a_press(desk):
    desk.file("changes.txt").touch()  # the stand-in changes three settings as it ends
    player = start(desk)
    player.open(PROFILES + "DUEL.QRN")
    player.click(player.find("Transfer Profile And Run Subspace"))
    desk.game_report()
    desk.close_game()
    wait_for(lambda: not desk.user.processes("subspace.exe"), what="the game's end")
    changed = desk.registry()
    assert changed[r"Options\MusicVolume"][1] == "77"
    desk.start().ended()  # shows the window that is there
    player.front()
    notice(player, "The game changed 3 settings.")
    desk.screenshot("notice")
    player.click(notice(player, "Keep them..."))
    compare = player.dialog("Compare - DUEL.QRN")
    wait_for(lambda: [c for c in compare.controls() if c["caption"] == "3 ticked"], what="the ticks")
    desk.screenshot("compare")
    compare.keys("alt+p", "Escape")
    compare.gone()
    player.keys("ctrl+s")
    player.expect_status("File has been saved")
    saved = Profile(desk.file("Profiles/DUEL.QRN"))
    assert saved.sections["Options"]["MusicVolume"] == "77" and saved.sections["Dialog"]["PlayerShipType"] == "5"
    assert saved.sections["Messages"]["ShiftF2"] == 'Back at %coord after "one" lap'
    player.keys("ctrl+t")
    player.expect_status("Profile has been transferred")
    assert desk.registry() == changed


def test_a_transfer_that_was_cut_off_is_found_at_the_next_start(desk):
    before, files = desk.registry(), desk.folder_state()
    desk.hang_game()
    desk.start("/LR:LEAGUE.QRN")
    wait_for(lambda: desk.user.processes("subspace.exe"), what="the program")
    desk.end_all()
    entry = next(transfers(desk).glob("20*"))
    (entry / "unfinished.ini").touch()  # as if the power had gone before
    player = start(desk)
    notice(player, "A transfer was cut off.")
    player.click(notice(player, "Put back..."))
    player.dialog("Undo Last Transfer").keys("Return")
    player.expect_status("Settings have been put back")
    assert desk.registry() == before
    left = desk.folder_state()
    assert {name: left[name] for name in files if name != "subspace.exe"} == {
        name: files[name] for name in files if name != "subspace.exe"}
    wait_for(lambda: not [c for c in player.controls() if c["caption"].startswith("The last transfer")], what="the end")


def test_a_save_into_the_wrong_file_is_taken_back(desk):
    duel = desk.file("Profiles/DUEL.QRN")
    before = duel.read_bytes()
    player = start(desk)
    player.open(PROFILES + "LEAGUE.QRN")
    player.open(PROFILES + "DUEL.QRN")
    player.quirn.choose(RECENT + 1)  # LEAGUE: the title names it, and Save still writes DUEL
    wait_for(lambda: player.title().endswith("LEAGUE.QRN"), what="the title")
    notice(player, "Save writes DUEL.QRN")
    player.keys("ctrl+s")
    player.expect_status("File has been saved")
    assert duel.read_bytes() != before
    player.keys("alt+p", "e")
    versions = player.dialog("Earlier Versions")
    desk.screenshot("versions")
    versions.keys("Down", "alt+p")
    box = player.quirn.box()
    assert box.text.startswith("Make C:\\SubSpace\\Profiles\\DUEL.QRN what it was before")
    box.press()
    player.expect_status("File has been loaded")
    assert duel.read_bytes() == before and player.title().endswith("DUEL.QRN")
