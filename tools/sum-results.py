#!/usr/bin/python3
"""Adds up the test reports in a folder and prints "N passed, N failed" as the last line.

usage: sum-results.py FOLDER     the folder holds `parts` (a part's name and exit status per line) and PART.xml
                                 reports; a part named build-... has no report
"""
import pathlib
import re
import sys
import xml.etree.ElementTree as xml

folder = pathlib.Path(sys.argv[1])
passed, failures = 0, []
for line in (folder / "parts").read_text().splitlines():
    part, status = line.split()
    bad = []
    if not part.startswith("build-"):
        try:
            cases = list(xml.parse(folder / f"{part}.xml").iter("testcase"))
        except (OSError, xml.ParseError):
            cases = []
            bad.append("ended without a report")
        else:
            if not cases:
                bad.append("ran no test")
        for case in cases:
            if case.find("failure") is not None or case.find("error") is not None:
                bad.append(f"{case.get('classname')}.{case.get('name')}")
            elif case.find("skipped") is None and case.get("status", "run") == "run":
                passed += 1
    if status != "0" and not bad:
        bad.append(f"ended with status {status}")
    failures += [f"{part}: {what}" for what in bad]
    # A test that passed at the second try only: somebody should find out why.
    again = re.search(r"(\d+) rerun", (folder / f"{part}.log").read_text(errors="replace"))
    if again:
        print(f"tried again: {part}: {again[1]}, marked R in {folder / part}.log")
for failure in failures:
    print("failed:", failure)
print(f"{passed} passed, {len(failures)} failed")
sys.exit(1 if failures else 0)
