"""records add, killed with SIGKILL at random moments, leaves a sound store: it passes
PRAGMA integrity_check, every add that printed its id is listed, and every listed record is
whole (its readings and its candidates all there).

Each run is killed a random number of microseconds after its start (a fixed seed, so the same
moments every time), or not at all when it ends first: the test never waits longer than that.
"""

import os
import random
import signal
import sqlite3
import subprocess
import sys
import tempfile

RUNS = 40
LONGEST_DELAY_US = 80_000


def main(cli):
    rng = random.Random(14)
    with tempfile.TemporaryDirectory() as folder:
        store = os.path.join(folder, "Velmora.sqlite")
        # The store exists before the first kill, so every run adds to the same data model.
        subprocess.run([cli, "records", "--store", store, "list"], check=True)
        reported = {}
        killed = 0
        for run in range(RUNS):
            label = f"lot {run}"
            process = subprocess.Popen(
                [cli, "records", "--store", store, "add", "--label", label, "--ri", "1.544",
                 "--ri-high", "1.553", "--sg", "2.65", "--note", "turned twice"],
                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
            try:
                out, err = process.communicate(timeout=rng.randrange(LONGEST_DELAY_US) / 1e6)
            except subprocess.TimeoutExpired:
                process.send_signal(signal.SIGKILL)
                process.communicate()
                killed += 1
                continue
            if process.returncode == 0:
                reported[int(out.strip())] = label
            elif process.returncode != -signal.SIGKILL:
                sys.exit(f"run {run} failed: {err}")

        print(f"{RUNS} runs: {len(reported)} reported their id, {killed} killed")
        database = sqlite3.connect(store)
        check = database.execute("PRAGMA integrity_check").fetchall()
        if check != [("ok",)]:
            sys.exit(f"integrity_check: {check}")
        listed = subprocess.run([cli, "records", "--store", store, "list"], check=True,
                                capture_output=True, text=True).stdout.splitlines()
        labels = {int(line.split("\t")[0]): line.split("\t")[1] for line in listed}
        for record_id, label in reported.items():
            if labels.get(record_id) != label:
                sys.exit(f"record {record_id} ({label}) was reported but is not listed")
        for record_id, label in labels.items():
            if not label.startswith("lot "):
                sys.exit(f"record {record_id} has a label no run gave: {label!r}")
        readings = dict(database.execute(
            "SELECT id, (SELECT count(*) FROM ri_reading WHERE record_id = id) FROM stone_record"))
        candidates = dict(database.execute(
            "SELECT id, (SELECT count(*) FROM candidate WHERE record_id = id) FROM stone_record"))
        if set(readings.values()) - {2} or len(set(candidates.values())) > 1 or 0 in candidates.values():
            sys.exit(f"half-written records: readings {readings}, candidates {candidates}")


if __name__ == "__main__":
    main(sys.argv[1])
