#!/usr/bin/python3
"""Takes the screenshots of docs/screenshots anew: every page and dialog at 96 and 144 dpi, in a Wine of its own under
build/. Needs what ./test needs, and the 64-bit build. The one in the README is among them."""
import pathlib
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests/journeys"))

import conftest  # noqa: E402
from player import PAGES, Player, start  # noqa: E402

DOCS = ROOT / "docs"


def shoot(desk, path, rect=None):
    raw = ROOT / "build/screenshots/raw.png"
    desk.screen.shoot(raw)
    crop = []
    if rect:
        l, t, r, b = rect
        crop = ["-crop", f"{r - l}x{b - t}+{l}+{t}", "+repage"]
    path.parent.mkdir(parents=True, exist_ok=True)
    # Text and plain surfaces: few colours are enough.
    subprocess.run(["convert", str(raw), *crop, "-strip", "+dither", "-colors", "64", "-depth", "8",
                    "-define", "png:compression-level=9", f"png8:{path}"], check=True)
    print(path.relative_to(ROOT))


def session(dpi, whole):
    desk = whole
    folder = DOCS / "screenshots" / str(dpi)
    desk.reset("screenshots")
    desk.machine.import_registry(f"""REGEDIT4

[{conftest.OWN_KEY}\\Favourites]
"Fav1Name"="Ace - Ember Reach"
"Fav1Path"="C:\\\\SubSpace\\\\Profiles\\\\DUEL.QRN"
"Fav3Name"="Ødegård - Nine Lanterns"
"Fav3Path"="C:\\\\SubSpace\\\\Profiles\\\\LEAGUE.QRN"
[{conftest.OWN_KEY}\\Settings]
"MainLeft"="1500"
"MainTop"="1500"
""")
    player = start(desk)
    player.open(r"C:\SubSpace\Profiles\LEAGUE.QRN")
    player.expect_status("File has been loaded")
    player.front()
    time.sleep(0.5)
    for number, page in enumerate(PAGES, 1):
        player.turn_to(page)
        player.point(5, 900)
        time.sleep(0.3)
        shoot(desk, folder / f"{number}-{page.lower().replace(' ', '-')}.png", player.frame())

    player.turn_to("Macros Shift")
    for name, label, before in (("right", "Shift F2 -", "w" * 150), ("bottom", "Shift F8 -", "gg ")):
        box = player.beside(label)
        player.replace(box, before)
        player.keys("End")
        player.type("%")
        time.sleep(0.3)
        shoot(desk, folder / f"pick-list-{name}.png", player.frame())
        player.keys("Escape")

    player.turn_to("Advanced")
    code = [c for c in player.of_class("Button") if len(c["caption"]) == 14 and c["caption"][4] == "-"][0]
    player.click(code)
    dialog = player.dialog("Advanced Settings Code")
    dialog.front()
    dialog.type("Gzzz")
    shoot(desk, folder / "config-code.png", dialog.frame())
    dialog.keys("Escape")

    player.quirn.choose(20)
    dialog = player.dialog("Options")
    dialog.front()
    time.sleep(0.3)
    shoot(desk, folder / "options-file-locations.png", dialog.frame())
    dialog.keys("ctrl+Tab")
    time.sleep(0.3)
    shoot(desk, folder / "options-favourites.png", dialog.frame())
    dialog.keys("Escape")
    player.keys("alt+f")
    time.sleep(0.4)
    shoot(desk, folder / "file-menu.png", player.frame())
    player.keys("Escape", "Escape")
    player.point_at_tray_icon()
    player.xdo("click", 3)
    time.sleep(0.8)
    shoot(desk, folder / "tray-menu.png", (840, 700, 1280, 1024))
    desk.end_all()


def main():
    screen = conftest.Screen(ROOT / "build/screenshots/icewm")
    prefix = ROOT / "build/wine/screenshots"
    try:
        for dpi in [int(d) for d in sys.argv[1:]] or (96, 144):
            machine = conftest.Machine(screen, 64, prefix)
            machine.reg("add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD", "/d", str(dpi), "/f")
            machine.reg("add", r"HKCU\Software\Wine\Fonts", "/v", "LogPixels", "/t", "REG_DWORD", "/d", str(dpi), "/f")
            machine.stop()
            user = conftest.User(machine, conftest.EXE.parent / "tests/user.exe")
            try:
                session(dpi, conftest.Desk(screen, machine, user))
            except AssertionError:
                screen.shoot(ROOT / "build/screenshots/failed.png")
                raise
            finally:
                user.stop()
                machine.stop()
    finally:
        screen.stop()
    shutil.copy(DOCS / "screenshots/96/1-identity.png", DOCS / "main.png")


if __name__ == "__main__":
    main()
