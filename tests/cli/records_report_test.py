"""records report --pdf writes a page a record that, turned back into text by pdftotext, carries
each record's label as given (commas, quotes, text beyond ASCII), its readings in the user's
notation, its candidates and its conclusion; an id that names no record writes nothing."""

import os
import subprocess
import sys
import tempfile

RECORDS = [
    # label, --ri, --ri-high, --sg, the readings as the page prints them
    ('Lot 7, "the blue one"', "1,544", "1,553", "2,65", ["1,544", "1,553", "0,009", "2,65"]),
    ("Cliente Müller, ring 3", "1,762", "1,770", "4,00", ["1,762", "1,770", "0,008", "4,00"]),
]


def cli(command, folder, *args, check=True):
    # The store named bare, in the working folder.
    return subprocess.run([command, "--decimal-separator", ",", "records", "--store",
                           "Velmora.sqlite", *args], cwd=folder, check=check, capture_output=True,
                          text=True, encoding="utf-8")


def text_of(pdf, page):
    return subprocess.run(["pdftotext", "-f", str(page), "-l", str(page), "-layout", pdf, "-"],
                          check=True, capture_output=True, text=True, encoding="utf-8").stdout


def main(command):
    with tempfile.TemporaryDirectory() as folder:
        ids = []
        for label, low, high, sg, _ in RECORDS:
            ids.append(cli(command, folder, "add", "--label", label, "--ri", low, "--ri-high", high,
                           "--sg", sg, "--conclusion", f"concluded: {label}").stdout.strip())
        pdf = os.path.join(folder, "report.pdf")
        cli(command, folder, "report", *ids, "--pdf", pdf)
        for page, (label, _, _, _, readings) in enumerate(RECORDS, start=1):
            text = text_of(pdf, page)
            for part in [label, f"concluded: {label}", "Velmora", *readings]:
                if part not in text:
                    sys.exit(f"page {page} lacks {part!r}:\n{text}")
        if "Ruby" not in text_of(pdf, 2):
            sys.exit("the candidates are not on the page")

        missing = os.path.join(folder, "missing.pdf")
        run = cli(command, folder, "report", ids[0], "999", "--pdf", missing, check=False)
        if run.returncode != 1 or "no record 999" not in run.stderr or os.path.exists(missing):
            sys.exit(f"an unknown id gave {run.returncode}, {run.stderr!r}")


if __name__ == "__main__":
    main(sys.argv[1])
