"""What the journeys stand on: the display, the Wine prefix, and the test user in it."""
import json
import os
import pathlib
import re
import struct
import subprocess
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]


def is_32_bit(exe):
    with open(exe, "rb") as file:
        header = file.read(4096)
    return struct.unpack_from("<H", header, struct.unpack_from("<I", header, 0x3C)[0] + 4)[0] == 0x14C


def wait_for(condition, seconds=10, what="it"):
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        assert time.monotonic() < end, f"{what} did not come about in {seconds} s"
        time.sleep(0.03)


class Screen:
    """A virtual display. The window manager has a tray, frames that look as those of Windows, and its own settings, so
    that no user's change a journey."""

    def __init__(self, folder):
        folder.mkdir(parents=True, exist_ok=True)
        (folder / "preferences").write_text("ShowTaskBar=1\nTaskBarShowTray=1\nClickToFocus=1\nFocusOnMap=1\n")
        (folder / "theme").write_text('Theme="win95/default.theme"\n')
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", "1", "-screen", "0", "1920x1200x24", "-nolisten", "tcp"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.name = ":" + self.server.stdout.readline().decode().strip()
        assert len(self.name) > 1, "the virtual display did not start"
        self.environment = dict(os.environ, DISPLAY=self.name, ICEWM_PRIVCFG=str(folder), LC_ALL="C.UTF-8")
        self.manager = subprocess.Popen(["icewm"], env=self.environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        time.sleep(0.5)

    def stop(self):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait(10)

    def shoot(self, path):
        path.parent.mkdir(parents=True, exist_ok=True)
        subprocess.run(["/usr/bin/import", "-window", "root", str(path)], env=self.environment, check=True)


class Machine:
    """A Wine prefix: files in it, its registry through Wine's own reg, programs started in it."""

    def __init__(self, screen, bits, folder):
        self.runner = [os.environ["QUIRN_WINE32"] if bits == 32 else "wine"]
        self.server = [*self.runner, "wineserver"] if bits == 32 else ["wineserver"]
        self.prefix = folder
        self.drive = folder / "drive_c"
        self.environment = dict(screen.environment, WINEPREFIX=str(folder), WINEDEBUG="-all",
                                WINEDLLOVERRIDES="mscoree,mshtml=", QUIRN_RUNNER=self.runner[0])
        # A run that was killed may have left its server, whose windows are on a display that is gone.
        if folder.exists():
            self.stop()
        self.prepare()

    def prepare(self, *build):
        """Makes the prefix, if it is not there; with a build's folder, the demo in it as on the first day."""
        subprocess.run([ROOT / "tools/wine-prefix", self.prefix, *build], env=self.environment, check=True)

    def stop(self):
        subprocess.run([*self.server, "-k"], env=self.environment, cwd=ROOT, check=False, stderr=subprocess.DEVNULL)

    def path(self, name):
        """Where a C: path lies for us."""
        assert name[:3].upper() == "C:\\", name
        return self.drive.joinpath(*name[3:].split("\\"))

    def start(self, exe, *arguments, folder=None, **options):
        return subprocess.Popen([*self.runner, str(exe), *arguments], env=self.environment, cwd=folder or ROOT,
                                stderr=subprocess.DEVNULL, **options)

    def reg(self, *arguments):
        return subprocess.run([*self.runner, "reg", *arguments], env=self.environment, cwd=ROOT, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def import_registry(self, text):
        file = self.drive / "import.reg"
        file.write_bytes(text.replace("\n", "\r\n").encode("cp1252"))
        assert self.reg("import", r"C:\import.reg").returncode == 0

    def export_registry(self, key):
        """{"Dialog\\PlayerName": ("REG_SZ", "Bo"), ...} of everything below a key; None when there is no such key."""
        file = self.drive / "export.reg"
        file.unlink(missing_ok=True)
        if self.reg("export", key, r"C:\export.reg", "/y").returncode != 0 or not file.exists():
            return None
        text = file.read_bytes().decode("utf-16").replace("\r\n", "\n").replace("\\\n  ", "")
        plain = lambda s: re.sub(r"\\(.)", r"\1", s[1:-1], flags=re.S)
        values, group = {}, None
        # A text may hold line ends of its own, so the file is taken by tokens and not by lines.
        quoted = r'"(?:[^"\\]|\\.)*"'
        for header, name, data in re.findall(rf'^(?:\[(.*)\]|({quoted}|@)=({quoted}|.*))$', text, re.M):
            if header:
                group = header[len(key) + 1:]
                values[group + "\\"] = ("key", "")
            elif data[0] == '"':
                values[f"{group}\\{plain(name)}"] = ("REG_SZ", plain(data))
            elif data.startswith("dword:"):
                number = int(data[6:], 16)
                values[f"{group}\\{plain(name)}"] = ("REG_DWORD", str(number - (1 << 32) if number >> 31 else number))
            else:
                values[f"{group}\\{plain(name)}"] = tuple(data.split(":", 1))
        return values


class User:
    """The test user inside the prefix: one long-lived process that takes commands."""

    def __init__(self, machine, exe):
        self.process = machine.start(exe, stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def ask(self, *words):
        """The answer, or None when the command could not be done."""
        coded = ("".join(f"%{byte:02x}" if byte < 32 or byte == 37 else chr(byte)
                         for byte in str(word).encode("cp1252")) for word in words)
        self.process.stdin.write(("\t".join(coded) + "\n").encode("latin-1"))
        self.process.stdin.flush()
        answer = json.loads(self.process.stdout.readline().decode("ascii"), object_hook=decode_bytes)
        return None if "error" in answer else answer

    def processes(self, *names):
        wanted = [name.lower() for name in names]
        return [p["pid"] for p in self.ask("processes")["processes"] if p["name"].lower() in wanted]

    def stop(self):
        self.process.stdin.close()
        self.process.wait(10)


def decode_bytes(answer):
    text = lambda s: s.encode("latin-1").decode("cp1252", "replace") if isinstance(s, str) else s
    return {k: [text(x) for x in v] if isinstance(v, list) else text(v) for k, v in answer.items()}
