"""The profile as a document: title, question, recent files, import, and the dialogs that go with them."""
import time

import pytest

from catalogue import SZ
from conftest import OWN_KEY, TITLE, Profile
from machine import wait_for
from player import EXIT, IMPORT, NEW, OPEN, PRINT, RECENT, SAVE, SET_OPTIONS, Player, start
from test_messages import NO_ZONES, NOT_FOUND, NOT_VALID, PROFILES

DUEL, LEAGUE, CHAT = (PROFILES + name + ".QRN" for name in ("DUEL", "LEAGUE", "CHAT"))


def name_box(player):
    return player.beside("Pilot Name :")


def edit(player, name="Edited"):
    player.replace(name_box(player), name)


def question(player, text, button):
    player.quirn.expect("Save changes to " + text, "question", caption="Save Changes?", button=button)


def recent_menu(player, number):
    """Chooses a recent file by its digit in the open menu."""
    player.keys("alt+f")
    player.keys(str(number))


def test_new_only_asks_and_clears_when_there_is_something_to_save(desk):
    player = start(desk)
    old = name_box(player)["caption"]
    player.keys("ctrl+n")
    time.sleep(0.3)
    assert player.title() == TITLE + " - <current SS settings>" and player.text(name_box(player)) == old

    edit(player)
    player.keys("ctrl+n")
    question(player, "<current SS settings>", "Cancel")
    assert player.text(name_box(player)) == "Edited"
    player.keys("ctrl+n")
    question(player, "<current SS settings>", "No")
    wait_for(lambda: player.title() == TITLE + " - <untitled.qrn>", what="the new title")
    assert player.text(name_box(player)) == "" and player.beside("Shift-F11 :", "Static", 1)["caption"] == "<not set>"
    assert player.selected(player.beside("Zone to Start In :", "ComboBox")), "game settings stay"

    # Yes is always Save As, also for a profile that has a file; cancelled, all stays.
    player.open(DUEL)
    player.expect_status("File has been loaded")
    edit(player, "Second")
    player.quirn.choose(NEW)
    question(player, DUEL, "Yes")
    assert player.in_file_dialog("Save As", None) == "DUEL.QRN"
    assert player.text(name_box(player)) == "Second" and player.title() == TITLE + " - DUEL.QRN"
    player.quirn.choose(OPEN)
    question(player, DUEL, "Yes")
    player.in_file_dialog("Save As", PROFILES + "kept.qrn")
    player.in_file_dialog("Open", None)
    assert Profile(desk.file("Profiles/kept.qrn")).sections["Dialog"]["PlayerName"] == "Second"
    assert player.title() == TITLE + " - kept.qrn"


def test_open_and_save(desk):
    player = start(desk)
    # A file that is none: it becomes the current one, the title stays.
    desk.file("Profiles/NONE.QRN").write_bytes(b"[Letter]\r\nto=Bo\r\n")
    player.open(PROFILES + "NONE.QRN")
    player.quirn.expect(NOT_VALID.format(PROFILES + "NONE.QRN"), "critical")
    player.expect_status("ERROR loading file")
    assert player.title() == TITLE + " - <current SS settings>"
    player.quirn.choose(SAVE)
    player.expect_status("File has been saved")
    assert Profile(desk.file("Profiles/NONE.QRN")).sections["Dialog"]["PlayerName"] == name_box(player)["caption"]
    assert player.title() == TITLE + " - <current SS settings>"

    # Names with several points keep them all; nothing is added to a name without one.
    player.save_as(PROFILES + "my.best.qrn")
    player.expect_status("File has been saved")
    assert player.title() == TITLE + " - my.best.qrn"
    assert player.save_as(PROFILES + "plain") == "my.best.qrn"
    wait_for(desk.file("Profiles/plain").exists, what="the file")
    player.quirn.choose(EXIT)
    assert player.quirn.ended() == 0

    # What cannot be written is said, and the changes count as not saved.
    player = start(desk)
    player.open(LEAGUE)
    player.expect_status("File has been loaded")
    edit(player)
    desk.file("Profiles/LEAGUE.QRN").chmod(0o444)
    player.keys("ctrl+s")
    box = player.quirn.box()
    assert box.caption == "Error" and box.text.startswith("Error # 75 ")
    box.press()
    player.quirn.choose(EXIT)
    question(player, LEAGUE, "No")
    assert player.quirn.ended() == 0
    desk.file("Profiles/LEAGUE.QRN").chmod(0o644)


def test_recent_files(desk):
    paths = [PROFILES + f"R{i}.QRN" for i in range(6)]
    for path in paths:
        desk.machine.path(path).write_bytes(desk.file("Profiles/DUEL.QRN").read_bytes())
    player = start(desk)
    for path in (*paths, paths[3].lower()):  # a sixth drops the first; another spelling moves to the top
        player.open(path)
        player.expect_status("File has been loaded")
        name = path.rsplit("\\", 1)[1]
        wait_for(lambda: player.title() == f"{TITLE} - {name}", what="the title")
    order = [paths[3].lower(), paths[5], paths[4], paths[2], paths[1]]
    player.keys("alt+f")
    time.sleep(0.3)
    desk.screenshot("recent files in the menu")
    player.keys("Escape", "Escape")

    # Without a question, and a Save that follows goes to the file that was current before.
    edit(player, "Overwritten")
    recent_menu(player, 3)
    player.expect_status("File has been loaded")
    assert player.title() == TITLE + " - R4.QRN" and player.text(name_box(player)) == "Vex Calder"
    order.insert(0, order.pop(2))
    player.quirn.choose(SAVE)
    player.expect_status("File has been saved")

    # One that is gone says so and stays in the list.
    desk.machine.path(order[4]).unlink()
    player.quirn.choose(RECENT + 4)
    player.quirn.expect(NOT_FOUND.format(order[4]), "critical")
    player.expect_status("ERROR loading file")
    player.quirn.close()
    settings = desk.own_settings()
    assert [settings[rf"MRUList\MRU{i}"] for i in range(5)] == [(SZ, path) for path in order]


def test_import(desk):
    player = start(desk)
    player.turn_to("Macros R-Shift")
    player.replace(player.beside("R-Shift F8 -"), "typed")
    desk.file("three.ssm").write_bytes(b"one\r\n two \r\nthree")
    desk.file("none.ssm").write_bytes(b"")
    desk.file("many.txt").write_bytes(b"".join(b"line %d\r\n" % i for i in range(1, 21)))
    player.quirn.choose(IMPORT)
    player.in_file_dialog("Import Subspace Macro File", r"C:\SubSpace\three.ssm")
    player.expect_status("Macro file has been imported")
    assert player.page() == 4
    assert [player.beside(f"Shift F{i} -")["caption"] for i in (1, 2, 3)] == ["one", " two ", "three"]
    player.turn_to("Macros R-Shift")
    assert player.beside("R-Shift F8 -")["caption"] == "typed"
    player.click(player.find("Import SS Macro File"))
    player.in_file_dialog("Import Subspace Macro File", r"C:\SubSpace\many.txt")
    player.expect_status("Macro file has been imported")
    player.turn_to("Macros R-Shift")
    assert player.beside("R-Shift F8 -")["caption"] == "line 16"
    player.quirn.choose(IMPORT)
    player.in_file_dialog("Import Subspace Macro File", r"C:\SubSpace\none.ssm")
    player.expect_status("Macro file has been imported")
    assert player.beside("Shift F1 -")["caption"] == "line 1"
    # A file that is not there is a run-time error.
    player.quirn.choose(IMPORT)
    player.in_file_dialog("Import Subspace Macro File", r"C:\SubSpace\gone.ssm")
    box = player.quirn.box()
    assert box.caption == "Error" and box.text.startswith("Error # 53 ")
    box.press()


def test_print_and_a_dropped_file(desk):
    player = start(desk)
    player.quirn.choose(PRINT)
    player.quirn.expect("Function unavailable in this version.", "information")
    desk.user.ask("drop", player.handle, LEAGUE)
    player.expect_status("File has been loaded")
    assert player.title() == TITLE + " - LEAGUE.QRN"
    edit(player)
    desk.user.ask("drop", player.handle, DUEL)
    question(player, LEAGUE, "Cancel")
    assert player.title() == TITLE + " - LEAGUE.QRN" and player.text(name_box(player)) == "Edited"
    desk.user.ask("drop", player.handle, DUEL)
    question(player, LEAGUE, "No")
    wait_for(lambda: player.title() == TITLE + " - DUEL.QRN", what="the title")
    # A window that waits for a dialog takes nothing.
    player.quirn.choose(SET_OPTIONS)
    options = Player(player.quirn, player.quirn.window("Options")["handle"])
    desk.user.ask("drop", player.handle, LEAGUE)
    options.keys("Escape")
    options.gone()
    assert player.title() == TITLE + " - DUEL.QRN"


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
    player.quirn.expect("No room to add more. Remove one first.", "exclamation")
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


def test_a_missing_zone_list_leads_to_the_options(desk):
    desk.file("favorite.lst").rename(desk.file("hidden.lst"))
    quirn = desk.start()
    quirn.expect(NO_ZONES, "question", button="OK")
    dialog = Player(quirn, quirn.window("Options")["handle"])
    dialog.front()
    dialog.keys("Escape")
    dialog.gone()
    # Asked again while it is missing.
    desk.file("hidden.lst").rename(desk.file("favorite.lst"))
    box = quirn.box()
    desk.file("favorite.lst").rename(desk.file("hidden.lst"))
    box.press("OK")
    dialog = Player(quirn, quirn.window("Options")["handle"])
    dialog.front()
    desk.file("hidden.lst").rename(desk.file("favorite.lst"))
    dialog.keys("Escape")
    player = Player(quirn)
    assert len(player.items(player.beside("Zone to Start In :", "ComboBox"))) == 12
    player.quirn.close()

    desk.file("favorite.lst").unlink()
    quirn = desk.start()
    quirn.expect(NO_ZONES, "question", button="Cancel")
    assert quirn.ended() == 0


@pytest.mark.parametrize("change", [False, True])
def test_settings_are_written_on_exit(desk, change):
    """As `reg query` prints them."""
    player = start(desk)
    desk.user.ask("place", player.handle, 200, 150)
    if change:
        player.open(DUEL)
        player.expect_status("File has been loaded")
    player.quirn.choose(EXIT)
    assert player.quirn.ended() == 0
    printed = desk.machine.reg("query", OWN_KEY, "/s").stdout.decode("cp437")
    kind = "    REG_SZ    "
    values = dict(line.split(kind) for line in printed.replace("\r", "").split("\n") if kind in line)
    values = {key.strip(): value for key, value in values.items()}
    assert values["MRU0"] == (DUEL if change else "") and values["SubSpace"] == r"C:\SubSpace"
    assert values["Fav1Name"] == "<click to add Favourite 1>" and values["Fav5Path"] == ""
    # Twips at 96 dpi; the window manager may move a window by its frame.
    assert abs(int(values["MainLeft"]) - 200 * 15) <= 60 and abs(int(values["MainTop"]) - 150 * 15) <= 450
    again = start(desk)
    wait_for(lambda: abs(again.window()["rect"][0] - 200) <= 4, what="the place")
