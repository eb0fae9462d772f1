"""The player at the main window: real mouse and keyboard, controls found by the captions that he reads."""
import re
import subprocess
import time

from conftest import TITLE
from machine import wait_for

BM_GETCHECK, TCM_GETCURSEL = 0xF0, 0x130B
WS_TABSTOP = 0x10000
PAGES = ["Identity", "Options", "Advanced", "Hidden", "Macros Shift", "Macros R-Shift", "Ignore List"]
(NEW, OPEN, SAVE, SAVE_AS, IMPORT, PRINT, RECENT, CLOSE, EXIT, SET_OPTIONS) = (2, 3, 4, 5, 7, 9, 11, 17, 18, 20)


class Player:
    """At one window of a started copy. All coordinates are the screen's."""

    def __init__(self, quirn, handle=None):
        self.quirn, self.desk, self.user = quirn, quirn.desk, quirn.desk.user
        self.handle = handle or quirn.main_window()["handle"]

    # --- Looking

    def window(self):
        return next((w for w in self.user.ask("windows", "all")["windows"] if w["handle"] == self.handle), None)

    def visible(self):
        window = self.window()
        return bool(window and window["visible"])

    def title(self):
        return self.window()["caption"]

    def controls(self):
        return [c for c in self.user.ask("controls", self.handle)["controls"] if c["visible"]]

    def find(self, caption, kind=None):
        found = [c for c in self.controls()
                 if c["caption"].replace("&", "") == caption and (kind is None or c["class"] == kind)]
        captions = [c["caption"] for c in self.controls()]
        assert len(found) == 1, f"{len(found)} controls '{caption}'; there are {captions}"
        return found[0]

    def beside(self, label, kind="Edit", nth=0):
        """The control of that class in the line of the label, right of it."""
        left, top, right, bottom = self.find(label)["rect"]
        middle = (top + bottom) / 2
        line = sorted((c for c in self.controls() if c["class"] == kind and c["rect"][1] <= middle <= c["rect"][3]
                       and c["rect"][0] >= left), key=lambda c: c["rect"][0])
        assert len(line) > nth, f"nothing beside '{label}'"
        return line[nth]

    def in_frame(self, frame, caption):
        """The button with that caption inside the frame."""
        l, t, r, b = self.find(frame, "Button")["rect"]
        inside = [c for c in self.controls() if c["caption"] == caption and l <= c["rect"][0] and c["rect"][2] <= r
                  and t <= c["rect"][1] and c["rect"][3] <= b]
        assert len(inside) == 1, f"{len(inside)} '{caption}' in '{frame}'"
        return inside[0]

    def of_class(self, kind):
        return [c for c in self.controls() if c["class"].lower() == kind.lower()]

    def text(self, control):
        return next(c for c in self.controls() if c["handle"] == control["handle"])["caption"]

    def checked(self, control):
        return self.user.ask("send", control["handle"], BM_GETCHECK, 0, 0)["result"] == 1

    def items(self, control):
        return self.user.ask("items", control["handle"])["items"]

    def selected(self, control):
        answer = self.user.ask("items", control["handle"])
        return [answer["items"][int(i)] for i in answer["selected"]]

    def status(self):
        return self.of_class("msctls_statusbar32")[0]["caption"]

    def expect_status(self, text):
        wait_for(lambda: self.status() == text, what=f"status '{text}' (is '{self.status()}')")

    def focus(self):
        return self.user.ask("focus", self.handle)

    def page(self):
        return self.user.ask("send", self.of_class("SysTabControl32")[0]["handle"], TCM_GETCURSEL, 0, 0)["result"]

    # --- Acting

    def xdo(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.desk.screen.environment, check=True)

    def display_says(self, *words):
        return subprocess.run(words, env=self.desk.screen.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, check=False).stdout.decode("utf-8", "replace")

    def frame(self):
        """The window with the frame that the window manager draws round it: left, top, right, bottom."""
        name = "^" + re.escape(self.title()) + "$"
        number = wait_for(lambda: self.display_says("xdotool", "search", "--onlyvisible", "--name", name).split(),
                          what=f"'{self.title()}' on the display")[-1]
        info = self.display_says("xwininfo", "-id", number)
        left, top, width, height = (int(re.search(key + r":\s+(-?\d+)", info)[1])
                                    for key in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        around = re.search(r"= (\d+), (\d+), (\d+), (\d+)",
                           self.display_says("xprop", "-id", number, "_NET_FRAME_EXTENTS"))
        l, r, t, b = map(int, around.groups()) if around else (0, 0, 0, 0)
        return left - l, top - t, left + width + r, top + height + b

    def tray_icons(self):
        """Where the icons in the window manager's tray are that come from Wine."""
        tree = self.display_says("xwininfo", "-root", "-tree")
        tray = tree[tree.index('"SystemTray"'):tree.index('"TrayPane"')] if '"SystemTray"' in tree else ""
        return [tuple(map(int, place)) for place in
                re.findall(r'"explorer.exe"\)\s+\d+x\d+\S+\s+\+(\d+)\+(\d+)', tray)]

    def point_at_tray_icon(self):
        x, y = wait_for(self.tray_icons, what="the tray icon")[0]
        self.point(x + 12, y + 12)

    def has_keyboard(self):
        """Both for the system and for the display, which gives the keyboard in its own time."""
        return (self.user.ask("foreground")["handle"] == self.handle and
                self.display_says("xdotool", "getwindowfocus", "getwindowname").strip() == self.title())

    def take_keyboard(self):
        if not self.has_keyboard():
            self.front()

    def front(self):
        """A click on the caption: this window manager does not give the keyboard to a new window by itself. Two on one
        spot could be a double click, which makes the window as large as the screen."""
        for attempt in range(30):
            left, top, right, _ = self.frame()
            self.point((left + right) / 2 + attempt % 3 * 12, top + 10)
            self.xdo("click", 1)
            time.sleep(0.15)
            if self.has_keyboard():
                return
        raise AssertionError(f"no keyboard for '{self.title()}'")

    def keys(self, *names):
        self.take_keyboard()
        self.xdo("key", "--delay", "25", *names)
        time.sleep(0.1)

    def type(self, text):
        self.take_keyboard()
        self.xdo("type", "--delay", "12", text)
        time.sleep(0.1)

    def point(self, x, y):
        self.xdo("mousemove", int(x), int(y))

    def click(self, control, *more):
        l, t, r, b = control["rect"]
        self.point((l + r) / 2 if control["class"] != "Button" or r - l < 100 else l + 8, (t + b) / 2)
        self.xdo("click", *more, 1)
        time.sleep(0.12)

    def replace(self, control, text):
        """Types over what a text box holds."""
        self.click(control)
        self.keys("Home", "shift+End")
        if text:
            self.type(text)
        else:
            self.keys("Delete")

    def pick(self, control, item):
        """Chooses an item of a drop-down list by the keyboard."""
        self.click(control)
        self.keys("Home", *["Down"] * self.items(control).index(item), "Return")
        assert self.selected(control) == [item]

    def turn_to(self, page):
        wanted = PAGES.index(page)
        for _ in range(8):
            if self.page() == wanted:
                time.sleep(0.1)
                return
            self.keys("ctrl+Tab")
        raise AssertionError(f"page {page} does not come")

    def dialog(self, caption):
        return Player(self.quirn, self.quirn.window(caption)["handle"])

    def gone(self):
        wait_for(lambda: not self.visible(), what="the window's end")

    def in_file_dialog(self, caption, path):
        """Types a path into a file dialog of the system."""
        dialog = self.dialog(caption)
        dialog.front()
        name = wait_for(lambda: [c for c in dialog.controls() if c["class"] == "Edit"
                                 and dialog.focus() and c["handle"] == dialog.focus()["handle"]],
                        what="the dialog's name box")[0]
        offered = name["caption"]
        if path is None:
            dialog.keys("Escape")
        else:
            dialog.keys("Home", "shift+End")
            dialog.type(path)
            dialog.keys("Return")
        dialog.gone()
        return offered

    def save_as(self, path):
        self.quirn.choose(SAVE_AS)
        return self.in_file_dialog("Save As", path)

    def open(self, path):
        self.quirn.choose(OPEN)
        return self.in_file_dialog("Open", path)


def start(desk, *arguments):
    player = Player(desk.start(*arguments))
    player.front()
    # The window is there before all of its controls are.
    wait_for(lambda: player.of_class("msctls_statusbar32"), what="the controls")
    wait_for(lambda: player.focus(), what="the focus")
    assert player.title().startswith(TITLE)
    return player
