"""The log editor in the shipped program: the player's way through a log, and what he finds in the file afterwards."""
import os

from machine import wait_for
from player import Player, start

(OPEN, MRU, CLOSE, LINE_NUMBERS) = (2, 5, 11, 18)
FOLLOW, COLORS, SEVERAL = 50, 51, 52
LOG_UTILITY, EXIT = 21, 18
WM_COMMAND, LB_GETTOPINDEX = 273, 398
WM_SYSCOMMAND, SC_MAXIMIZE = 274, 0xF030
FULL_TITLE = "The Vellick Subspace Manager"


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

    def type_filter(self, text):
        self.keys("ctrl+shift+f")
        self.type(text)

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


def test_a_log_is_filtered_trimmed_saved_and_opened_again(desk):
    lines = ["  Øyvind> one", "T bob> two", "  Ann(25)(100) killed by: bob", "E Ann> three", "  Welcome", "P Cid> four",
             "  Ann> five", "C 2:Ann> six", "  Cid> seven", "  Ann> eight"]
    desk.file("monday.log").write_bytes("".join(line + "\r\n" for line in [*lines, ""]).encode("cp1252"))
    editor = LogEditor(desk)
    editor.open(r"C:\SubSpace\monday.log")
    assert editor.title() == FULL_TITLE + " - monday.log"
    assert editor.shown() == lines
    assert editor.items(editor.list("Include")) == ["Ann", "bob", "Cid", "Øyvind"]
    assert editor.count() == "Log Lines = 10"
    desk.screenshot("opened")

    editor.click_item("Include", 1)
    editor.click_item("Include", 3, "ctrl")
    assert editor.selected(editor.list("Include")) == ["bob", "Øyvind"]
    editor.click(editor.find(">>", "Button"))
    assert editor.items(editor.list("Exclude")) == ["bob", "Øyvind"]
    for box in ("Kill messages", "Team messages", "System messages"):
        editor.click(editor.find(box, "Button"))
    assert editor.shown() == lines, "the filter is not applied yet"
    editor.click(editor.find("Apply Filter", "Button"))
    left = [4, 6, 7, 8, 9, 10]
    assert editor.shown() == [lines[number - 1] for number in left]

    editor.command(LINE_NUMBERS)
    tagged = [f"{{{number:02}}} {lines[number - 1]}" for number in left]
    wait_for(lambda: editor.shown() == tagged, what="line numbers")
    editor.click_item("Log", 1)
    editor.click_item("Log", 3, "shift")
    editor.keys("Delete")
    del tagged[1:4]
    wait_for(lambda: editor.count() == "Log Lines = 3", what="the deletion")
    desk.screenshot("trimmed")

    editor.keys("ctrl+s")
    assert editor.in_file_dialog("Save As", r"C:\SubSpace\short.log") == "save.log"
    editor.expect_status("File has been saved")
    saved = "\r\n".join(["[~ Filtered by QUIRN v1.61 ~]", *tagged, ""])
    assert desk.file("short.log").read_bytes() == saved.encode("cp1252")

    editor.command(MRU)
    wait_for(lambda: editor.title() == FULL_TITLE + " - short.log", what="the saved log")
    assert editor.shown() == ["{1} E Ann> three", "{2}   Cid> seven", "{3}   Ann> eight"]
    editor.command(CLOSE)
    editor.gone()
    settings = desk.own_settings()
    assert settings[r"MRUList\LogMRU0"] == ("REG_SZ", r"C:\SubSpace\short.log")
    assert settings[r"MRUList\LogMRU1"] == ("REG_SZ", r"C:\SubSpace\monday.log")


def test_the_find_dialog_searches_and_closes_with_the_editor(desk):
    lines = [f"  Ann> line {i}" for i in range(200)]
    lines[60] = lines[120] = "  Bob> here"
    desk.file("long.log").write_text("\r\n".join(lines) + "\r\n", newline="")
    editor = LogEditor(desk)
    editor.user.ask("drop", editor.handle, r"C:\SubSpace\long.log")
    editor.expect_status("Log file has been loaded")
    editor.keys("ctrl+f")
    find = editor.dialog("Find")
    find.front()
    find.type("BOB")
    log = editor.list("Log")["handle"]
    top = lambda: editor.user.ask("send", log, LB_GETTOPINDEX, 0, 0)["result"]
    for place in (60, 120):
        find.keys("Return")
        wait_for(lambda: top() == place, what=f"line {place}")
    editor.front()
    editor.keys("ctrl+f")  # the dialog that is open, all of its text selected
    find.type("Bob")
    find.keys("alt+f")
    editor.quirn.expect("Cannot find 'Bob'")
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


def test_the_window_has_a_smallest_size_and_an_end_with_the_program(desk):
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

    # What is kept is the size to which a maximised window would come back.
    editor.user.ask("post", editor.handle, WM_SYSCOMMAND, SC_MAXIMIZE, 0)
    wait_for(lambda: editor.window()["rect"][2] - editor.window()["rect"][0] > 1000, what="the whole screen")
    desk.screenshot("whole screen")
    editor.main.quirn.choose(EXIT)
    assert editor.quirn.ended() == 0
    settings = desk.own_settings()
    assert settings[r"Settings\LogEditHeight"] == ("REG_SZ", str(540 * 15))
    assert settings[r"Settings\LogEditWidth"] == ("REG_SZ", str(730 * 15))


def test_a_growing_log_is_followed_and_a_word_found_in_it(desk):
    log = desk.file("today.log")
    log.write_bytes(b"  Ann> one\r\n  bob> two\r\n")
    editor = LogEditor(desk)
    editor.open(r"C:\SubSpace\today.log")
    editor.command(FOLLOW)
    said = lambda text: any(c["caption"] == text for c in editor.of_class("Static"))  # noqa: E731
    wait_for(lambda: said("Following"), what="the words in the strip")

    # Another program writes: line by line, in bursts, and half a line; it is never locked out.
    with log.open("ab") as file:
        expected = ["  Ann> one", "  bob> two"]
        for burst in (1, 2, 30, 1):
            for _ in range(burst):
                expected.append(f"  Cid> line {len(expected)}")
                file.write(expected[-1].encode() + b"\r\n")
            file.flush()
            wait_for(lambda: editor.shown() == expected, what=f"{len(expected)} lines")
        file.write(b"T Ann> half")
        file.flush()
        editor.type_filter("ann -two")
        wait_for(lambda: editor.shown() == ["  Ann> one"], what="the filtered lines")
        wait_for(lambda: said("1 of 36 lines"), what="the counts")
        file.write(b" a line\r\n")
    wait_for(lambda: editor.shown() == ["  Ann> one", "T Ann> half a line"], what="the whole line")
    desk.screenshot("following")

    # Deleted by the keyboard, and back; the file is what it was.
    before = log.read_bytes()
    editor.keys("Down", "ctrl+a", "Delete")
    wait_for(lambda: editor.count() == "Log Lines = 0", what="the deletion")
    editor.keys("ctrl+z")
    wait_for(lambda: editor.count() == "Log Lines = 2", what="the undo")
    assert log.read_bytes() == before

    log.write_bytes(b"  Ann> anew\r\n")
    wait_for(lambda: editor.shown() == ["  Ann> anew"], what="the shorter file")
    log.unlink()
    wait_for(lambda: said("Not followed: the file is gone"), what="the end")
    editor.keys("alt+F4")
    editor.gone()


def press_button(editor, caption):
    """In whichever box has such a button, the dialog to save left out."""
    for window in editor.quirn.windows():
        buttons = [c for c in editor.user.ask("controls", window["handle"])["controls"] if c["visible"]]
        if len(buttons) < 6 and any(c["caption"].replace("&", "") == caption for c in buttons):
            return editor.user.ask("press", window["handle"], caption)
    return False


def test_several_logs_are_shown_as_one(desk):
    logs = {"monday.log": b"  Ann> one\r\n  bob> two\r\n", "tuesday.log": b"T Cid> three\r\n  Ann> no end",
            "friday.log": b"  bob> five\r\n"}
    for day, (name, text) in enumerate(logs.items()):
        desk.file(name).write_bytes(text)
        os.utime(desk.file(name), (1_000_000_000 + day * 86_400,) * 2)
    all_lines = ["  Ann> one", "  bob> two", "T Cid> three", "  Ann> no end", "  bob> five"]
    editor = LogEditor(desk)
    editor.command(SEVERAL)
    editor.in_file_dialog("Open Several", '"friday.log" "monday.log" "tuesday.log"')
    editor.expect_status("Log file has been loaded")
    assert editor.title() == FULL_TITLE + " - monday.log to friday.log"
    assert editor.shown() == all_lines
    assert editor.items(editor.list("Include")) == ["Ann", "bob", "Cid"]
    named = lambda text: wait_for(lambda: [c for c in editor.of_class("Static") if c["caption"] == text],  # noqa: E731
                                  what=text)
    named("monday.log")
    editor.click_item("Log", 3)
    named("tuesday.log")
    editor.keys("ctrl+Next")
    named("friday.log")
    editor.keys("ctrl+Prior")
    named("tuesday.log")
    desk.screenshot("several")

    editor.command(FOLLOW)
    with desk.file("friday.log").open("ab") as file:
        file.write(b"  Ann> six\r\n")
    wait_for(lambda: editor.shown() == [*all_lines, "  Ann> six"], what="the new line of the last log")
    editor.keys("ctrl+s")
    save = editor.dialog("Save As")
    save.front()
    save.keys("Home", "shift+End")
    save.type(r"C:\SubSpace\monday.log")
    save.keys("Return")
    wait_for(lambda: press_button(editor, "Yes"), what="the system's own question")
    wait_for(lambda: press_button(editor, "Cancel"), what="QUIRN's question")
    assert desk.file("monday.log").read_bytes() == logs["monday.log"]
    editor.user.ask("drop", editor.handle, r"C:\SubSpace\friday.log", r"C:\SubSpace\monday.log")
    wait_for(lambda: editor.title().endswith("monday.log to friday.log"), what="the title")
    wait_for(lambda: editor.shown() == ["  Ann> one", "  bob> two", "  bob> five", "  Ann> six"], what="two logs")
