"""Other programs read the tables of velmaris_rechnen back: Python's csv module, and a spreadsheet where there is one.

Arguments: the program, the folder of the sample projects, a folder to work in, the spreadsheet program (may be empty).
"""
import csv
import io
import json
import os
import re
import shutil
import struct
import subprocess
import sys
import xml.etree.ElementTree as xml
import zipfile
from pathlib import Path

PROGRAM, SAMPLES, FOLDER, SOFFICE = sys.argv[1:5]
DAYS = [31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]
PROJECTS = ["altes_haus.vel", 'Glas, "groß".vel']
MEANS = {"Tmittel"}
WITHOUT_YEAR = {"Nutzgrad"}
HOURS = ["Monat", "Tag", "Stunde", "Ta [°C]", "T_frei [°C]", "T_regel [°C]", "Q_heiz [kWh]", "Q_kuehl [kWh]",
         "Direkt [W/m²]", "Diffus [W/m²]"]


def run(*words):
    return subprocess.run(words, check=True, capture_output=True, cwd=FOLDER).stdout


def f32(number):
    return struct.unpack("f", struct.pack("f", float(number)))[0]


def near(a, b):
    return abs(a - b) <= 1e-5 * max(1, abs(a), abs(b))


def rows(data):
    text = data.decode("utf-8")
    assert not text.startswith("\ufeff") and text.endswith("\r\n")
    assert text.count("\n") == text.count("\r\n"), "one row a line"
    table = list(csv.reader(io.StringIO(text, newline=""), strict=True))
    assert len({len(row) for row in table}) == 1, "as many cells in each row"
    return table


def check_months(table, project):
    """The head, twelve months and the year of a table of one project against the numbers of --json."""
    names = [re.sub(r" \[.*\]$", "", head) for head in table[0]]
    assert names == list(project["Monat"][0]), names
    assert [head for head in table[0] if head.startswith("Q")] == [n + " [kWh]" for n in names if n.startswith("Q")]
    assert len(table) == 14, len(table)
    for column, name in enumerate(names):
        months = [month[name] for month in project["Monat"]]
        cells, year = [row[column] for row in table[1:13]], table[13][column]
        if isinstance(months[0], str):
            assert cells == months and year == "year", name
            continue
        assert [f32(cell) for cell in cells] == [f32(month) for month in months], name
        if name in WITHOUT_YEAR:
            assert year == "", year
        else:
            assert near(float(year), sum(months) / (12 if name in MEANS else 1)), name
    for name, sum_of_record in {"Qh": "qh", "Qt": "qtr", "Qv": "qinf", "Qs_genutzt": "qsol", "Qi_genutzt": "qi"}.items():
        assert f32(table[13][names.index(name)]) == f32(project[sum_of_record]), name


def check_hours(table, project):
    """8760 hours in order whose counts and sums are those of the months."""
    assert table[0] == HOURS, table[0]
    assert [[int(c) for c in row[:3]] for row in table[1:]] == [
        [m + 1, d + 1, h + 1] for m in range(12) for d in range(DAYS[m]) for h in range(24)]
    for month, values in enumerate(project["Monat"], 1):
        hours = [[float(c) for c in row] for row in table[1:] if row[0] == str(month)]
        assert near(sum(h[3] for h in hours) / len(hours), values["Tmittel"])
        assert sum(h[4] > project["Tueber"] for h in hours) == values["Stunden_heiss"]
        assert near(sum(h[7] for h in hours), values["Kuehlbedarf"])
        assert all(project["Troom"] <= h[5] <= project["Tueber"] for h in hours)
    assert near(max(float(row[6]) for row in table[1:]), project["Heizlast_max"])
    assert max(float(row[8]) for row in table[1:]) > 500 and min(float(row[9]) for row in table[1:]) == 0


def check_several(table, head, of_each):
    """Several projects: one head, the rows of each behind its name."""
    assert table[0] == ["Datei"] + head
    for name, alone in zip(PROJECTS, of_each):
        assert [row[1:] for row in table if row[0] == name] == alone[1:], name


def sheet(name):
    """The cells of a spreadsheet, numbers as numbers."""
    with zipfile.ZipFile(os.path.join(FOLDER, name)) as book:
        space = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"
        texts = ["".join(t.text or "" for t in item.iter(space + "t"))
                 for item in xml.fromstring(book.read("xl/sharedStrings.xml"))]
        cells = []
        for row in xml.fromstring(book.read("xl/worksheets/sheet1.xml")).iter(space + "row"):
            values = [(cell.get("t"), cell.findtext(space + "v")) for cell in row]
            cells.append([texts[int(v)] if t == "s" else float(v) for t, v in values])
        return cells


def convert(name):
    run(SOFFICE, "--headless", "-env:UserInstallation=" + Path(FOLDER, "nutzer").as_uri(),
        "--infilter=CSV:44,34,76,1,,1033", "--convert-to", "xlsx", name)
    return os.path.exists(os.path.join(FOLDER, name.replace(".csv", ".xlsx")))


def check_spreadsheet(name, table):
    assert convert(name), name
    # A spreadsheet does not keep empty cells.
    of_text = [[f32(c) if re.fullmatch(r"-?[0-9.]+(e[-+][0-9]+)?", c) else c for c in row if c] for row in table]
    of_sheet = [[c if isinstance(c, str) else f32(c) for c in row] for row in sheet(name.replace(".csv", ".xlsx"))]
    assert of_sheet == of_text, next(pair for pair in zip(of_sheet, of_text) if pair[0] != pair[1])


shutil.rmtree(FOLDER, ignore_errors=True)
os.makedirs(FOLDER)
os.environ.update(HOME=FOLDER, LC_ALL="C.UTF-8")
for source, name in zip(["altes_haus.vel", "glasbuero.vel"], PROJECTS):
    shutil.copy(os.path.join(SAMPLES, source), os.path.join(FOLDER, name))
values = json.loads(run(PROGRAM, "--sprache", "e", "--json", *PROJECTS))
months, hours = [], []
for project, name in zip(values, PROJECTS):
    months.append(rows(run(PROGRAM, "--sprache", "e", "--csv", "-", name)))
    hours.append(rows(run(PROGRAM, "--csv-stunden", "-", name)))
    check_months(months[-1], project)
    check_hours(hours[-1], project)
run(PROGRAM, "--sprache", "e", "--csv", "m.csv", "--csv-stunden", "h.csv", *PROJECTS)
tables = {}
for name, head, of_each in [("m.csv", months[0][0], months), ("h.csv", HOURS, hours)]:
    with open(os.path.join(FOLDER, name), "rb") as file:
        tables[name] = rows(file.read())
    check_several(tables[name], head, of_each)
with open(os.path.join(FOLDER, "probe.csv"), "w", encoding="utf-8") as file:
    file.write("a,1\n")
if not SOFFICE or not convert("probe.csv"):
    print("Python has read the tables. NOT CHECKED by a spreadsheet: LibreOffice Calc is not installed.")
    sys.exit(0)
for name, table in tables.items():
    check_spreadsheet(name, table)
