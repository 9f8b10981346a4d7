"""A browser opens the pictures of a study; the numbers below them must be those of the table for spreadsheets.

Arguments: the program, the folder of the sample projects, a folder to work in, the browser.
"""
import csv
import io
import os
import subprocess
import sys

from studienseite import near, opened

PROGRAM, SAMPLES, FOLDER, BROWSER = sys.argv[1:5]
FAULTY = "9"  # a U-value that no project can have


def study(name, status, *words):
    """The rows of a study as the table has them, and the page of its pictures."""
    page = os.path.join(FOLDER, name + ".html")
    run = subprocess.run([PROGRAM, os.path.join(SAMPLES, "altes_haus.vel"), "--bild", page, "--ausgabe", "-", *words],
                         capture_output=True)
    assert run.returncode == status, run.stderr.decode("utf-8")
    return list(csv.DictReader(io.StringIO(run.stdout.decode("utf-8")))), opened(BROWSER, FOLDER, page)


def same(shown, number):
    return near(shown, number, len(shown.partition(".")[2]))


def check_curves(language):
    """A table for each unit, each with a row for each value; the row that failed has none."""
    rows, page = study("eins_" + language, 1, "--sprache", language, "--variiere", f"kws=0.1,{FAULTY},0.301,1.4")
    rows = [row for row in rows if row["kws"] != FAULTY]
    assert len(page.charts) == len(page.tables) == 4, page.tables.keys()
    results = 0
    for name, (_, *lines) in page.tables.items():
        assert [line[0] for line in lines] == ["0.10", "0.30", "1.40"], lines
        for column, result in enumerate(name.split("-")[1:], 1):
            results += 1
            for line, row in zip(lines, rows, strict=True):
                assert same(line[column], row[result]), (result, line, row)
    assert results == 11, results


def check_raster(language):
    """A table for each result, with the first input across and the second one down; what is the same
    everywhere has no picture."""
    rows, page = study("zwei_" + language, 0, "--sprache", language, "--variiere", "fs=0:100:25", "--variiere",
                       "kws=0.2:1.4:0.4", "--ergebnis", "qhs_sum,Kuehlbedarf,q_HE_Strom,Stunden_heiss")
    assert len(page.charts) == 3 and len(page.tables) == 4, page.charts
    for name, (head, *lines) in page.tables.items():
        cells = {(float(across), float(line[0])): shown
                 for line in lines for across, shown in zip(head[1:], line[1:], strict=True)}
        assert len(cells) == len(rows) == 20, cells
        for row in rows:
            assert same(cells[float(row["fs"]), float(row["kws"])], row[name.split("-")[1]]), (name, row)


os.makedirs(FOLDER, exist_ok=True)
for letter in "de":
    check_curves(letter)
    check_raster(letter)
