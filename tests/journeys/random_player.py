"""A player who presses anything, at the exe, with Wine's heap checks on. What Wine and the program say goes into
build/journeys/random-SEED.log. A failing run names its seed and what was pressed last.

    QUIRN_MINUTES=10 [QUIRN_SEED=1] [QUIRN_EXE=...] python3 -m pytest -s tests/journeys/random_player.py
"""
import os
import random
import re
import subprocess
import time

from conftest import EXE, TITLE, WM_COMMAND
from machine import ROOT, wait_for

MINUTES = float(os.environ.get("QUIRN_MINUTES", "10"))
FIRST_SEED = int(os.environ.get("QUIRN_SEED", "1"))
ACTIONS = 150  # of one run
(WM_NULL, WM_CLOSE, WM_KEYDOWN, WM_KEYUP, WM_CHAR, WM_SYSCOMMAND) = (0, 16, 256, 257, 258, 274)
(SC_MINIMIZE, SC_MAXIMIZE, SC_RESTORE) = (0xF020, 0xF030, 0xF120)
WS_MINIMIZEBOX = 0x20000
FILE_DIALOGS = ("Open", "Save As")
TRAY_MESSAGE, RIGHT_DOWN, DOUBLE_CLICK = 1124, 516, 515
COMMANDS = [*range(2, 18), 20, 21, *range(23, 27), 29, *range(40, 50)]
KEYS = [9, 13, 27, 32, 33, 34, 35, 36, 37, 38, 39, 40, 46, 112, 114, 116]
COMBINATIONS = ["ctrl+s", "ctrl+Tab", "ctrl+shift+Tab", "alt+f", "alt+p", "ctrl+f", "ctrl+a", "Escape", "alt+space",
                "ctrl+n", "F1", "F10", "Tab", "Return", "ctrl+d", "ctrl+shift+z", "ctrl+t", "Delete", "a", "5"]
NAMES = [r"C:\SubSpace\Profiles\DUEL.QRN", r"C:\SubSpace\Profiles\new.qrn", r"C:\SubSpace\gone.mac", r"C:\gone\a.qrn"]
# The heap speaks of a block only when something is wrong with it. No block begins at a multiple of 64 KB: that is the
# list of a dropped file, which the test user must take from the system and not from the heap.
TROUBLE = re.compile(r"err:(?:heap|seh)|warn:heap:\S+ heap \w+, (?:block|ptr) (?!\w+0000: block region)\w+: |Unhandled|"
                     r"page fault|assert", re.I)


class Chance:
    """One run: from the program's start to its end."""

    def __init__(self, desk, seed):
        self.desk, self.user, self.random = desk, desk.user, random.Random(seed)
        self.told = []
        self.log = ROOT / f"build/journeys/random-{EXE.parent.name}-{seed}.log"

    def tell(self, *words):
        self.told.append(" ".join(map(str, words)))

    def start(self):
        environment = dict(self.desk.machine.environment, WINEDEBUG="warn+heap,err+all,fixme-all",
                           SUBSPACE_SECONDS=str(self.random.choice((0, 2, 5))))
        argument = self.random.choice(([], [], ["/Q"], ["/LR:DUEL.QRN"], ["/what"]))
        self.tell("start", *argument)
        with open(self.log, "ab") as log:
            self.process = subprocess.Popen([*self.desk.machine.runner, r"C:\QUIRN\QUIRN.exe", *argument],
                                            env=environment, cwd=ROOT, stdout=log, stderr=log)
        time.sleep(1)

    def windows(self):
        pids = self.user.processes("QUIRN.exe")
        return [w for w in self.user.ask("windows")["windows"] if w["pid"] in pids]

    def act(self):
        # What waits behind a box can be pressed by nobody.
        windows = [w for w in self.windows() if w["enabled"]]
        deeds = [self.key, self.key, self.combination, self.click, self.click, self.button, self.button, self.command,
                 self.file_name, self.drop, self.size, self.second_copy, self.end_game, self.tray]
        if not windows:
            return self.show() if self.user.processes("QUIRN.exe") else None
        self.random.choice(deeds)(self.random.choice(windows[:3]))
        return None

    def controls(self, window):
        answer = self.user.ask("controls", window["handle"])
        return [c for c in (answer or {"controls": []})["controls"] if c["visible"] and c["enabled"]]

    def key(self, window):
        controls = self.controls(window)
        target = self.random.choice(controls)["handle"] if controls else window["handle"]
        key = self.random.choice(KEYS)
        self.tell("key", key, "to", window["caption"])
        self.user.ask("post", target, WM_KEYDOWN, key, 1)
        self.user.ask("post", target, WM_KEYUP, key, 0xC0000001)

    def combination(self, window):
        keys = self.random.choice(COMBINATIONS)
        self.tell("press", keys)
        subprocess.run(["xdotool", "key", keys], env=self.desk.screen.environment, check=False)

    def click(self, window):
        left, top, right, bottom = window["rect"]
        x, y = (max(0, self.random.randint(low, max(low, high))) for low, high in ((left, right), (top, bottom)))
        self.tell("click", x, y, window["caption"])
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", self.random.choice("1113")],
                       env=self.desk.screen.environment, check=False)

    def button(self, window):
        buttons = [c["caption"].replace("&", "") for c in self.controls(window) if c["class"] == "Button"]
        if buttons:
            caption = self.random.choice(buttons)
            self.tell("button", caption, "in", window["caption"])
            self.press(window, caption)

    def file_name(self, _):
        """Fills the system's dialog for a file, when one is open, and mostly presses Open or Save."""
        dialogs = [w for w in self.windows() if w["enabled"] and w["caption"] in FILE_DIALOGS]
        boxes = [c for d in dialogs[:1] for c in self.controls(d) if c["class"] == "Edit"]
        if boxes:
            name = self.random.choice(NAMES)
            self.tell("name", name)
            for letter in name:
                self.user.ask("post", boxes[-1]["handle"], WM_CHAR, ord(letter), 1)
            self.press(dialogs[0], self.random.choice("112"))  # IDOK or IDCANCEL

    def press(self, window, button):
        """Then the dialog for a file may ask something. Nobody can press its Cancel behind that box; Wine's own dialog
        crashes when it is done, in its notepad too."""
        self.user.ask("press", window["handle"], button)
        if window["caption"] in FILE_DIALOGS:
            time.sleep(0.5)

    def command(self, window):
        if window["caption"].startswith(TITLE):
            command = self.random.choice(COMMANDS)
            self.tell("command", command)
            self.user.ask("post", window["handle"], WM_COMMAND, command, 0)

    def tray(self, _):
        main = [w for w in self.user.ask("windows", "all")["windows"]
                if w["caption"].startswith(TITLE) and w["pid"] in self.user.processes("QUIRN.exe")]
        if main:
            message = self.random.choice((RIGHT_DOWN, DOUBLE_CLICK))
            self.tell("tray", message)
            self.user.ask("post", main[0]["handle"], TRAY_MESSAGE, 0, message)

    def drop(self, window):
        name = self.random.choice(("DUEL.QRN", "LEAGUE.QRN", "gone.qrn"))
        self.tell("drop", name, window["caption"])
        self.user.ask("drop", window["handle"], "C:\\SubSpace\\Profiles\\" + name)

    def size(self, window):
        if not window["style"] & WS_MINIMIZEBOX:
            return
        how = self.random.choice((SC_MINIMIZE, SC_MAXIMIZE, SC_RESTORE, SC_RESTORE))
        self.tell("size", hex(how), window["caption"])
        self.user.ask("post", window["handle"], WM_SYSCOMMAND, how, 0)

    def second_copy(self, window):
        if self.random.random() < 0.2:
            self.show()

    def end_game(self, window):
        self.tell("the game ends")
        for pid in self.user.processes("subspace.exe"):
            self.user.ask("end", pid)

    def show(self, *_):
        """A second copy brings the first one's window back, or takes its place when that has just ended."""
        self.tell("second copy")
        copy = self.desk.machine.start(r"C:\QUIRN\QUIRN.exe")
        wait_for(lambda: self.copy_is_done(copy), 20, "the second copy's end")
        if copy.poll() is None and self.process.returncode == 0:
            self.process = copy

    def copy_is_done(self, copy):
        for window in self.windows():
            if (self.user.ask("message", window["handle"]) or {}).get("text") == "QUIRN is already running.":
                self.user.ask("press", window["handle"], "OK")
        return copy.poll() is not None or self.process.poll() is not None

    def check(self):
        """The program lives and answers, and some window of it can be used."""
        found = TROUBLE.search(self.log.read_text("latin-1"))
        assert not found, f"Wine tells: {found[0]}"
        if self.process.poll() is not None:
            assert self.process.returncode == 0, f"ended with {self.process.returncode}"
            return False
        for window in self.windows():
            # One that was found hung before is not waited for by the system, so it is asked again.
            wait_for(lambda w=window: self.user.ask("send", w["handle"], WM_NULL, 0, 0) or
                     w["handle"] not in [other["handle"] for other in self.windows()],
                     5, f"an answer of '{window['caption']}'")
        wait_for(lambda: not (open_ones := self.windows()) or any(w["enabled"] for w in open_ones), 5,
                 "a window that can be used")
        return True

    def leave(self):
        """Every dialog is cancelled, then Exit; the process must end soon after the last box that asked something."""
        end, exits = time.monotonic() + 60, None
        while self.process.poll() is None:
            assert time.monotonic() < min(end, exits or end), f"does not end; there are {self.windows()}"
            self.end_game(None)
            for window in self.windows():
                if window["class"] == "ComboLBox":  # goes with its box, which crashes without it
                    continue
                if window["class"] == "#32770" and self.user.ask("press", window["handle"], "No"):
                    exits = None
                    continue
                main = window["caption"].startswith(TITLE)
                if main and window["enabled"]:
                    exits = exits or time.monotonic() + 10
                self.user.ask("post", window["handle"], *((WM_COMMAND, 18, 0) if main else (WM_CLOSE, 0, 0)))
            if not self.windows():
                self.show()
            time.sleep(0.3)

    def play(self):
        self.start()
        done = 0
        while done < ACTIONS and self.check():
            self.act()
            done += 1
            time.sleep(self.random.choice((0, 0.02, 0.1)))
        self.leave()
        self.check()
        return done


def test_whatever_is_pressed_nothing_breaks(desk):
    end = time.monotonic() + 60 * MINUTES
    actions, seed = 0, FIRST_SEED
    while time.monotonic() < end:
        desk.reset(f"random {seed}")
        run = Chance(desk, seed)
        run.log.unlink(missing_ok=True)
        try:
            actions += run.play()
        except Exception as failure:
            desk.screenshot("when it failed")
            raise AssertionError(f"seed {seed}: {failure}\n" + "\n".join(run.told[-30:])) from failure
        seed += 1
    print(f"{actions} actions in {seed - FIRST_SEED} runs")
