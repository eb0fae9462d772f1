"""About box, notes, help and addresses, through the menus of the exe; the splash while a start takes its time."""

import contextlib

from conftest import WM_CLOSE
from machine import wait_for
from player import Player

CONTENTS, NOTES, QUIRN_SITE, GAME_SITE, ABOUT = 23, 24, 26, 27, 29
CLASSES = r"HKEY_LOCAL_MACHINE\Software\Classes"
MSINFO = r"HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Shared Tools\MSINFO"
HERE = r"C:\QUIRN"
WS_MINIMIZEBOX = 0x20000


def start(desk):
    # Programs that it opens work in the folder that it was started in.
    return desk.start(folder=desk.machine.path("C:\\SubSpace"))


def dialog(quirn, command, caption):
    quirn.choose(command)
    return Player(quirn, quirn.window(caption)["handle"])


def press(window, caption):
    assert window.user.ask("press", window.handle, caption)


def type_into(window, control, text):
    """Without the display's keyboard, which it gives to a window in its own time."""
    window.user.ask("type", control["handle"], text)


def shut(window):
    window.user.ask("post", window.handle, WM_CLOSE, 0, 0)
    window.gone()


def label(window, text):
    return next((c for c in window.controls() if c["class"] == "Static" and text in c["caption"]), None)


@contextlib.contextmanager
def registered(machine, key, value):
    """The default value of a key of the registered programs, for a while."""
    kind, before = (machine.export_registry(CLASSES + "\\" + key) or {}).get("\\", ("key", ""))
    machine.reg("add", CLASSES + "\\" + key, "/ve", "/d", value, "/f")
    try:
        yield
    finally:
        if kind != "key":
            machine.reg("add", CLASSES + "\\" + key, "/ve", "/d", before, "/f")
        else:
            machine.reg("delete", CLASSES + "\\" + key, "/f")


def test_the_about_box_and_its_cookies(desk):
    quirn = start(desk)
    about = dialog(quirn, ABOUT, "About QUIRN")
    desk.screenshot("about")
    assert label(about, "Version 1.61") and label(about, "Click here to visit the QUIRN Web Site")
    first = label(about, "promise to your future self")
    about.click(first)
    second = wait_for(lambda: about.text(first) != first["caption"] and about.text(first), what="the second quote")
    wait_for(lambda: about.text(first) != second, seconds=10, what="the third quote, by itself")
    about.keys("s", "x", "Z", "a", "n", "T", "E", "k")  # "s" is the access key of a button, but only with Alt
    secret = wait_for(lambda: label(about, "Hey! You found the secret cookie!"), what="the secret")
    desk.screenshot("secret")
    assert secret and not label(about, "Version")
    press(about, "Press me to leave this horrible excuse for a cookie...")
    about.gone()
    quirn.close()


def test_system_information(desk):
    quirn = start(desk)
    desk.machine.reg("delete", MSINFO, "/f")
    about = dialog(quirn, ABOUT, "About QUIRN")
    press(about, "Sys Info...")
    quirn.expect("System Information Is Unavailable At This Time", "none")
    desk.machine.reg("add", MSINFO, "/v", "PATH", "/d", r"C:\SubSpace\subspace.exe", "/f")
    press(about, "Sys Info...")
    desk.game_report()
    desk.machine.reg("delete", MSINFO, "/f")


def test_the_notes(desk):
    folder = desk.machine.path(HERE)
    notes = dialog(start(desk), NOTES, "QUIRN Readme/Revision Notes")
    box = notes.of_class("Edit")[0]
    assert box["caption"] == f"----\r\nERROR - Could not find {HERE}\\readme.txt\r\n----"
    lines = "\r\n".join(f"Line {i}, für alle" for i in range(80))
    (folder / "revision.txt").write_bytes(lines.encode("cp1252"))
    press(notes, "revision.txt")
    wait_for(lambda: notes.text(box) == lines + "\r\n", what="the revision notes")
    desk.screenshot("notes")
    type_into(notes, box, "nothing can be typed")
    assert notes.text(box) == lines + "\r\n"
    for size in ((), (300, 200)):  # as it opens, and made smaller
        desk.user.ask("place", notes.handle, 100, 100, *size)
        left, top, right, bottom = notes.window()["rect"]
        assert (right - left, bottom - top) == (721, 506)
    assert not notes.window()["style"] & WS_MINIMIZEBOX
    shut(notes)


def test_help_and_addresses_go_to_their_programs(desk):
    """The stand-in game serves as the program for both: it reports how it was called."""
    game = r'C:\SubSpace\subspace.exe "%1"'
    with contextlib.ExitStack() as stack:
        stack.enter_context(registered(desk.machine, ".html", "QuirnTestPage"))
        quirn = start(desk)
        quirn.choose(CONTENTS)
        quirn.expect(rf"Unable to load '{HERE}\help.html' : File not found", "exclamation")
        (desk.machine.path(HERE) / "help.html").write_text("<p>Help</p>")
        quirn.choose(CONTENTS)
        quirn.expect(rf"Unable to load '{HERE}\help.html' : No program is registered for it", "exclamation")
        for key in ("http", "QuirnTestPage"):
            stack.enter_context(registered(desk.machine, key + r"\shell\open\command", game))
        for command, word in ((CONTENTS, "help.html"), (QUIRN_SITE, "www.quirn."), (GAME_SITE, "www.subspace.")):
            quirn.choose(command)
            assert word in desk.game_report()["CommandLine"]
            desk.close_game()
            wait_for(lambda: not desk.user.processes("subspace.exe"), what="the game's end")
            desk.file("started.txt").unlink()
        about = dialog(quirn, ABOUT, "About QUIRN")
        about.front()
        about.click(label(about, "Click here"))
        assert "www.quirn." in desk.game_report()["CommandLine"]


def test_the_splash_is_up_while_the_start_waits(desk):
    desk.file("favorite.lst").unlink()
    quirn = desk.start()
    box = quirn.box()
    splash = [w for w in quirn.windows() if w["class"] == "QUIRNForm"]
    assert len(splash) == 1
    texts = [c["caption"] for c in desk.user.ask("controls", splash[0]["handle"])["controls"]]
    assert {"QUIRN", "The Vellick Subspace Manager", "Version 1.61"} <= set(texts)
    box.press("Cancel")
    assert quirn.ended() == 0
