#!/usr/bin/python3
"""Fails when an #include points up: see "The house" in ARCHITECTURE.md. Names what is wrong, a line each."""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
FLOORS = ("platform", "profile", "game and logedit", "windows", "startup")
FOLDERS = {"platform": 0, "profile": 1, "game": 2, "logedit": 2, "mainwin": 3, "auxiliary": 3, "startup": 4}
# Windows beside the frm... files.
WINDOWS = {"logedit/filterrow", "logedit/followcommands", "logedit/logmenurows", "logedit/playerpanel", "logedit/progressframe",
           "logedit/viewcommands"}
# The two back ends know the platform alone, and nobody knows them.
BACK_ENDS = ("platform/win32", "platform/headless")
WINDOWS_ENTRY = "startup/entry_win32.cpp"


def floor_of(path):
    floor = FOLDERS[path.parts[0]]
    window = path.stem.startswith("frm") or str(path.with_suffix("")) in WINDOWS
    return FLOORS.index("windows") if floor == 2 and window else floor


def faults(path):
    """Why the includes of a source do not fit into the house."""
    back_end = next((end for end in BACK_ENDS if str(path).startswith(end)), None)
    text = (ROOT / path).read_text(encoding="utf-8")
    for quoted, system in re.findall(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)', text, re.M):
        if system == "windows.h" and back_end != "platform/win32" and str(path) != WINDOWS_ENTRY:
            yield "windows.h"
        target = pathlib.Path(quoted)
        if not quoted or target.parts[0] == "resources" or str(path) == WINDOWS_ENTRY:
            continue
        if not (ROOT / target).exists():
            yield f"{quoted}, which is not a path from the root"
        elif target.parts[0] not in FOLDERS:
            yield f"{quoted}, which is no part of the program"
        elif any(quoted.startswith(end) and end != back_end for end in BACK_ENDS):
            yield f"{quoted}, which is a back end's own"
        elif floor_of(target) > floor_of(path):
            yield f"{quoted}: {FLOORS[floor_of(target)]} from {FLOORS[floor_of(path)]}"


found = [f"{path} includes {fault}"
         for folder in FOLDERS for file in sorted((ROOT / folder).rglob("*")) if file.suffix in (".cpp", ".h")
         for path in [file.relative_to(ROOT)] for fault in faults(path)]
print("\n".join(found), end="\n" if found else "")
sys.exit(1 if found else 0)
