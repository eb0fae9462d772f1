"""Takes the pictures of every window, for the help page and for looking at them:

    python3 -m pytest tests/journeys/pictures.py                    into resources/ship/pictures
    QUIRN_DPI=144 python3 -m pytest tests/journeys/pictures.py      into build/pictures-144
"""
import os
import re
import subprocess
import time

import pytest

import player as at
from conftest import ROOT, wait_for
from player import PAGES, Player

DPI = int(os.environ.get("QUIRN_DPI", "96"))
FOLDER = ROOT / ("resources/ship/pictures" if DPI == 96 else f"build/pictures-{DPI}")
DESKTOP = r"HKEY_CURRENT_USER\Control Panel\Desktop"
(NOTES, ABOUT) = (24, 29)


@pytest.fixture
def camera(desk, monkeypatch):
    desk.machine.reg("add", DESKTOP, "/v", "LogPixels", "/t", "REG_DWORD", "/d", str(DPI), "/f")
    FOLDER.mkdir(parents=True, exist_ok=True)

    def edges(window):
        """With the frame that the window manager draws round it, in the display's own measures."""
        say = lambda *words: subprocess.run(words, env=desk.screen.environment, stdout=subprocess.PIPE,
                                            stderr=subprocess.DEVNULL, check=False).stdout.decode("utf-8", "replace")
        name = "^" + re.escape(window["caption"]) + "$"
        ids = window["caption"] and say("xdotool", "search", "--onlyvisible", "--name", name).split()
        if not ids:
            return window["rect"]
        info = say("xwininfo", "-id", ids[-1])
        left, top, width, height = (int(re.search(key + r":\s+(-?\d+)", info)[1])
                                    for key in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        around = re.search(r"= (\d+), (\d+), (\d+), (\d+)", say("xprop", "-id", ids[-1], "_NET_FRAME_EXTENTS"))
        l, r, t, b = map(int, around.groups()) if around else (0, 0, 0, 0)
        return [left - l, top - t, left + width + r, top + height + b]

    def front(self):
        def clicked():
            left, top, right, _ = edges(self.window())
            self.point((left + right) / 2, top + 10)
            self.xdo("click", 1)
            time.sleep(0.2)
            return self.has_keyboard()

        wait_for(clicked, what=f"the keyboard for '{self.title()}'")

    # Wine and the window manager do not agree on how high a caption is at a higher DPI.
    monkeypatch.setattr(Player, "front", front)

    def shoot(windows, name):
        """What lies around all of these windows on the screen."""
        time.sleep(0.4)
        lefts, tops, rights, bottoms = zip(*map(edges, windows))
        l, t, r, b = min(lefts), min(tops), max(rights), max(bottoms)
        subprocess.run(["/usr/bin/import", "-window", "root", "-crop", f"{r - l}x{b - t}+{l}+{t}", "+repage", "-strip",
                        "-dither", "None", "-colors", "128", f"PNG8:{FOLDER / name}.png"],
                       env=desk.screen.environment, check=True)

    yield shoot
    desk.machine.reg("delete", DESKTOP, "/v", "LogPixels", "/f")


def dialog_of(quirn, camera, caption, name):
    dialog = Player(quirn, quirn.window(caption)["handle"])
    dialog.front()
    camera([dialog.window()], name)
    return dialog


def leave(dialog):
    dialog.keys("Escape")
    dialog.gone()


def test_pages_and_dialogs(desk, camera):
    for name in ("readme.txt", "revision.txt"):
        (desk.machine.path("C:\\QUIRN") / name).write_bytes((ROOT / "resources/ship" / name).read_bytes())
    main = at.start(desk)
    quirn = main.quirn
    main.open(r"C:\SubSpace\Profiles\DUEL.QRN")
    wait_for(lambda: "DUEL" in main.title(), what="the profile")
    main.front()
    for page in PAGES:
        main.turn_to(page)
        camera([main.window()], page.lower().replace(" ", "-"))
    main.turn_to("Identity")
    for heading, name in (("f", "menu-file"), ("h", "menu-help")):
        main.keys(f"alt+{heading}", "Down")
        menu = wait_for(lambda: [w for w in desk.user.ask("windows")["windows"] if w["class"] == "#32768"],
                        what="the menu")
        camera([main.window(), *menu], name)
        main.keys("Escape", "Escape")
    main.turn_to("Macros Shift")
    main.click(main.of_class("Edit")[7])
    main.keys("percent")
    camera([main.window()], "macro-variables")
    main.keys("Escape")

    quirn.choose(at.SET_OPTIONS)
    options = dialog_of(quirn, camera, "Options", "options-folders")
    options.keys("ctrl+Tab")
    camera([options.window()], "options-favourites")
    leave(options)
    quirn.choose(NOTES)
    leave(dialog_of(quirn, camera, "Revision Notes", "notes"))
    quirn.choose(ABOUT)
    about = dialog_of(quirn, camera, "About", "about")
    about.type("zantek")
    camera([about.window()], "about-secret")
    leave(about)
    main.front()
    main.turn_to("Advanced")
    main.click(main.beside("Config Code:", "Button"))
    leave(dialog_of(quirn, camera, "Advanced Settings Code", "config-code"))


def test_splash_and_run_box(desk, camera):
    # While the program waits for an answer about the zones, its splash stays up.
    desk.file("favorite.lst").rename(desk.file("favorite.off"))
    quirn = desk.start()
    box = quirn.box()
    splash = [w for w in quirn.windows() if w["class"] == "QUIRNForm" and not w["caption"]]
    desk.user.ask("place", box.handle, 900, 700)
    camera(splash, "splash")
    box.press("Cancel")
    quirn.ended()
    desk.file("favorite.off").rename(desk.file("favorite.lst"))
    quirn = desk.start("/LR:DUEL.QRN")
    camera([quirn.window("QUIRN")], "run-box")
