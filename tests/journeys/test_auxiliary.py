"""Help and addresses through the menus of the exe; the splash while a start takes its time."""
import contextlib

from machine import wait_for
from player import Player

CONTENTS, QUIRN_SITE, GAME_SITE, ABOUT = 23, 26, 27, 29
CLASSES = r"HKEY_LOCAL_MACHINE\Software\Classes"
HERE = r"C:\QUIRN"


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


def test_help_and_addresses_go_to_their_programs(desk):
    """The stand-in game serves as the program for both: it reports how it was called."""
    game = r'C:\SubSpace\subspace.exe "%1"'
    with contextlib.ExitStack() as stack:
        stack.enter_context(registered(desk.machine, ".html", "QuirnTestPage"))
        # A program that it opens works in the folder that it was started in.
        quirn = desk.start(folder=desk.file(""))
        quirn.choose(CONTENTS)
        quirn.expect(rf"Unable to load '{HERE}\help.html' : File not found")
        (desk.machine.path(HERE) / "help.html").write_text("<p>Help</p>")
        quirn.choose(CONTENTS)
        quirn.expect(rf"Unable to load '{HERE}\help.html' : No program is registered for it")
        for key in ("http", "QuirnTestPage"):
            stack.enter_context(registered(desk.machine, key + r"\shell\open\command", game))
        for command, word in ((CONTENTS, "help.html"), (QUIRN_SITE, "www.quirn."), (GAME_SITE, "www.subspace.")):
            quirn.choose(command)
            assert word in desk.game_report()["CommandLine"]
            desk.close_game()
            wait_for(lambda: not desk.user.processes("subspace.exe"), what="the game's end")
            desk.file("started.txt").unlink()
        quirn.choose(ABOUT)
        about = Player(quirn, quirn.window("About QUIRN")["handle"])
        about.front()
        about.click(next(c for c in about.controls() if "Click here" in c["caption"]))
        assert "www.quirn." in desk.game_report()["CommandLine"]
