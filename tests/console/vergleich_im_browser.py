"""A browser opens the page that compares projects; what it shows must be what stands in the table for spreadsheets.

Arguments: the program, the folder of the sample projects, a folder to work in, the browser.
"""
import csv
import io
import os
import subprocess
import sys

from studienseite import near, opened

PROGRAM, SAMPLES, FOLDER, BROWSER = sys.argv[1:5]
PROJECTS = ["altes_haus", "glasbuero", "niedrigenergiehaus"]


def check(language):
    page = os.path.join(FOLDER, f"seite_{language}.html")
    files = [os.path.join(SAMPLES, name + ".vel") for name in PROJECTS]
    table = subprocess.run([PROGRAM, "--sprache", language, "--vergleich", page, "--vergleich-csv", "-", *files],
                           check=True, capture_output=True).stdout.decode("utf-8")
    shown = opened(BROWSER, FOLDER, page)
    rows = list(csv.reader(io.StringIO(table)))[1:]
    inputs = [row for row in rows if row[0] in ("Eingabe", "input")]
    results = [row for row in rows if row[0] in ("Ergebnis", "result")]
    assert len(inputs) > 30 and len(results) == 16, (len(inputs), len(results))
    assert shown.tables["eingaben"][1:] == [row[1:6] for row in inputs], "inputs differ"
    for cells, row in zip(shown.tables["ergebnisse"][1:], results, strict=True):
        assert cells[:2] == row[1:3], (cells, row)
        decimals = len(cells[2].partition(".")[2])
        assert near(cells[2], row[3], decimals), (cells, row)
        for i, cell in enumerate(cells[3:]):
            value, _, small = cell.partition("|")
            difference, _, percent = small.partition(" (")
            assert near(value, row[4 + i], decimals) and near(difference, row[6 + i], decimals), (cells, row)
            if percent:
                assert near(percent.removesuffix(" %)"), row[8 + i], 0), (cells, row)
    assert len(shown.charts) == 5 * len(PROJECTS) + 1, len(shown.charts)


os.makedirs(FOLDER, exist_ok=True)
for letter in "de":
    check(letter)
