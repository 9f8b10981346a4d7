"""Steps the inputs of projects by itself, lets the program open and calculate each stepped project, and compares with
the table of --empfindlichkeit-csv; where there is a browser, the page must show what stands in the table.

Arguments: the program, the folder of the sample projects, a folder to work in, the browser or nothing.
"""
import csv
import io
import json
import os
import re
import subprocess
import sys

from studienseite import near, opened

PROGRAM, SAMPLES, FOLDER, BROWSER = sys.argv[1:5]

# Inputs by their line in a project file, from the second one on.
LINES = """l b h ag lw WRG orient intg Troom Tueber awn aww aws awo fenstern_typ fensters_typ fenstero_typ fensterw_typ
kwn kws kwo kww kd kk ft kt Dachraum_typ ugd_typ absfaktor cbk_hDach fn fs fo fw verschn verschs verscho verschw
ran ras rao raw kfgn kfgs kfgo kfgw kfrn kfrs kfro kfrw gfn gfs gfo gfw Klimadatei Innenwandart Aussenwandart
Check_Dachgeschoss Option_Dachfirst hd Option1 Klimaeffizienz Klimaauswahl Heizsystem Uebergabe Energietraeger
infiltration Waermebruecken""".split()

# Name, quantity, step, least and largest value as shown, and what is shown of 1 in the file; "_": of a facade.
SLIDERS = [
    ("Länge", "l", 1, 2, 50, 1), ("Breite", "b", 1, 2, 50, 1), ("Höhe (ohne Dach)", "h", 0.2, 2, 50, 1),
    ("Dachhöhe", "hd", 0.2, 0, 5, 1), ("Anzahl Geschosse", "ag", 1, 1, 20, 1),
    ("Auslenkung aus der Südrichtung", "orient", 5, -45, 45, 1), ("Wandanteil", "f_", 5, 0, 100, 1),
    ("U-Wert Glas", "kfg_", 0.05, 0, 6, 1), ("U-Wert Rahmen", "kfr_", 0.05, 0, 6, 1), ("g-Wert", "gf_", 0.05, 0, 1, 1),
    ("Rahmenanteil", "ra_", 5, 0, 100, 100), ("Verschattung", "versch_", 5, 0, 100, 100),
    ("U-Werte der Wände", "kw_", 0.1, 0.01, 1.5, 1), ("U-Wert Dach oder obere Geschoßdecke", "kd", 0.1, 0, 1.5, 1),
    ("U-Wert untere Geschoßdecke", "kk", 0.1, 0, 1.5, 1), ("Fläche der Tür", "ft", 1, 0, 50, 1),
    ("U-Wert der Tür", "kt", 1, 0, 20, 1), ("Absorptionskoeffizient der Wände", "absfaktor", 0.1, 0, 1, 1),
    ("Soll-Raumlufttemperatur", "Troom", 2, -10, 40, 1), ("Überwärmungsgrenze", "Tueber", 1, 10, 40, 1),
    ("Freie Lüftung", "infiltration", 0.2, 0, 10, 1), ("Mechanische Lüftung", "lw", 0.2, 0, 10, 1),
    ("Wärmerückgewinnung", "WRG", 5, 0, 100, 100), ("Interne Gewinne", "intg", 5, 0, 400, 1),
    ("Effizienzfaktor Klimaanlage", "Klimaeffizienz", 1, 0.5, 8, 1)]

# Name, quantity and its values in the order of the list.
CHOICES = [
    ("Beheiztes Dachgeschoß", "Check_Dachgeschoss", [0, 1]), ("Dachfirst", "Option_Dachfirst", [1, 2]),
    ("Fenstertyp", "fenster__typ", list(range(7))), ("Gleiche oder verschiedene Fenster", "Option1", [0, 1]),
    ("Oberer Abschluss gegen", "Dachraum_typ", [0, 1, 2]), ("Untere Geschoßdecke gegen", "ugd_typ", [0, 1, 2, 3, 4]),
    ("Hinterlüftetes Dach", "cbk_hDach", [1, 0]), ("Wärmebrücken", "Waermebruecken", [0, 0.1, 0.05]),
    ("Wand gegen beheizt", "aw_", [1, 0]), ("Art der Außenwände", "Aussenwandart", [0, 1, 2]),
    ("Art der Innenwände", "Innenwandart", [0, 1, 2]), ("Heizungssystem", "Heizsystem", list(range(1, 10))),
    ("Wärmeübergabe", "Uebergabe", [1, 2]), ("Energieträger", "Energietraeger", [1, 2, 3, 4])]

CARRIERS = [2, 2, 2, 2, 1, 4, 1, 1, 1]  # of each heating system
SIDES = {"Nord": "n", "Süd": "s", "Ost": "o", "West": "w"}
GLASS = ("kfg", "kfr", "gf")
PROPERTIES = (*GLASS, "ra", "versch")


def facades(base, quantity):
    """The names behind an input, and the facades that each of them sets."""
    if base["Option1"] == 0 and (quantity[:-1] in PROPERTIES or quantity == "fenster__typ"):
        return [(" alle Fassaden", "nsow")]
    return [(" " + name, letter) for name, letter in SIDES.items()]


def moved(base, quantity, sides, value):
    """The inputs of a project after one of them was set on the planes."""
    new = dict(base)
    for side in sides or "-":
        new[quantity.replace("_", side, 1) if sides else quantity] = value
        if quantity[:-1] in GLASS:
            new[f"fenster{side}_typ"] = 7
    if quantity == "Troom":
        new["Troom"] = min(value, round(base["Tueber"] - 0.1, 1))
    elif quantity == "Tueber":
        new["Tueber"] = max(value, round(base["Troom"] + 0.1, 1))
    elif quantity == "Check_Dachgeschoss":
        new["hd"] = value
    elif quantity == "Heizsystem":
        new["Uebergabe"] = new["Energietraeger"] = 1
    elif quantity == "Option1" and value == 0:
        for side in "now":
            new[f"fenster{side}_typ"] = base["fensters_typ"]
            new.update({name + side: base[name + "s"] for name in PROPERTIES})
    return new


def locked(base, quantity, sides):
    if quantity in ("hd", "Option_Dachfirst"):
        return base["Check_Dachgeschoss"] == 0
    if quantity == "Dachraum_typ":
        return base["Check_Dachgeschoss"] == 1
    return quantity == "f_" and base["aw" + sides] == 0


def slider_step(base, slider, sides, sign):
    _, quantity, step, least, largest, factor = slider
    field = quantity.replace("_", sides[:1])
    shown = round(base[field] * factor, 3)
    target = round(min(max(shown + sign * step, least), largest), 3)
    if locked(base, quantity, sides) or target == shown:
        return None
    new = moved(base, quantity, sides, round(target / factor, 4))
    return None if new == base else (new, shown, round(new[field] * factor, 3))


def choice_step(base, choice, sides, sign):
    _, quantity, values = choice
    if quantity == "Energietraeger":
        values = values[:CARRIERS[base["Heizsystem"] - 1]]
    if locked(base, quantity, sides) or (quantity == "Uebergabe" and base["Heizsystem"] > 7):
        return None
    now = round(base[quantity.replace("_", sides[:1], 1) if sides else quantity], 4)
    place = values.index(now) + sign if now in values else -1
    if not 0 <= place < len(values):
        return None
    return moved(base, quantity, sides, values[place]), None, None


def steps(base):
    """All steps: (name, direction) -> inputs after it, and a slider's values before and after."""
    found = {}
    for rule, table in ((slider_step, SLIDERS), (choice_step, CHOICES)):
        for row in table:
            for name, sides in facades(base, row[1]) if "_" in (row[1][-1], row[1][7:8]) else [("", "")]:
                for direction, sign in (("nach unten", -1), ("nach oben", 1)):
                    found[row[0] + name, direction] = rule(base, row, sides, sign)
    return found


def write(name, values):
    path = os.path.join(FOLDER, name)
    lines = ["Velmaris Version 3.2"]
    lines += [values[key] if isinstance(values[key], str) else f" {values[key]:.7g}" for key in LINES]
    with open(path, "w", newline="", encoding="cp1252") as file:
        file.write("".join(line + "\r\n" for line in lines))
    return path


def calculated(files):
    """What --json says of each project that can be calculated."""
    output = subprocess.run([PROGRAM, "--json", *files], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    projects = json.loads(output)
    return {project["Datei"]: project for project in (projects if isinstance(projects, list) else [projects])}


def results(project):
    """Heat and cooling demand, primary energy together, for heating and for cooling, kWh/(m2 a)."""
    cooling = sum(month["Kuehlbedarf"] for month in project["Monat"]) / project["f_nutz"]
    heating = project["q_PE_Energietraeger"] + project["q_PE_Strom"]
    by_cooling = cooling / project["Klimaeffizienz"] * 3
    heat = 0 if project["qhs_sum"] < 1e-9 else project["qhs_sum"]
    return [heat, cooling, heating + by_cooling, heating, by_cooling]


def close(text, value, size):
    return abs(float(text) - value) <= 2e-6 * max(1, size)


def check_table(path, rows):
    project = calculated([path])[path]
    base = {key: project[key] for key in LINES}
    expected = steps(base)
    files = {key: write(f"schritt{i}.vel", step[0]) for i, (key, step) in enumerate(expected.items()) if step}
    projects = calculated(files.values())
    outcome = {key: results(projects[file]) for key, file in files.items() if file in projects}
    of_base = results(project)
    assert all(map(close, rows[0][5:10], of_base, of_base)), (path, rows[0], of_base)
    done = set()
    for row in rows[1:]:
        key = row[0], row[2]
        if row[5] == "":
            assert row[-1] and not any(row[5:15]) and key not in outcome, (path, row)
            assert bool(row[4]) == bool(expected.get(key)), (path, row)
            continue
        values, (_, before, after) = outcome[key], expected[key]
        if before is not None:
            assert [float(row[3]), float(row[4])] == [before, after], (path, row, before, after)
        assert all(map(close, row[5:10], values, values)), (path, row, values)
        differences = [value - old for value, old in zip(values, of_base)]
        assert all(map(close, row[10:15], differences, values)), (path, row, differences)
        done.add(key)
    assert done == set(outcome), (path, done ^ set(outcome))
    return len(files) - len(outcome)


def check_page(page, rows):
    """Each step in the table; at the bars the effects, the largest of an input first."""
    shown = opened(BROWSER, FOLDER, page)
    for cells, row in zip(shown.tables["schritte"][1:], rows[1:], strict=True):
        step, _, note = cells[1].partition("|")
        assert cells[0] == row[0] and note == row[-1] and step.startswith(row[2]), (cells, row)
        for cell, difference in zip(cells[2:], row[10:13], strict=True):
            assert cell == "–" if difference == "" else near(cell, difference, 2), (cells, row)
    for chart, column in zip(shown.headings.values(), (10, 11, 12)):
        bars = [float(text) for text in chart if re.fullmatch(r"[+-]\d+\.\d\d", text)]
        inputs = {}
        for row in rows[1:]:
            if row[column]:
                inputs.setdefault(row[0], []).append(float(row[column]))
        effects = [e for e in inputs.values() if max(map(abs, e)) >= 0.005]
        effects.sort(key=lambda e: -round(100 * max(map(abs, e))))
        wanted = [effect for effects_of_input in effects for effect in effects_of_input]
        assert all(near(bar, effect, 2) for bar, effect in zip(bars, wanted, strict=True)), (page, column)


def check(name, path):
    for language in "de":
        if language == "e" and name not in samples:
            break
        page = os.path.join(FOLDER, f"{name}_{language}.html")
        output = subprocess.run([PROGRAM, "--sprache", language, "--empfindlichkeit", page,
                                 "--empfindlichkeit-csv", "-", path], check=True, capture_output=True).stdout
        rows = list(csv.reader(io.StringIO(output.decode("utf-8"))))[1:]
        if language == "d":
            faulty = check_table(path, rows)
            assert (faulty > 0) == (name == "klein"), (path, faulty)
        if BROWSER:
            check_page(page, rows)


def corner(base, low):
    """A house whose sliders stand at one end each, as far as they may."""
    new = dict(base, Check_Dachgeschoss=1, Option1=1)
    for _, quantity, _, least, largest, factor in SLIDERS:
        for side in "nsow" if quantity.endswith("_") else "-":
            new[quantity.replace("_", side)] = (least if low else largest) / factor
    if not low:
        new["Troom"] = 39.9
    return new


os.makedirs(FOLDER, exist_ok=True)
samples = {name: os.path.join(SAMPLES, name + ".vel") for name in ("altes_haus", "glasbuero", "niedrigenergiehaus")}
house, office, low_energy = ({key: project[key] for key in LINES} for project in calculated(samples.values()).values())
variants = {
    "ohne_fenster": dict(house, fn=0, fs=0, fo=0, fw=0),
    "unten": corner(house, low=True),
    "oben": corner(house, low=False),
    "einzeln": dict(house, Option1=1, fensters_typ=7, kfgs=0.9, fenstern_typ=6, verscho=0.5, awn=0, Heizsystem=8),
    "klein": dict(house, l=2.5, b=2.5, h=2.6, ag=1, Aussenwandart=2, Innenwandart=2),
    "eng": dict(office, Troom=25.5, Tueber=26, Check_Dachgeschoss=1, hd=3, Option_Dachfirst=2, Waermebruecken=0.05),
    "von_hand": dict(low_energy, fensters_typ=7, kfgs=1.23, Heizsystem=6, Energietraeger=3, Uebergabe=2, orient=45)}
for name, path in samples.items() | {name: write(name + ".vel", values) for name, values in variants.items()}.items():
    check(name, path)
