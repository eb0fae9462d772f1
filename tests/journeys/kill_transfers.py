"""Kills the program at random moments of a transfer, or of an undo, and goes back at its next start.

    QUIRN_KILLS=200 python3 -m pytest tests/journeys/kill_transfers.py
"""
import os
import random
import shutil
import time

import pytest

from machine import wait_for

KILLS = int(os.environ.get("QUIRN_KILLS", "200"))
UNDO = 43
PLAYER_FILES = ("ignore.txt", "record0.wav", "record1.wav")


class Transfers:
    def __init__(self, desk):
        self.desk = desk
        self.folder = next(desk.machine.drive.glob("users/*/AppData/Local")) / "QUIRN/Transfers"

    def folders(self):
        return sorted(f for f in self.folder.glob("*") if f.is_dir())

    def entries(self):
        return [f for f in self.folders() if f.suffix != ".new"]

    def unfinished(self):
        return sum((entry / "unfinished.ini").exists() for entry in self.entries())

    def state(self):
        files = [self.desk.file(name) for name in PLAYER_FILES]
        # On a loaded machine the registry's own program now and then does not come up.
        return wait_for(self.desk.registry, what="the registry"), [f.read_bytes() if f.exists() else None for f in files]

    def kill_soon(self, quirn, known, pause):
        """Some milliseconds after something has been written down, or after three seconds at the latest."""
        end = time.monotonic() + 3
        while self.folders() == known and time.monotonic() < end:
            pass
        time.sleep(pause)
        quirn.process.kill()
        quirn.process.wait(10)

    def start_undo(self):
        quirn = self.desk.start()
        quirn.choose(UNDO)
        question = quirn.window("Undo Last Transfer")
        assert self.desk.user.ask("press", question["handle"], "Put Back")
        return quirn

    def put_back(self):
        known, cut = len(self.entries()), self.unfinished()
        quirn = self.start_undo()
        wait_for(lambda: (cut or len(self.entries()) > known) and not self.unfinished(), what="the way back")
        quirn.close()


@pytest.mark.parametrize("what", ["transfer", "undo"])
def test_what_was_before_comes_back(desk, what):
    transfers = Transfers(desk)
    desk.file("subspace.exe").unlink()  # it would run on and write
    chance = random.Random(7)
    cut = 0
    for round_number in range(KILLS):
        if round_number % 10 == 0:  # from another state
            quirn = desk.start(f"/LR:{chance.choice(('DUEL', 'LEAGUE'))}.QRN")
            quirn.box().press()
            quirn.close()
            for entry in transfers.folders()[:-1]:  # so that none is swept meanwhile
                shutil.rmtree(entry)
        before = transfers.state()
        known, folders = len(transfers.entries()), transfers.folders()
        if what == "transfer":
            quirn = desk.start(f"/LR:{chance.choice(('DUEL', 'LEAGUE'))}.QRN")
        else:
            quirn = transfers.start_undo()
        transfers.kill_soon(quirn, folders, chance.uniform(0, 0.015))
        if len(transfers.entries()) > known:
            cut += transfers.unfinished()
            transfers.put_back()
        assert transfers.state() == before, f"round {round_number}"
        desk.started.clear()
    print(f"{KILLS} kills, {cut} in the middle of {what}")
    assert cut > 0
