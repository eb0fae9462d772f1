"""Messages of start-up and loading, read from their real boxes, and what a start does after them."""
import random

from catalogue import SZ

NOT_FOUND = "ERROR - Could not find profile named '{}'"
NOT_VALID = "ERROR - The file '{}' is not a valid QRN file."
EARLIER = ("WARNING - The file '{}' was created with an earlier version.\r"
           "It is recommended that you review the settings and re-save the file.")
NO_ZONES = "Cannot find FAVORITE.LST, make sure the location of the subspace.exe is set correctly."
PROFILES = "C:\\SubSpace\\Profiles\\"
VERSION = b"[QUIRN]\r\nVersion=1.61\r\n"


def test_a_start_goes_on_after_words_and_files_that_are_no_good(desk):
    files = {
        "EMPTY.QRN": b"",
        "BINARY.QRN": random.Random(161).randbytes(200_000).replace(b"[", b"("),
        "LINE.QRN": b"x" * 5_000_000,
        "NOEND.QRN": VERSION + b"[Dialog\r\nPlayerName=Mole\r\n",
        "NULS.QRN": b"\0" * 4096,
    }
    for name, content in files.items():
        desk.file("Profiles/" + name).write_bytes(content)
    desk.file("Profiles/FOLDER.QRN").mkdir()
    assert desk.user.ask("hold", PROFILES + "DUEL.QRN")
    before = desk.registry(), desk.folder_state(), desk.own_settings()
    # A search finds the pattern, so it exists, but it cannot be read.
    quirn = desk.start("größe", *("/LR:" + name for name in (*files, "DUE?.QRN", "DUEL.QRN", "FOLDER.QRN", "gone.qrn")))
    quirn.expect("ERROR - Invalid command line option 'GRÖßE'")
    for name in (*files, "DUE?.QRN", "DUEL.QRN"):
        quirn.expect(NOT_VALID.format(PROFILES + name), seconds=60)
    for name in ("FOLDER.QRN", "GONE.QRN"):
        quirn.expect(NOT_FOUND.format(PROFILES + name))
    quirn.main_window()
    assert (desk.registry(), desk.folder_state(), desk.own_settings()) == before
    quirn.close()


def test_an_old_profile_with_too_much_of_everything_is_played(desk):
    long, many = b"ServerName=" + b"n" * 10_000, b"".join(b"Key%d=value\r\n" % i for i in range(70_000))
    desk.file("Profiles/OLD.QRN").write_bytes(
        b"[Dialog]\r\nPlayerName=Bo\0Bo\r\n" + long + b"\r\n" + many + b"[Advanced]\r\nSkipSplash=1\r\n")
    quirn = desk.start("/LR:OLD.QRN")
    quirn.expect(EARLIER.format(PROFILES + "OLD.QRN"), seconds=60)
    assert quirn.ended(60) == 0
    assert desk.registry()[r"Dialog\PlayerName"] == (SZ, "Bo")
    assert desk.registry()[r"Dialog\ServerName"] == (SZ, "n" * 254)
