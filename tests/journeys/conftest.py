"""What every journey needs: a display with a window manager, a Wine prefix with the demo game in it, and a user.

Set by the environment:
  QUIRN_EXE      the program under test (default: build/win64/QUIRN.exe); user.exe and the stand-in game of the same
                 build lie in tests/ and demo/ beside it
  QUIRN_WINE32   runs a 32-bit Windows program; needed when that program is a 32-bit one
"""
import configparser
import contextlib
import fcntl
import os
import pathlib
import re
import shutil
import subprocess

import pytest

from catalogue import GROUPS
from machine import ROOT, Machine, Screen, User, is_32_bit, wait_for

EXE = pathlib.Path(os.environ.get("QUIRN_EXE", ROOT / "build/win64/QUIRN.exe")).resolve()
GAME_KEY = r"HKEY_CURRENT_USER\Software\Virgin\SubSpace"
OWN_KEY = r"HKEY_CURRENT_USER\Software\QUIRN"
TITLE = "QUIRN v1.61"
WM_CLOSE, WM_COMMAND = 16, 273
EXIT = 18  # File, Exit as the menu sends it


class Box:
    """A message box on the screen."""

    def __init__(self, user, handle):
        self.user, self.handle = user, handle
        wait_for(lambda: [c for c in user.ask("controls", handle)["controls"]
                          if c["class"] == "Button" and c["visible"]], what="the box's buttons")
        answer = user.ask("message", handle)
        self.caption, self.text = answer["caption"], answer["text"]

    def press(self, button="OK"):
        assert self.user.ask("press", self.handle, button)
        wait_for(lambda: self.handle not in [w["handle"] for w in self.user.ask("windows")["windows"]],
                 what="the box's end")


class Quirn:
    """One started copy of the program."""

    def __init__(self, desk, arguments, folder=None):
        self.desk = desk
        before = desk.user.processes("QUIRN.exe")
        self.process = desk.machine.start(r"C:\QUIRN\QUIRN.exe", *arguments, folder=folder)
        new = lambda: [p for p in desk.user.processes("QUIRN.exe") if p not in before] or [self.process.poll()]
        self.pid = wait_for(lambda: (new()[0] is not None) and new(), 15, "the process")[0]

    def window(self, caption="", kind="", seconds=10):
        window = self.desk.user.ask("wait", kind, caption, self.pid, int(seconds * 1000))
        assert window, f"no window '{caption}' of class '{kind}'; there are {self.windows()}"
        return window

    def windows(self):
        return [w for w in self.desk.user.ask("windows")["windows"] if w["pid"] == self.pid]

    def box(self, seconds=10):
        box = Box(self.desk.user, self.window(kind="#32770", seconds=seconds)["handle"])
        self.desk.screenshot(box.text)
        return box

    def expect(self, text, caption="QUIRN", button="OK", seconds=10):
        """The next message box says exactly this; presses its button."""
        box = self.box(seconds)
        assert (box.text, box.caption) == (text, caption)
        box.press(button)

    def main_window(self, seconds=10):
        return self.window(TITLE, seconds=seconds)

    def choose(self, command):
        """What the menu bar does when the item with this number is chosen."""
        assert self.desk.user.ask("post", self.main_window()["handle"], WM_COMMAND, command, 0)

    def close(self):
        self.choose(EXIT)
        assert self.ended() == 0

    def ended(self, seconds=10):
        """Its exit code, once it has ended by itself."""
        try:
            return self.process.wait(seconds)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"still running with {self.windows()}") from None

    def processor_seconds(self):
        fields = pathlib.Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


class Desk:
    """What a journey works with."""

    def __init__(self, screen, machine, user):
        self.screen, self.machine, self.user = screen, machine, user
        self.name, self.shots = "", 0
        self.started = []

    def reset(self, name):
        """The demo as it is on the first day: no program running, game folder, profiles and registry new."""
        self.name, self.shots = name, 0
        self.end_all()
        self.machine.prepare(EXE.parent)

    def end_all(self):
        self.user.ask("release")
        for pid in self.user.processes("QUIRN.exe", "subspace.exe"):
            self.user.ask("end", pid)
        for quirn in self.started:
            quirn.process.wait(10)
        self.started = []

    def start(self, *arguments, folder=None):
        self.started.append(Quirn(self, arguments, folder))
        return self.started[-1]

    def screenshot(self, what):
        self.shots += 1
        words = re.sub(r"[^A-Za-z0-9]+", "-", what)[:50].strip("-")
        self.screen.shoot(ROOT / "build/journeys" / EXE.parent.name / f"{self.name}-{self.shots}-{words}.png")

    def file(self, name):
        return self.machine.path("C:\\SubSpace\\" + name)

    def registry(self):
        return self.machine.export_registry(GAME_KEY)

    def own_settings(self):
        return self.machine.export_registry(OWN_KEY)

    def game_report(self, seconds=15):
        """What the stand-in game found: {"Folder": ..., "Dialog.PlayerName (1)": ...}."""
        report = self.file("started.txt")
        wait_for(report.exists, seconds, "the game's start")
        lines = report.read_bytes().decode("cp1252").split("\r\n")
        return dict(line.split(" = ", 1) for line in lines if line)

    def hang_game(self):
        """In the game's place, a program that shows no window of the game's class."""
        shutil.copy(self.machine.path("C:\\windows\\system32\\notepad.exe"), self.file("subspace.exe"))

    def close_game(self):
        window = self.user.ask("wait", "SubSpaceClass", "", 0, 10000)
        assert window
        self.user.ask("post", window["handle"], WM_CLOSE, 0, 0)

    def folder_state(self):
        """Every file below the game folder with its bytes, the profiles that a journey makes left out."""
        game = self.file("")
        return {str(f.relative_to(game)): f.read_bytes() for f in game.rglob("*")
                if f.is_file() and f.relative_to(game).parts[0] != "Profiles"}


class Profile:
    """A QRN file as a reader sees it that is not ours."""

    def __init__(self, path):
        parser = configparser.ConfigParser(strict=False, interpolation=None, delimiters=("=",),
                                           comment_prefixes=(";",))
        parser.optionxform = str
        with open(path, encoding="cp1252", newline="") as file:
            parser.read_string(file.read().replace("\r\n", "\n"))
        self.sections = {name: {k: self.unquoted(v) for k, v in parser[name].items()} for name in parser.sections()}

    @staticmethod
    def unquoted(text):
        return text[1:-1] if len(text) > 1 and text[0] == text[-1] and text[0] in "\"'" else text

    def settings(self):
        return {(group, name): self.sections[group][name] for group, names in GROUPS.items() for name in names}

    def ignored(self):
        names = []
        while value := self.sections["IgnoreList"].get(f"Ignore{len(names) + 1}"):
            names.append(value)
        return names


@pytest.fixture(scope="session")
def whole_desk(request):
    build = EXE.parent
    assert EXE.exists(), f"{EXE} has not been built"
    bits = 32 if is_32_bit(EXE) else 64
    # Sessions side by side (pytest -n) have a prefix and a display each.
    worker = getattr(request.config, "workerinput", {}).get("workerid", "")
    prefix = ROOT / f"build/wine/journeys{bits}{worker}"
    prefix.parent.mkdir(parents=True, exist_ok=True)
    # Two sessions in one prefix would end each other's programs.
    with contextlib.ExitStack() as stack, open(f"{prefix}.lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        screen = Screen(ROOT / f"build/journeys/icewm{bits}{worker}")
        stack.callback(screen.stop)
        machine = Machine(screen, bits, prefix)
        stack.callback(machine.stop)
        user = User(machine, build / "tests/user.exe")
        stack.callback(user.stop)
        yield Desk(screen, machine, user)


@pytest.fixture
def desk(whole_desk, request):
    whole_desk.reset(re.sub(r"[^A-Za-z0-9]+", "-", request.node.name))
    yield whole_desk
    if getattr(request.node, "failed", False):
        whole_desk.screenshot("when-it-failed")
    whole_desk.end_all()


@pytest.hookimpl(hookwrapper=True)
def pytest_runtest_makereport(item, call):
    outcome = yield
    item.failed = getattr(item, "failed", False) or outcome.get_result().failed
