"""Takes the pictures of the windows.

    python3 -m pytest tools/pictures.py
        those that the help page shows, into resources/ship/pictures
    QUIRN_PICTURES=FOLDER python3 -m pytest tools/pictures.py
        those of all windows at 96, 144 and 192 dpi, into FOLDER/96, FOLDER/144 and FOLDER/192, to look at
"""
import os
import pathlib
import subprocess
import sys
import time

import pytest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests/journeys"))
import player as at  # noqa: E402  (found by the line above)
from conftest import GAME_KEY, desk, whole_desk  # noqa: E402,F401  (fixtures)
from machine import ROOT, wait_for  # noqa: E402
from player import PAGES, Player  # noqa: E402
from test_log_editor import COLORS, SEVERAL, LogEditor  # noqa: E402

SHIP = ROOT / "resources/ship"
LOOK = os.environ.get("QUIRN_PICTURES")
DESKTOP = r"HKEY_CURRENT_USER\Control Panel\Desktop"
(NOTES, ABOUT) = (24, 29)
MENU = "#32768"


@pytest.fixture(params=(96, 144, 192) if LOOK else (96,))
def camera(desk, request):
    folder = pathlib.Path(LOOK).resolve() / str(request.param) if LOOK else SHIP / "pictures"
    folder.mkdir(parents=True, exist_ok=True)
    help_page = (SHIP / "help.html").read_text(encoding="utf-8")
    desk.machine.reg("add", DESKTOP, "/v", "LogPixels", "/t", "REG_DWORD", "/d", str(request.param), "/f")

    def shoot(windows, name):
        """What lies around all of these windows on the screen; a window without a caption has no frame."""
        if not LOOK and f"pictures/{name}.png" not in help_page:
            return
        time.sleep(0.4)
        edges = [Player(desk.started[-1], w["handle"]).frame() if w["caption"] else w["rect"] for w in windows]
        lefts, tops, rights, bottoms = zip(*edges)
        l, t, r, b = min(lefts), min(tops), max(rights), max(bottoms)
        subprocess.run(["/usr/bin/import", "-window", "root", "-crop", f"{r - l}x{b - t}+{l}+{t}", "+repage", "-strip",
                        "-dither", "None", "-colors", "128", f"PNG8:{folder / name}.png"],
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


def menu_of(desk):
    return wait_for(lambda: [w for w in desk.user.ask("windows")["windows"] if w["class"] == MENU], what="the menu")


def test_pages_and_dialogs(desk, camera):
    for name in ("readme.txt", "revision.txt"):
        (desk.machine.path("C:\\QUIRN") / name).write_bytes((SHIP / name).read_bytes())
    main = at.start(desk)
    quirn = main.quirn
    main.open(r"C:\SubSpace\Profiles\DUEL.QRN")
    wait_for(lambda: "DUEL" in main.title(), what="the profile")
    main.front()
    for page in PAGES:
        main.turn_to(page)
        camera([main.window()], page.lower().replace(" ", "-"))
    main.turn_to("Identity")
    for heading, name in (("f", "menu-file"), ("p", "menu-profiles"), ("h", "menu-help")):
        main.keys(f"alt+{heading}", "Down")
        camera([main.window(), *menu_of(desk)], name)
        main.keys("Escape", "Escape")
    main.turn_to("Macros Shift")
    main.click(main.of_class("Edit")[7])
    main.keys("percent")
    camera([main.window()], "macro-variables")
    main.keys("Escape")
    main.click(main.of_class("Edit")[0])
    main.type("w" * 150 + "%")
    camera([main.window()], "macro-variables-right")
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
    main.point_at_tray_icon()
    main.xdo("click", 3)
    menu = menu_of(desk)
    main.point(640, 400)  # away from the icon, whose tool tip would lie over the menu
    camera(menu, "tray-menu")


def test_the_way_back(desk, camera):
    main = at.start(desk)
    quirn = main.quirn
    main.open(r"C:\SubSpace\Profiles\LEAGUE.QRN")
    main.open(r"C:\SubSpace\Profiles\DUEL.QRN")
    main.keys("ctrl+t")
    main.expect_status("Profile has been transferred")
    desk.machine.import_registry("REGEDIT4\n\n[" + GAME_KEY + "\\Options]\n\"MusicVolume\"=dword:4d\n")
    main.replace(main.beside("Pilot Name :"), "Vex")
    main.keys("ctrl+s")
    main.expect_status("File has been saved")
    main.front()
    wait_for(lambda: [c for c in main.controls() if c["caption"] == "Keep them..."], what="the notice")
    camera([main.window()], "notice")
    main.keys("ctrl+l")
    library = dialog_of(quirn, camera, "Profile Library", "library")
    desk.user.ask("place", library.handle, 4, 24, 100, 100)
    camera([library.window()], "library-smallest")
    library.keys("Down", "F2")
    leave(dialog_of(quirn, camera, "Rename", "rename"))
    library.click(library.find("More", "Button"))
    camera([library.window(), *menu_of(desk)], "library-more")
    library.keys("Escape")
    library.click(library.find("More", "Button"))
    library.xdo("key", "w")
    leave(dialog_of(quirn, camera, "Copy Without Password", "copy"))
    leave(library)
    main.keys("ctrl+d")
    compare = dialog_of(quirn, camera, "Compare - DUEL.QRN", "compare")
    desk.user.ask("place", compare.handle, 4, 24, 100, 100)
    camera([compare.window()], "compare-smallest")
    leave(compare)
    main.keys("ctrl+shift+z")
    undo = dialog_of(quirn, camera, "Undo Last Transfer", "undo")
    undo.keys("alt+s")
    leave(dialog_of(quirn, camera, "Compare - Before", "compare-transfer"))
    for keys, caption, name in ((("alt+p", "h"), "Transfer History", "history"),
                                (("alt+p", "e"), "Earlier Versions", "versions")):
        main.keys(*keys)
        dialog = dialog_of(quirn, camera, caption, name)
        dialog.keys("Down")
        desk.user.ask("place", dialog.handle, 4, 24, 100, 100)
        camera([dialog.window()], name + "-smallest")
        leave(dialog)


def test_log_editor(desk, camera):
    editor = LogEditor(desk)
    editor.open(r"C:\SubSpace\monday.log")
    editor.front()
    camera([editor.window()], "log-editor")
    editor.keys("ctrl+f")
    find = dialog_of(editor.quirn, camera, "Find", "log-find-empty")
    find.type("gg")
    camera([find.window()], "log-find")
    leave(find)
    editor.type_filter("ann -x")
    time.sleep(1)
    camera([editor.window()], "log-filtered")
    for heading, name in (("e", "menu-edit"), ("v", "menu-view")):
        editor.keys(f"alt+{heading}")
        camera([editor.window(), *menu_of(desk)], name)
        editor.keys("Escape", "Escape")
    editor.keys("ctrl+t")
    statistics = dialog_of(editor.quirn, camera, "Player Statistics", "log-statistics")
    desk.user.ask("place", statistics.handle, 4, 24, 100, 100)
    camera([statistics.window()], "log-statistics-smallest")
    leave(statistics)
    editor.keys("Escape")
    desk.file("tuesday.log").write_bytes(b"  Ann> and another day\r\nP Bob> see you\r\n")
    editor.command(SEVERAL)
    editor.in_file_dialog("Open Several", '"monday.log" "tuesday.log"')
    editor.expect_status("Log file has been loaded")
    editor.command(COLORS)
    editor.keys("Tab")
    camera([editor.window()], "log-colors")
    for size, name in (((100, 100), "log-editor-smallest"), ((1270, 960), "log-editor-large")):
        desk.user.ask("place", editor.handle, 4, 24, *size)
        camera([editor.window()], name)


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
