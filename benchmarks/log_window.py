"""The log editor's window on a big log, in the program as it ships: what the player waits for.

    log_window.py LOG [ROUNDS]      in a Wine prefix and on a display of its own, with the journeys' test user

Prints medians in milliseconds and the memory that the program takes. Times are taken from outside, so they include a
millisecond or two for asking; a changed picture counts when the list has painted it.
"""
import pathlib
import statistics
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests/journeys"))
import conftest  # noqa: E402  (found by the line above)
from player import Player  # noqa: E402

WM_PAINT, WM_KEYDOWN, WM_COMMAND, BM_CLICK = 15, 256, 273, 245
WM_LBUTTONDOWN, WM_LBUTTONUP, MK_SHIFT, VK_DELETE = 513, 514, 4, 46
LB_GETCOUNT, LB_SETTOPINDEX, LB_GETSELCOUNT, LB_GETSEL = 395, 407, 400, 391
LOG_UTILITY, LINE_NUMBERS, UNDO = 21, 18, 30
DELETED = 200_000


class Window:
    def __init__(self, desk, log):
        self.desk, self.log, self.user = desk, log, desk.user
        self.quirn = desk.start()
        Player(self.quirn)
        self.quirn.choose(LOG_UTILITY)
        self.player = Player(self.quirn, self.quirn.window("The Vellick")["handle"])
        conftest.wait_for(lambda: self.player.of_class("ListBox"), what="the lists")
        self.player.front()
        self.list = next(c for c in self.player.of_class("ListBox") if c["caption"] == "Log")["handle"]

    def send(self, window, message, first=0, second=0):
        answer = self.user.ask("send", window, message, first, second)
        assert answer, f"message {message} was not answered"
        return answer["result"]

    def count(self):
        return self.send(self.list, LB_GETCOUNT)

    def timed(self, act, done):
        """Milliseconds from the act until the list has painted what came of it."""
        start = time.perf_counter()
        act()
        while not done():
            assert time.perf_counter() - start < 60, "it takes too long"
        self.send(self.list, WM_PAINT)
        return (time.perf_counter() - start) * 1000

    def open(self):
        def loaded():
            # A program that reads answers nobody: ask only its bar, and wait for that.
            answer = self.user.ask("send", self.list, LB_GETCOUNT, 0, 0)
            return bool(answer and answer["result"])
        return self.timed(lambda: self.user.ask("drop", self.player.handle, self.log), loaded)

    def click(self, caption):
        self.send(self.player.find(caption)["handle"], BM_CLICK)

    def filter(self):
        """Kills go or come back: the box is ticked before, the button is what takes time."""
        before = self.count()
        self.click("Kill messages")
        button = self.player.find("Apply Filter")["handle"]
        return self.timed(lambda: self.send(button, BM_CLICK), lambda: self.count() != before)

    def number_lines(self):
        return self.timed(lambda: self.send(self.player.handle, WM_COMMAND, LINE_NUMBERS), lambda: True)

    def select_all(self):
        self.click_at(0)
        count = self.count()
        self.player.xdo("keydown", "ctrl")
        try:
            return self.timed(lambda: self.user.ask("post", self.list, WM_KEYDOWN, ord("A"), 0),
                              lambda: self.send(self.list, LB_GETSELCOUNT) == count)
        finally:
            self.player.xdo("keyup", "ctrl")

    def click_at(self, item, keys=0):
        self.send(self.list, LB_SETTOPINDEX, item)
        for message in (WM_LBUTTONDOWN, WM_LBUTTONUP):
            self.send(self.list, message, keys, 2 << 16 | 5)

    def delete(self):
        def selected():
            # The pointer itself, should it move while a click is acted, leads the selection elsewhere.
            self.click_at(0)
            self.click_at(DELETED - 1, MK_SHIFT)
            return self.send(self.list, LB_GETSELCOUNT) == DELETED

        conftest.wait_for(selected, what="the selection")
        before = self.count()
        took = self.timed(lambda: self.user.ask("post", self.list, WM_KEYDOWN, VK_DELETE, 0),
                          lambda: self.count() != before)
        assert self.count() == before - DELETED
        return took

    def undo(self):
        before = self.count()
        return self.timed(lambda: self.send(self.player.handle, WM_COMMAND, UNDO), lambda: self.count() != before)

    def undo_single_lines(self):
        """All kills are deleted, which stand here and there, and come back among the others."""
        before = self.count()
        words = self.player.of_class("Edit")[0]
        self.player.replace(words, "killed")
        conftest.wait_for(lambda: self.count() != before, what="the filter")
        self.player.keys("Down")
        self.select_all()
        self.user.ask("post", self.list, WM_KEYDOWN, VK_DELETE, 0)
        conftest.wait_for(lambda: self.count() == 0, what="the deletion")
        self.player.replace(words, "")
        conftest.wait_for(lambda: self.count() != 0, what="the other lines")
        self.single_lines = before - self.count()
        took = self.undo()
        assert self.count() == before and self.send(self.list, LB_GETSELCOUNT) == self.single_lines
        return took

    def memory(self):
        """Megabytes: now, and the most so far."""
        lines = pathlib.Path(f"/proc/{self.quirn.process.pid}/status").read_text().splitlines()
        values = dict(line.split(":", 1) for line in lines)
        return [int(values[key].split()[0]) / 1024 for key in ("VmRSS", "VmHWM")]


def main(log, rounds):
    root = conftest.ROOT
    folder = root / "build/bench-window"
    screen = conftest.Screen(folder / "icewm")
    bits = 32 if conftest.is_32_bit(conftest.EXE) else 64
    machine = conftest.Machine(screen, bits, root / f"build/wine/window{bits}")
    user = conftest.User(machine, conftest.EXE.parent / "tests/user.exe")
    desk = conftest.Desk(screen, machine, user)
    try:
        desk.reset("log window")
        target = desk.file("big.log")
        target.symlink_to(pathlib.Path(log).resolve())
        times = {what: [] for what in ("open", "filter", "line numbers", "select all", "delete", "undo", "undo singles")}
        memory = []
        for _ in range(rounds):
            window = Window(desk, "C:\\SubSpace\\big.log")
            empty, _ = window.memory()
            times["open"].append(window.open())
            lines = window.count()
            memory.append([empty, *window.memory()])
            times["filter"] += [window.filter() for _ in range(4)]
            times["line numbers"] += [window.number_lines() for _ in range(2)]
            times["select all"] += [window.select_all() for _ in range(3)]
            times["delete"].append(window.delete())
            times["undo"].append(window.undo())
            times["undo singles"].append(window.undo_single_lines())
            screen.shoot(folder / "log-window.png")
            desk.end_all()
        print(f"{lines} lines shown; {rounds} rounds; {window.single_lines} singles")
        for what, taken in times.items():
            print(f"{what:13} {statistics.median(taken):8.1f} ms  ({min(taken):.1f} to {max(taken):.1f})")
        for what, values in zip(("empty", "with the log", "at most"), zip(*memory)):
            print(f"memory {what:13} {statistics.median(values):8.1f} MB")
    finally:
        desk.end_all()
        user.stop()
        machine.stop()
        screen.stop()


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    main(sys.argv[1], int(sys.argv[2]) if len(sys.argv) > 2 else 5)
