"""The profile library by its keys, and what it leaves behind."""
import shutil
import time

from conftest import WM_CLOSE, Profile
from machine import wait_for
from player import start

LIBRARY = "Profile Library - "
FIRST_OF_MORE = {"Rename": "r", "Copy Without Password": "w", "Earlier Versions": "e", "Desktop Shortcut": "s",
                 "Show In Folder": "f"}


def rows(library):
    """How many profiles it shows, as it says itself."""
    count = [c["caption"] for c in library.controls() if c["caption"].split(" ")[-1].startswith("profile")]
    return int(count[0].split()[0]) if count and "reading" not in count[0] else None


def open_library(player, profiles):
    player.keys("ctrl+l")
    library = player.dialog(LIBRARY)
    library.front()
    wait_for(lambda: rows(library) == profiles, what=f"{profiles} profiles")
    return library


def go_to(library, row):
    """By the arrows: a letter within a second of another would be its second letter."""
    library.keys("Home", *["Down"] * row)


def choose(library, deed):
    """Of the menu More, by its letter."""
    library.click(library.find("More", "Button"))
    library.xdo("key", FIRST_OF_MORE[deed])


def test_profiles_are_found_opened_renamed_linked_and_deleted(desk):
    profiles = desk.file("Profiles")
    shutil.copy(profiles / "DUEL.QRN", profiles / "nova")
    shutil.copy(desk.file("monday.log"), profiles)
    desktop = next(desk.machine.drive.glob("users/*/Desktop"))
    if desktop.is_symlink():  # to the home of the real user
        desktop.unlink()
        desktop.mkdir()
    player = start(desk)
    library = open_library(player, 4)
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
    go_to(library, 3)
    library.keys("Delete")
    box = player.quirn.box()
    assert box.text == "Move nova to the recycle bin?"
    box.press()
    wait_for(lambda: not (profiles / "nova").exists(), what="the file's end")

    go_to(library, 2)
    choose(library, "Desktop Shortcut")
    player.expect_status("A shortcut has been put on the desktop")
    link = (desktop / "LEAGUE.lnk").read_bytes()
    assert "/LR:LEAGUE.QRN".encode("utf-16-le") in link or b"/LR:LEAGUE.QRN" in link

    assert "PlayerPassword=\n" not in (profiles / "LEAGUE.QRN").read_text("cp1252")
    choose(library, "Copy Without Password")
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


def test_settings_are_taken_from_another_profile_and_from_an_earlier_version(desk):
    duel, league = desk.file("Profiles/DUEL.QRN"), desk.file("Profiles/LEAGUE.QRN")
    player = start(desk)
    library = open_library(player, 3)
    go_to(library, 1)
    library.keys("Return")
    player.expect_status("File has been loaded")
    go_to(library, 2)
    library.keys("alt+c")
    compare = player.dialog("Compare - DUEL.QRN")
    compare.front()
    compare.click(compare.of_class("Edit")[0])
    compare.type("pilot name")
    desk.screenshot("other profile")
    compare.click(compare.of_class("SysListView32")[0])
    compare.keys("Home", "space", "alt+p")
    desk.screenshot("taken")
    compare.keys("Escape")
    compare.gone()
    player.keys("ctrl+s")
    player.expect_status("File has been saved")
    theirs, before = Profile(league).sections["Dialog"], Profile(duel).sections["Dialog"]
    assert before["PlayerName"] == theirs["PlayerName"] and before["ServerArena"] != theirs["ServerArena"]

    library.front()
    go_to(library, 1)
    choose(library, "Earlier Versions")
    versions = player.dialog("Earlier Versions")
    versions.keys("alt+p")
    player.quirn.box().press()
    versions.gone()
    wait_for(lambda: Profile(duel).sections["Dialog"]["PlayerName"] != theirs["PlayerName"], what="the earlier name")
    player.expect_status("File has been loaded")


def test_the_folder_is_shown_read_anew_and_told_of_when_it_is_gone(desk):
    profiles = desk.file("Profiles")
    player = start(desk)
    library = open_library(player, 3)
    choose(library, "Show In Folder")
    folder = lambda: [w for w in desk.user.ask("windows")["windows"] if w["caption"] == "Profiles"]
    window = wait_for(folder, 15, "the system's window of the folder")[0]
    desk.screenshot("folder")
    desk.user.ask("post", window["handle"], WM_CLOSE, 0, 0)
    wait_for(lambda: not folder(), what="the end of that window")

    library.front()
    shutil.copy(profiles / "DUEL.QRN", profiles / "Evening.qrn")
    library.keys("F5")
    wait_for(lambda: rows(library) == 4, what="the new profile")
    library.keys("ctrl+f")
    library.type("evening")
    wait_for(lambda: rows(library) == 1, what="what was looked for")
    library.keys("Return")  # opens the only one that is left
    player.expect_status("File has been loaded")
    assert player.title().endswith("Evening.qrn")

    profiles.rename(profiles.with_name("Elsewhere"))
    library.front()
    library.keys("F5")
    wait_for(lambda: [c for c in library.controls() if c["caption"].endswith("The folder for QRN files cannot be read.")],
             what="words on the folder")
    desk.screenshot("gone")
    assert not library.find("Open", "Button")["enabled"]


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
