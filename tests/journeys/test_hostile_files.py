"""Files that are no good profile: no crash, the message that fits, nothing else changed."""
import random

import pytest

from catalogue import SZ
from test_messages import NOT_FOUND, NOT_VALID, PROFILES

VERSION = b"[QUIRN]\r\nVersion=1.61\r\n"


def rejected(desk, name, message):
    before = desk.registry(), desk.folder_state(), desk.own_settings()
    quirn = desk.start("/LR:" + name)
    box = quirn.box(seconds=60)
    assert (box.text, box.icon) == (message.format(PROFILES + name), "critical")
    box.press()
    quirn.main_window()
    assert (desk.registry(), desk.folder_state(), desk.own_settings()) == before
    quirn.close()


NO_PROFILE = {
    "EMPTY.QRN": b"",
    "BINARY.QRN": random.Random(161).randbytes(200_000).replace(b"[", b"("),
    "LINE.QRN": b"x" * 5_000_000,
    "NOEND.QRN": VERSION + b"[Dialog\r\nPlayerName=Mole\r\n",
    "NULS.QRN": b"\0" * 4096,
}


@pytest.mark.parametrize("name", NO_PROFILE)
def test_no_profile_at_all(desk, name):
    desk.file("Profiles/" + name).write_bytes(NO_PROFILE[name])
    rejected(desk, name, NOT_VALID)


def test_a_folder_of_that_name(desk):
    desk.file("Profiles/FOLDER.QRN").mkdir()
    rejected(desk, "FOLDER.QRN", NOT_FOUND)


def test_a_pattern_that_fits_a_file(desk):
    rejected(desk, "DUE?.QRN", NOT_VALID)  # a search finds it, so it exists, but it cannot be read


def test_a_file_that_another_program_holds(desk):
    assert desk.user.ask("hold", PROFILES + "DUEL.QRN")
    before = desk.file("Profiles/DUEL.QRN").read_bytes()
    rejected(desk, "DUEL.QRN", NOT_VALID)
    desk.user.ask("release")
    assert desk.file("Profiles/DUEL.QRN").read_bytes() == before


TOO_MUCH = {
    # A value longer than the reader's buffer comes back as its first 254 bytes.
    "LONG.QRN": (b"PlayerName=" + b"n" * 10_000 + b"\r\n", "n" * 254),
    "MANY.QRN": (b"PlayerName=First\r\n" + b"".join(b"Key%d=value\r\n" % i for i in range(70_000)), "First"),
    "NULKEYS.QRN": (b"PlayerName=Bo\0Bo\r\nServer\0Name=x\r\n", "Bo"),
}


@pytest.mark.parametrize("name", TOO_MUCH)
def test_too_much_of_everything(desk, name):
    content, player = TOO_MUCH[name]
    desk.file("Profiles/" + name).write_bytes(VERSION + b"[Dialog]\r\n" + content + b"[Advanced]\r\nSkipSplash=1\r\n")
    assert desk.start("/LR:" + name).ended(90) == 0
    assert desk.registry()[r"Dialog\PlayerName"] == (SZ, player)
    assert desk.registry()[r"Dialog\ServerName"] == (SZ, "0")
