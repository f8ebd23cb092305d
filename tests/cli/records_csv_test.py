"""records export --csv, read back with Python's csv module, gives the records as records list
--json lists them, field for field, whatever the labels hold: commas, quotes, line breaks, tabs,
text beyond ASCII. The numbers keep "." even when the user's decimal separator is a comma."""

import csv
import json
import os
import subprocess
import sys
import tempfile

LABELS = [
    "plain",
    "lot 7, parcel 3",
    'the "blue" one',
    "first line\nsecond line",
    "crlf\r\nend",
    "tab\there",
    "\u00c9meraude \u77f3 \U0001f48e",
    "",
    ' , "" , ',
]


def run(cli, store, *args):
    return subprocess.run([cli, "--decimal-separator", ",", "records", "--store", store, *args],
                          check=True, capture_output=True, text=True, encoding="utf-8").stdout


def main(cli):
    with tempfile.TemporaryDirectory() as folder:
        store = os.path.join(folder, "Velmora.sqlite")
        for i, label in enumerate(LABELS):
            run(cli, store, "add", "--label", label, "--ri", "1,544", "--ri-high", "1,553",
                "--hardness", "7", "--conclusion", f"conclusion, {label}", "--note", f"n{i}")
        listed = [json.loads(line) for line in run(cli, store, "--json", "list").splitlines()]
        path = os.path.join(folder, "records.csv")
        run(cli, store, "export", "--csv", path)
        with open(path, newline="", encoding="utf-8") as file:
            rows = list(csv.DictReader(file))
        if len(rows) != len(LABELS) or len(listed) != len(LABELS):
            sys.exit(f"{len(rows)} rows and {len(listed)} listed for {len(LABELS)} records")
        for row, record in zip(rows, listed):
            for field in ("id", "label", "date", "conclusion"):
                if row[field] != record[field]:
                    sys.exit(f"{field}: {row[field]!r} read back, {record[field]!r} listed")
            if (row["ri_low"], row["ri_high"], row["birefringence"], row["hardness"]) != (
                    "1.544", "1.553", "0.009", "7"):
                sys.exit(f"numbers not in the C notation: {row}")
        if sorted(row["label"] for row in rows) != sorted(LABELS):
            sys.exit("the labels did not come back as given")


if __name__ == "__main__":
    main(sys.argv[1])
