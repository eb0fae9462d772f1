#!/usr/bin/env python3
"""The log editor's work against other programs', whole process against whole process.

    log_compare.py LOGTOOL FOLDER [ROUNDS [BYTES]]

Machines are shared and noisy, so all programs run in turn, round after round, and what is printed is the median of the
ratios within the rounds. The logs are generated into FOLDER.
"""
import os
import re
import statistics
import subprocess
import sys
import time

MAWK = r"""
{ sub(/\r$/, ""); L = $0
  if (L ~ /^ *$/ || substr(L, 1, 2) == "[~") next
  if (substr(L, 1, 1) == "{") { q = index(L, "} "); L = substr(L, q + 2) }
  lines++
  prefix = substr(L, 1, 2); rest = substr(L, 3); p = index(rest, "> ")
  if (prefix == "  ") t = "public"
  else if (prefix == "P ") t = "private"
  else if (prefix == "T ") t = "team"
  else if (prefix == "E ") t = "freq"
  else if (prefix == "C ") {
    if (substr(rest, 2, 1) == ":") d = substr(rest, 1, 1)
    else if (substr(rest, p + 3, 1) == ";") d = substr(rest, p + 2, 1)
    else d = "1"
    t = "channel" d
  } else t = "unknown"
  if (index(rest, ") killed by: ")) t = "kill"
  else if (p == 0) t = "system"
  if (p > 0) {
    name = substr(rest, 1, p - 1); gsub(/^ +| +$/, "", name)
    if (substr(name, 1, 1) == "(") { name = substr(name, 2, length(name) - 2); t = "squad" }
    if (substr(name, 2, 1) == ":") name = substr(name, 3)
    if (substr(name, 1, 1) != ":") players[toupper(name)]++
  }
  types[t]++
}
END { for (p in players) n++; print lines " lines, " n " players" }
"""


def run(command, output=os.devnull):
    """Runs a command; milliseconds of wall clock, its largest memory in bytes, and the milliseconds that it prints."""
    reading, writing = os.pipe()
    # A file that is there already is replaced, by the others as by the program: emptying it is part of the work.
    started = time.perf_counter()
    target = writing if output is None else os.open(output, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o644)
    child = os.posix_spawnp(command[0], command, dict(os.environ, LC_ALL="C"),
                            file_actions=[(os.POSIX_SPAWN_DUP2, target, 1)])
    _, status, usage = os.wait4(child, 0)
    wall = (time.perf_counter() - started) * 1000
    os.close(writing)
    text = b""
    if output is None:
        text = os.read(reading, 65536)
    else:
        os.close(target)
    os.close(reading)
    code = os.waitstatus_to_exitcode(status)
    # ripgrep and grep say 1 for "nothing found".
    if code > (1 if command[0] in ("rg", "grep") else 0):
        sys.exit(f"{command} failed: {code}")
    printed = re.search(rb"([0-9.]+) ms", text)
    return wall, usage.ru_maxrss * 1024, float(printed.group(1)) if printed else None


def compare(title, log, tool, folder, rounds):
    other = os.path.join(folder, "other.log")
    saved = os.path.join(folder, "saved.log")
    jobs = {
        "wc -l": (["wc", "-l", log], os.devnull),
        "rg -c '> '": (["rg", "-c", "> ", log], os.devnull),
        "rg -i -F -c zzqqxx": (["rg", "-i", "-F", "-c", "zzqqxx", log], os.devnull),
        "grep -i -F -c zzqqxx": (["grep", "-i", "-F", "-c", "zzqqxx", log], os.devnull),
        "cat FILE >OTHER": (["cat", log], other),
        "mawk classify and count": (["mawk", MAWK, log], os.devnull),
        "show": ([tool, "show", log], None),
        "find zzqqxx": ([tool, "find", log, "zzqqxx"], None),
        "save": ([tool, "save", log, saved], None),
    }
    times = {name: [] for name in jobs}
    inside = {name: [] for name in jobs}
    memory = 0
    for round_ in range(rounds + 1):
        for name, (command, output) in jobs.items():
            wall, most, printed = run(command, output)
            if name == "show":
                memory = max(memory, most)
            if round_ > 0:  # the first fills the caches
                times[name].append(wall)
                inside[name].append(printed)
        os.sync()  # what cat wrote is not to be written out while others run
    size = os.path.getsize(log)
    lines = int(subprocess.run(["wc", "-l", log], capture_output=True, text=True).stdout.split()[0])
    print(f"\n{title}: {size / 1e6:.0f} MB, {lines} lines, {rounds} rounds")
    for name in jobs:
        own = f"   (last step alone {statistics.median(inside[name]):7.1f} ms)" if inside[name][0] is not None else ""
        print(f"  {name:26} median {statistics.median(times[name]):8.1f} ms{own}")

    def ratio(over, under):
        return statistics.median(a / b for a, b in zip(over, under))

    rows = [
        ("show / wc -l", ratio(times["show"], times["wc -l"]), "at most 8"),
        ("show / rg -c '> '", ratio(times["show"], times["rg -c '> '"]), "at most 1.8"),
        ("mawk / show", ratio(times["mawk classify and count"], times["show"]), "at least 9"),
        ("find in memory / rg -i -F -c", ratio(inside["find zzqqxx"], times["rg -i -F -c zzqqxx"]), "at most 0.8"),
        ("save in memory / cat", ratio(inside["save"], times["cat FILE >OTHER"]), "at most 2.5"),
        ("bytes a line besides the file", (memory - size) / lines, "at most 16"),
    ]
    for name, value, goal in rows:
        print(f"  {name:34} {value:6.2f}   ({goal})")
    for path in (other, saved):
        os.remove(path)


def main():
    tool, folder = sys.argv[1:3]
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 9
    size = sys.argv[4] if len(sys.argv) > 4 else "100000000"
    os.makedirs(folder, exist_ok=True)
    for players in ("300", "30000"):
        log = os.path.join(folder, f"players{players}.log")
        if not os.path.exists(log) or abs(os.path.getsize(log) - int(size)) > 65536:
            subprocess.run([tool, "generate", log, size, players, "1"], check=True)
        compare(f"{players} players", log, tool, folder, rounds)


main()
