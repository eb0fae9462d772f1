"""The log editor in the shipped program: the player's way through a log, and what he finds in the file afterwards."""
import re
import unicodedata

from machine import wait_for
from player import Player, start

(OPEN, SAVE_AS, MRU, CLOSE, APPLY, LINE_NUMBERS, FIND) = (2, 3, 5, 11, 17, 18, 20)
LOG_UTILITY, EXIT = 21, 18
WM_COMMAND, WM_PAINT, LB_GETCOUNT, LB_GETITEMDATA, LB_SETTOPINDEX, LB_GETTOPINDEX = 273, 15, 395, 409, 407, 398
WM_MENUSELECT, MF_HILITE = 287, 0x80
WM_SYSCOMMAND, SC_MAXIMIZE = 274, 0xF030
FULL_TITLE = "The Vellick Subspace Manager"
HEADER = b"[~ Filtered by QUIRN v1.61 ~]"


class LogEditor(Player):
    def __init__(self, desk):
        self.main = start(desk)
        self.main.quirn.choose(LOG_UTILITY)
        super().__init__(self.main.quirn, self.main.quirn.window(FULL_TITLE)["handle"])
        wait_for(lambda: self.of_class("msctls_statusbar32"), what="the controls")
        self.front()

    def command(self, number):
        assert self.user.ask("post", self.handle, WM_COMMAND, number, 0)

    def list(self, name):
        return next(c for c in self.of_class("ListBox") if c["caption"] == name)

    def shown(self):
        return self.items(self.list("Log"))

    def count(self):
        return self.user.ask("panel", self.of_class("msctls_statusbar32")[0]["handle"], 1)["text"]

    def open(self, path):
        self.command(OPEN)
        self.in_file_dialog("Open", path)
        self.expect_status("Log file has been loaded")

    def click_item(self, name, item, *held):
        """With real keys held."""
        control = self.list(name)
        top = self.user.ask("send", control["handle"], LB_GETTOPINDEX, 0, 0)["result"]
        height = 13 if name != "Log" else 15
        for key in held:
            self.xdo("keydown", key)
        self.point(control["rect"][0] + 20, control["rect"][1] + 6 + (item - top) * height)
        self.xdo("click", 1)
        for key in held:
            self.xdo("keyup", key)


def alphabetical(name):
    """Symbols, digits, letters; accents last."""
    letters = unicodedata.normalize("NFD", name.upper().replace("Ø", "O"))
    plain = [c for c in letters if not unicodedata.combining(c)]
    return [(c.isalnum() + c.isalpha(), c) for c in plain], name.upper()


def expected_lines(path, types, excluded):
    """Line number and line of what is shown, by the rules of the log format and not by the program's code."""
    lines, players, shown = [], {}, []
    for raw in path.read_bytes().split(b"\r\n"):
        if not raw.strip(b" ") or raw.startswith(b"[~"):
            continue
        if raw.startswith(b"{"):
            at = raw.find(b"} ")
            raw = raw[at + 2:] if at >= 0 else raw[1:]
        lines.append(raw)
    for number, line in enumerate(lines, 1):
        rest, kind = line[2:], {b"  ": "public", b"P ": "private", b"T ": "team", b"E ": "freq",
                                b"C ": "channel"}.get(line[:2], "unknown")
        speaker, found, message = rest.partition(b"> ")
        if kind == "channel":
            sent = rest.strip(b" ")
            digit = sent[:1] if sent[1:2] == b":" else message[:1] if message[1:2] == b";" else b""
            kind = "channel " + (digit.decode("latin-1") if digit in (b"2", b"3", b"4") and digit else "1")
        if b") killed by: " in rest:
            kind = "kill"
        name = b""
        if found:
            name = speaker.strip(b" ")
            if name.startswith(b"("):
                name, kind = name[1:-1], "squad"
            if name[1:2] == b":":
                name = name[2:]
            if not name.startswith(b":"):
                players.setdefault(name.decode("cp1252").upper(), name.decode("cp1252"))
        elif kind != "kill":
            kind = "system"
        if kind in types and name.decode("cp1252").upper() not in [n.upper() for n in excluded]:
            shown.append((number, line))
    return len(lines), shown, sorted(players.values(), key=alphabetical)


ALL = {"public", "private", "team", "freq", "channel 1", "channel 2", "channel 3", "channel 4", "squad", "kill",
       "system"}


def test_a_log_is_filtered_trimmed_saved_and_opened_again(desk):
    editor = LogEditor(desk)
    editor.open(r"C:\SubSpace\monday.log")
    total, shown, players = expected_lines(desk.file("monday.log"), ALL, [])
    text = lambda lines: [line.decode("cp1252") for _, line in lines]
    assert editor.title() == FULL_TITLE + " - monday.log"
    assert editor.shown() == text(shown)
    assert editor.items(editor.list("Include")) == players
    assert editor.count() == f"Log Lines = {len(shown)}"
    desk.screenshot("opened")

    editor.click_item("Include", 1)
    editor.click_item("Include", 3, "ctrl")
    out = [players[1], players[3]]
    assert editor.selected(editor.list("Include")) == out
    editor.click(editor.find(">>", "Button"))
    assert editor.items(editor.list("Exclude")) == out
    for box in ("Kill messages", "Team messages", "System messages"):
        editor.click(editor.find(box, "Button"))
    assert editor.shown() == text(shown), "the filter is not applied yet"
    editor.click(editor.find("Apply Filter", "Button"))
    left = ALL - {"kill", "team", "system"}
    _, shown, _ = expected_lines(desk.file("monday.log"), left, out)
    assert editor.shown() == text(shown) and shown

    editor.command(LINE_NUMBERS)
    tag = lambda number: b"{%0*d} " % (len(str(total)), number)
    tagged = [tag(number) + line for number, line in shown]
    wait_for(lambda: editor.shown() == [line.decode("cp1252") for line in tagged], what="line numbers")
    editor.click_item("Log", 1)
    editor.click_item("Log", 3, "shift")
    editor.keys("Delete")
    del tagged[1:4]
    del shown[1:4]
    wait_for(lambda: editor.count() == f"Log Lines = {len(tagged)}", what="the deletion")
    desk.screenshot("trimmed")

    editor.keys("ctrl+s")
    assert editor.in_file_dialog("Save As", r"C:\SubSpace\short.log") == "save.log"
    editor.expect_status("File has been saved")
    assert desk.file("short.log").read_bytes() == b"".join(line + b"\r\n" for line in [HEADER, *tagged])

    editor.command(LINE_NUMBERS)
    editor.command(MRU)
    wait_for(lambda: editor.title() == FULL_TITLE + " - short.log", what="the saved log")
    editor.click(editor.find("Team messages", "Button"))
    assert editor.shown() == text(shown)
    editor.command(CLOSE)
    editor.gone()
    settings = desk.own_settings()
    assert settings[r"MRUList\LogMRU0"] == ("REG_SZ", r"C:\SubSpace\short.log")
    assert settings[r"MRUList\LogMRU1"] == ("REG_SZ", r"C:\SubSpace\monday.log")
    assert settings[r"Settings\LogEditFontName"] == ("REG_SZ", "Courier New")
    assert re.fullmatch(r"\d+", settings[r"Settings\LogEditWidth"][1])


def test_the_find_dialog_walks_down_the_log_and_says_when_it_cannot(desk):
    lines = [f"  Ann> line {i}" for i in range(200)]
    lines[60] = lines[120] = "  Bob> here"
    desk.file("long.log").write_text("\r\n".join(lines) + "\r\n", newline="")
    editor = LogEditor(desk)
    editor.user.ask("drop", editor.handle, r"C:\SubSpace\long.log")
    editor.expect_status("Log file has been loaded")
    editor.keys("ctrl+f")
    find = editor.dialog("Find")
    find.front()
    assert not find.find("Find Next")["enabled"]
    find.type("BOB")
    log = editor.list("Log")["handle"]
    top = lambda: editor.user.ask("send", log, LB_GETTOPINDEX, 0, 0)["result"]
    for place in (60, 120):
        find.keys("Return")
        wait_for(lambda: top() == place, what=f"line {place}")
    desk.screenshot("found")
    editor.front()
    editor.keys("ctrl+f")  # the dialog that is open, all of its text selected
    find.type("Bob")
    find.keys("alt+f")
    editor.quirn.expect("Cannot find 'Bob'", "information")
    assert top() == 120
    find.front()
    find.keys("Escape")
    find.gone()
    editor.front()
    editor.user.ask("send", log, LB_SETTOPINDEX, 0, 0)
    editor.keys("F3")
    wait_for(lambda: top() == 60, what="the first one again")
    editor.keys("ctrl+f")
    editor.dialog("Find")
    editor.command(CLOSE)
    editor.gone()
    wait_for(lambda: not [w for w in editor.quirn.windows() if w["caption"] == "Find"], what="the dialog's end")


def test_the_program_can_end_while_a_missing_log_is_told_of(desk):
    editor = LogEditor(desk)
    editor.user.ask("drop", editor.handle, r"C:\SubSpace\gone.log")
    box = editor.quirn.box()
    assert box.text == r"ERROR - Could not find log file named 'C:\SubSpace\gone.log'"
    editor.quirn.choose(EXIT)
    assert editor.quirn.ended() == 0


def test_the_window_has_a_smallest_size_help_and_an_end_with_the_program(desk):
    editor = LogEditor(desk)
    window = editor.window()
    editor.user.ask("place", editor.handle, 50, 60, 300, 200)
    wait_for(lambda: editor.window()["rect"] != window["rect"], what="another size")
    l, t, r, b = editor.window()["rect"]
    assert (r - l, b - t) == (730, 540)
    desk.screenshot("smallest")
    for control in editor.controls():
        cl, ct, cr, cb = control["rect"]
        assert l <= cl and t <= ct and cr <= r and cb <= b, f"{control['caption']} is cut off"

    for number, text in ((OPEN, "Opens an existing log file"), (FIND, "Find text within the log"), (4, "")):
        editor.user.ask("send", editor.handle, WM_MENUSELECT, MF_HILITE << 16 | number, 1)
        assert editor.status() == text
    editor.user.ask("send", editor.handle, WM_MENUSELECT, (MF_HILITE | 0x2000) << 16 | 0xF060, 1)
    assert editor.status() == "Close this window"

    editor.command(OPEN)
    editor.in_file_dialog("Open", r"C:\SubSpace\nobody.log")
    editor.quirn.expect(r"ERROR - Could not find log file named 'C:\SubSpace\nobody.log'", "critical")
    editor.expect_status("ERROR loading log file")

    # What is kept is the size to which a maximised window would come back.
    editor.user.ask("post", editor.handle, WM_SYSCOMMAND, SC_MAXIMIZE, 0)
    wait_for(lambda: editor.window()["rect"][2] - editor.window()["rect"][0] > 1000, what="the whole screen")
    desk.screenshot("whole screen")
    editor.main.quirn.choose(EXIT)
    assert editor.quirn.ended() == 0
    settings = desk.own_settings()
    assert settings[r"Settings\LogEditHeight"] == ("REG_SZ", str(540 * 15))
    assert settings[r"Settings\LogEditWidth"] == ("REG_SZ", str(730 * 15))
