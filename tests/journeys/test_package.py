"""The packages as a player takes them: installed or unpacked in a fresh Wine, played, taken away again.

Run by ./package check, which names their folder in QUIRN_PACKAGE.
"""
import json
import os
import pathlib
import shutil
import zipfile

import pytest

from catalogue import SZ
from conftest import EXE, EXIT, GAME_KEY, OWN_KEY, TITLE, WM_COMMAND
from machine import ROOT, Machine, Screen, User, is_32_bit, wait_for

PACKAGE = pathlib.Path(os.environ.get("QUIRN_PACKAGE", ROOT / "build/package")).resolve()
pytestmark = pytest.mark.skipif("QUIRN_PACKAGE" not in os.environ or not is_32_bit(EXE),
                                reason="run by ./package check")
UNINSTALL_KEY = r"HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Uninstall\QUIRN"
SHIPPED = {"QUIRN.exe", "help.html", "readme.txt", "revision.txt"}
NOTES = 24


class Home:
    """A player's Wine with the game in it."""

    def __init__(self, screen, folder):
        shutil.rmtree(folder, ignore_errors=True)
        self.machine = Machine(screen, 32, folder)
        self.machine.environment["WINEDLLOVERRIDES"] += ";winemenubuilder.exe=d"
        # The player's own folders are links out of the prefix: nothing is to go there.
        for link in (self.machine.drive / "users").glob("*/*"):
            if link.is_symlink():
                link.unlink()
                link.mkdir()
        self.game = self.machine.path("C:\\SubSpace")
        shutil.copytree(ROOT / "demo/game", self.game)
        shutil.copy(EXE.parent / "demo/subspace.exe", self.game)
        self.machine.import_registry((ROOT / "demo/game.reg").read_bytes().decode("cp1252").replace("\r\n", "\n"))
        self.machine.reg("add", OWN_KEY + r"\File Locations", "/v", "SubSpace", "/d", r"C:\SubSpace", "/f")
        self.user = User(self.machine, EXE.parent / "tests/user.exe")

    def run(self, exe, *arguments, seconds=60):
        return self.machine.start(exe, *arguments).wait(seconds)

    def files(self):
        """What lies in the player's folders, temporary files left out."""
        users = self.machine.drive / "users"
        return {str(f.relative_to(users)) for f in users.rglob("*") if f.is_file() and "Temp" not in f.parts}

    def links(self):
        return sorted(f.parent.name for f in (self.machine.drive / "users").rglob("QUIRN.lnk"))

    def plays(self, exe, profile, pilot):
        """One load-and-run, of a profile in the program's own folder."""
        (self.game / "started.txt").unlink(missing_ok=True)
        assert self.run(exe, "/LR:" + profile) == 0
        assert (self.game / "started.txt").exists()
        assert self.machine.export_registry(GAME_KEY)[r"Dialog\PlayerName"] == (SZ, pilot)
        for pid in self.user.processes("subspace.exe"):
            self.user.ask("end", pid)

    def start(self, exe):
        process = self.machine.start(exe)
        window = self.user.ask("wait", "", TITLE, 0, 15000)
        assert window
        return process, window["handle"]


@pytest.fixture
def home(request):
    screen = Screen(ROOT / "build/journeys/icewm-package")
    home = Home(screen, ROOT / "build/wine/package32")
    yield home
    home.user.stop()
    home.machine.stop()
    screen.stop()


def test_installed_played_and_uninstalled(home):
    setup = next(PACKAGE.glob("*-setup.exe"))
    before, game_before = home.files(), home.machine.export_registry(GAME_KEY)
    assert home.run(setup, "/S") == 0
    folder = next((home.machine.drive / "users").glob("*/AppData/Local/Programs/QUIRN"))
    assert {f.name for f in folder.iterdir()} == SHIPPED | {"Uninstall.exe"}
    assert (folder / "QUIRN.exe").read_bytes() == (EXE.parent / "QUIRN.exe").read_bytes()
    assert home.links() == ["Programs"]
    entry = home.machine.export_registry(UNINSTALL_KEY)
    assert entry["\\DisplayVersion"] == (SZ, "1.61") and setup.name == "QUIRN-1.61-setup.exe"
    assert home.machine.export_registry(GAME_KEY) == game_before

    # A profile in the program's folder, which is where they lie unless the player says otherwise.
    shutil.copy(ROOT / "demo/profiles/DUEL.QRN", folder)
    inside = entry["\\InstallLocation"][1]
    home.plays(inside + r"\QUIRN.exe", "DUEL.QRN", "Vex Calder")

    # As long as a copy runs, nothing is put over it or taken from under it.
    process, window = home.start(inside + r"\QUIRN.exe")
    assert home.run(setup, "/S") == 2
    assert home.run(inside + r"\Uninstall.exe", "/S", "_?=" + inside) == 2  # in its place, so that one can wait for it
    home.user.ask("post", window, WM_COMMAND, EXIT, 0)
    assert process.wait(15) == 0
    assert (folder / "QUIRN.exe").exists() and home.machine.export_registry(UNINSTALL_KEY)
    settings = home.machine.export_registry(OWN_KEY)
    assert settings[r"Settings\MainLeft"]

    assert home.run(setup, "/S", "/DESKTOP") == 0
    assert home.links() == ["Desktop", "Programs"]
    game, files = home.machine.export_registry(GAME_KEY), {f.name for f in home.game.iterdir()}
    home.run(inside + r"\Uninstall.exe", "/S")
    wait_for(lambda: not (folder / "Uninstall.exe").exists(), 20, "the uninstaller's work")
    wait_for(lambda: home.machine.export_registry(UNINSTALL_KEY) is None, what="the entry's end")
    # The profile stays, and the way back to what the game had.
    left = {name for name in home.files() - before if "/QUIRN/Transfers/" not in name}
    assert left == {str((folder / "DUEL.QRN").relative_to(home.machine.drive / "users"))}
    assert home.machine.export_registry(OWN_KEY) == settings
    assert home.machine.export_registry(GAME_KEY) == game and {f.name for f in home.game.iterdir()} == files


    # Those go too where the player says so.
    assert home.run(setup, "/S") == 0
    home.run(inside + r"\Uninstall.exe", "/S", "/OWN")
    wait_for(lambda: home.machine.export_registry(OWN_KEY) is None, 20, "the end of the settings")
    wait_for(lambda: not any("/QUIRN/Transfers/" in name for name in home.files()), what="the end of the transfers")
    assert (folder / "DUEL.QRN").exists()


def test_the_manifests_name_the_packages_that_are_there():
    import yaml  # which ./package check installs

    sums = dict(line.split()[::-1] for line in (PACKAGE / "SHA256SUMS").read_text().splitlines())
    scoop = json.loads((PACKAGE / "quirn.json").read_text())
    assert scoop["hash"] == sums[scoop["url"].rsplit("/", 1)[1]]
    winget = [yaml.safe_load(file.read_text()) for file in (PACKAGE / "winget").glob("*.yaml")]
    assert {manifest["ManifestType"] for manifest in winget} == {"version", "installer", "defaultLocale"}
    assert {manifest["PackageVersion"] for manifest in winget} == {scoop["version"]}
    installer = next(manifest["Installers"][0] for manifest in winget if "Installers" in manifest)
    assert installer["InstallerSha256"].lower() == sums[installer["InstallerUrl"].rsplit("/", 1)[1]]
    for file in [PACKAGE / "quirn.json", *(PACKAGE / "winget").iterdir()]:
        assert "@" not in file.read_text()
    assert yaml.safe_load((ROOT / ".github/workflows/check.yml").read_text())["jobs"]


def test_unpacked_in_a_folder_with_blanks_and_an_umlaut(home):
    folder = home.machine.path("C:\\Meine Spiele\\Manager für Jäger")
    folder.mkdir(parents=True)
    with zipfile.ZipFile(next(PACKAGE.glob("*.zip"))) as archive:
        assert {name.split("/", 1)[1] for name in archive.namelist()} == SHIPPED
        archive.extractall(folder)
    inside = "C:\\Meine Spiele\\Manager für Jäger\\QUIRN-1.61"
    shutil.copy(ROOT / "demo/profiles/LEAGUE.QRN", folder / "QUIRN-1.61")
    home.plays(inside + "\\QUIRN.exe", "LEAGUE.QRN", "Ødegård")
    process, window = home.start(inside + "\\QUIRN.exe")
    home.user.ask("post", window, WM_COMMAND, NOTES, 0)
    notes = home.user.ask("wait", "", "Revision Notes", 0, 10000)
    text = next(c for c in home.user.ask("controls", notes["handle"])["controls"] if c["class"] == "Edit")["caption"]
    assert text.encode("cp1252") == (ROOT / "resources/ship/readme.txt").read_bytes()
    home.user.ask("post", notes["handle"], 16, 0, 0)
    wait_for(lambda: not home.user.ask("wait", "", "Revision Notes", 0, 100), what="the notes' end")
    home.user.ask("post", window, WM_COMMAND, EXIT, 0)
    assert process.wait(15) == 0
    assert home.machine.export_registry(OWN_KEY)[r"File Locations\QRN Files"] == (SZ, inside)
