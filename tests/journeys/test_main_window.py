"""The player at the main window: one control of every kind on every page, and what becomes of what he does."""
import re
import time

from catalogue import SZ, DWORD
from conftest import OWN_KEY, Profile
from machine import wait_for
from player import PAGES, WS_TABSTOP, start

TARGET = r"C:\SubSpace\Profiles\TRIP.QRN"


def code_button(player):
    return next(c for c in player.of_class("Button") if len(c["caption"]) == 14 and c["caption"][4] == "-")


def spin(player, label, times):
    """Presses the upper arrow of the spin control beside a number."""
    l, t, r, b = player.beside(label, "msctls_updown32")["rect"]
    for _ in range(times):
        player.point((l + r) / 2, t + (b - t) / 4)
        player.xdo("click", 1)
        time.sleep(0.1)


def edit_everything(player):
    player.replace(player.beside("Pilot Name :"), "Marlow Quist")
    player.replace(player.beside("Pilot Password :"), "b0ld&new")
    player.pick(player.beside("Ship Type :", "ComboBox"), "Spectator Mode")
    player.pick(player.beside("Resolution :", "ComboBox"), "1280 x 1024")
    player.pick(player.beside("Zone to Start In :", "ComboBox"), "Quiet Shoals")
    proxy = player.find("Use Proxy Address :")
    if not player.checked(proxy):
        player.click(proxy)
    player.replace(player.beside("Use Proxy Address :"), "10.20.30.40")
    player.replace(player.beside("Chat Name :"), "night,owls")
    player.click(player.beside("Shift-F11 :", "Button", 0))
    player.in_file_dialog("Open", r"C:\SubSpace\waves\goal.wav")

    player.turn_to("Options")
    player.replace(player.beside("Message Name Length :"), "12")
    player.replace(player.beside("Target Bounty :"), "40")
    spin(player, "Target Bounty :", 2)
    player.click(player.in_frame("Radar", "Large"))
    player.click(player.in_frame("Sound", "Engines Off"))
    for caption in ("Show Clock", "3d Sound Effects"):
        if not player.checked(player.find(caption)):
            player.click(player.find(caption))

    player.turn_to("Advanced")
    player.replace(player.beside("Gamma Correction Percentage :"), "77")
    player.click(code_button(player))
    dialog = player.dialog("Advanced Settings Code")
    dialog.find("Changes 0 of 54 switches")  # as long as the code is the present one
    dialog.type("4zz0000000005")
    dialog.keys("Return")
    dialog.gone()
    assert code_button(player)["caption"] == "4zz0-0000-0000"
    player.click(player.find("Mines"))
    assert code_button(player)["caption"] == "4ZZH-0000-0000"  # row D, fifth column
    if not player.checked(player.find("Software Emulation")):
        player.click(player.find("Software Emulation"))

    player.turn_to("Hidden")
    for caption in ("Show Frame Rate (displays framerate info on game screen)", "Force 60 (forces 60Hz refresh rate)"):
        if not player.checked(player.find(caption)):
            player.click(player.find(caption))

    player.turn_to("Macros Shift")
    player.replace(player.beside("Shift F1 -"), "hi ")
    player.type("%")
    player.keys("s", "Return")
    player.turn_to("Advanced")
    player.point(*code_button(player)["rect"][:2])
    player.xdo("mousemove_relative", 9, 9, "click", 3)  # copies the code
    player.turn_to("Macros Shift")
    player.click(player.beside("Shift F3 -"))
    player.keys("ctrl+a", "ctrl+v")
    wait_for(lambda: player.beside("Shift F3 -")["caption"] == "4ZZH-0000-0000", what="the code")
    player.turn_to("Macros R-Shift")
    player.click(player.find("Copy from Shift"))
    player.replace(player.beside("R-Shift F8 -"), "last word")
    if not player.checked(player.find("Distinguish L/RSHIFT")):
        player.click(player.find("Distinguish L/RSHIFT"))

    player.turn_to("Ignore List")
    name = [c for c in player.of_class("Edit")][0]
    for who in ("Grub", "  Loud Lou  "):
        player.click(name)
        player.type(who)
        player.keys("Return")
    player.click(name)
    player.type("Third")
    player.click(player.find("<--- Add"))


EDITED = {
    "Dialog": {"PlayerName": "Marlow Quist", "PlayerPassword": "b0ld&new", "PlayerShipType": "8",
               "ServerArena": "Quiet Shoals", "ServerName": "zone9.example", "ServerPort": "5200",
               "ProxyIP": "10.20.30.40"},
    "Messages": {"ShiftF1": "hi %selfname ", "RShiftF1": "hi %selfname ", "RShiftF8": "last word",
                 "ChatName": "?chat=night,owls"},
    "Options": {"ResolutionX": "1280", "ResolutionY": "1024", "MessageNameLen": "12", "TargetBounty": "42",
                "RadarState": "1", "SoundState": "1", "Clock": "1", "3dSound": "1", "Emulator": "1",
                "Distinguish": "1"},
    "Advanced": {"GammaPercent": "77", "SystemFont": "1", "SystemTiles": "0", "SystemExhaust": "1", "SystemShips": "1",
                 "SystemMines": "1", "SystemMap": "0"},
    "HiddenOptions": {"ShowFrameRate": "1", "Force60": "1"},
}


def test_every_kind_of_control_on_every_page_comes_back(desk):
    player = start(desk)
    edit_everything(player)
    assert player.save_as(TARGET) == "untitled.qrn"
    player.expect_status("File has been saved")
    assert player.title() == "QUIRN v1.61 - TRIP.QRN"

    # The file, read by an INI reader that is not ours.
    file = Profile(desk.machine.path(TARGET))
    for group, values in EDITED.items():
        # This reader drops spaces at the end, and a profile keeps none.
        assert {n: file.sections[group][n] for n in values} == {n: v.rstrip() for n, v in values.items()}
    assert re.fullmatch(r"\d+/\d+/\d+ \d+:\d\d( [AP]M)?", file.sections["QUIRN"]["Modified"])
    assert file.sections["Dialog"]["WaveFileF11"] == r"C:\SubSpace\waves\goal.wav"
    assert file.ignored()[-3:] == ["Grub", "Loud Lou", "Third"]
    player.quirn.close()
    assert desk.own_settings()[r"MRUList\MRU0"] == (SZ, TARGET)

    # Shown again, the pages that are looked at, and taken from all controls into the game.
    player = start(desk)
    player.open(TARGET)
    player.expect_status("File has been loaded")
    assert player.beside("Shift-F11 :", "Static", 1)["caption"] == r"C:\SubSpace\waves\goal.wav"
    assert [player.beside("Use Proxy Address :", "Edit", i)["caption"] for i in range(4)] == ["10", "20", "30", "40"]
    assert player.beside("Port :", "Static", 1)["caption"] == "5200"
    player.turn_to("Advanced")
    assert code_button(player)["caption"] == "4ZZH-0000-0000" and player.checked(player.find("Mines"))
    player.turn_to("Ignore List")
    assert player.items(player.of_class("ListBox")[0])[-3:] == ["Grub", "Loud Lou", "Third"]
    player.click(player.find("Transfer Profile And Run Subspace"))
    report = desk.game_report()
    assert report["Dialog.PlayerName (1)"] == "Marlow Quist" and report["Messages.ShiftF1 (1)"] == "hi %selfname"
    registry = desk.registry()
    for group, values in EDITED.items():
        for name, value in values.items():
            kind = SZ if group == "Messages" or (group == "Dialog" and name != "PlayerShipType") else DWORD
            assert registry[f"{group}\\{name}"] == (kind, value.rstrip())
    assert desk.file("ignore.txt").read_bytes().split(b"\r\n")[-4:] == [b"Grub", b"Loud Lou", b"Third", b""]
    assert desk.file("record0.wav").read_bytes() == desk.file("waves/goal.wav").read_bytes()
    wait_for(lambda: not player.visible(), what="the hidden window")
    desk.close_game()


def test_a_masked_password_is_not_copied(desk):
    desk.user.ask("clipboard", "nothing")
    player = start(desk)
    password = player.beside("Pilot Password :")
    player.replace(password, "secret")
    player.keys("Home", "shift+End", "ctrl+c", "ctrl+Insert", "ctrl+x", "shift+Delete")
    assert player.text(password) != "" and desk.user.ask("clipboard", "nothing")["text"] == "nothing"
    player.click(player.find("Show Password"))
    player.click(password)
    player.keys("Home", "shift+End", "ctrl+c")
    time.sleep(0.3)
    assert desk.user.ask("clipboard", "")["text"] == "secret"


def test_the_pick_list(desk):
    player = start(desk)
    player.turn_to("Macros Shift")
    box = player.beside("Shift F3 -")

    def pick(text, *keys):
        player.replace(box, text)
        player.keys("Home", "Right")  # the caret does not count
        player.type("%")
        wait_for(lambda: player.focus()["class"] == "ListBox", what="the list")
        if keys:
            player.keys(*keys)
        return player.text(box)

    pick("x", "s", "Return")
    assert player.text(box) == "x%selfname "
    assert player.focus()["handle"] == box["handle"]
    assert pick("x", "r", "e", "d", "b", "space") == "x%redbounty "
    assert pick("x", "Escape") == "x%" and player.focus()["handle"] == box["handle"]
    pick("x")
    choices = next(c for c in player.of_class("ListBox"))
    assert len(player.items(choices)) == 17 and player.selected(choices) == ["%area"]
    LB_GETTOPINDEX, LB_SETTOPINDEX = 398, 407
    player.user.ask("send", choices["handle"], LB_SETTOPINDEX, 5, 0)
    player.type("a")  # "%area" still: comes into sight again
    wait_for(lambda: player.user.ask("send", choices["handle"], LB_GETTOPINDEX, 0, 0)["result"] == 0, what="%area")
    l, t, r, _ = choices["rect"]
    player.point(l + 20, t + 22)
    player.xdo("click", 1)
    time.sleep(0.2)
    assert player.text(box) == "x%coord " and not player.of_class("ListBox")
    pick("x")
    player.click(player.beside("Shift F1 -"))
    assert not player.of_class("ListBox") and player.text(box) == "x%"


def test_the_keyboard_reaches_everything(desk):
    player = start(desk)
    reached = {}
    for number, page in enumerate(PAGES):
        assert player.page() == number
        takes_keys = {c["handle"] for c in player.controls()
                      if c["enabled"] and (c["style"] & WS_TABSTOP or c["class"] in ("Edit", "ComboBox", "ListBox"))}
        seen = []
        for _ in range(90):
            handle = player.focus()["handle"]
            if handle in seen:
                break
            seen.append(handle)
            player.xdo("key", "Tab")
            time.sleep(0.03)
        missed = [c["caption"] for c in player.controls() if c["handle"] in takes_keys - set(seen)]
        assert not missed, f"not reached on {page}: {missed}"
        reached[page] = len(seen)
        player.keys("ctrl+Tab")
    assert player.page() == 0, "the pages do not go round"
    player.keys("ctrl+shift+Tab")
    assert player.page() == len(PAGES) - 1
    assert min(reached.values()) > 3 and reached["Advanced"] >= 57 and reached["Options"] >= 30

    # Option groups by the arrows, boxes by the space bar.
    player.turn_to("Options")
    player.click(player.in_frame("Radar", "Small"))
    player.keys("Down")
    assert player.checked(player.in_frame("Radar", "Large")) and not player.checked(player.in_frame("Radar", "Small"))
    player.click(player.find("Show Clock"))
    was = player.checked(player.find("Show Clock"))
    player.keys("space")
    assert player.checked(player.find("Show Clock")) is not was


def test_the_window_never_opens_off_the_screen(desk):
    for name, value in (("MainLeft", -90000), ("MainTop", 900000)):
        desk.machine.reg("add", OWN_KEY + r"\Settings", "/v", name, "/d", str(value), "/f")
    player = start(desk)
    l, t, r, b = player.window()["rect"]
    assert r > 100 and b > 100 and l < 1180 and t < 924
    assert l >= 0 or t >= 0
