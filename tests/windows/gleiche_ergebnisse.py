"""The console program for Windows, under Wine, writes what the one of this machine writes, byte for byte.

Runs below unter_wine.sh. Arguments: the program of this machine, the one for Windows, the folder of the sample projects, a folder to work in,
the number of random projects. Both programs have their climate data beside them. The German decimal comma is
tried where the package locales is at hand.
"""
import os
import random
import re
import shutil
import subprocess
import sys

HERE, WINDOWS, SAMPLES, FOLDER = sys.argv[1:5]
COUNT = int(sys.argv[5])
WINE = os.environ["WINE"]
NAMES = ["altes_haus", "glasbuero", "niedrigenergiehaus"]

# Lines of a project file: what numbers they may have, from, to and how many to a unit.
RANGES = {2: (2, 50, 10), 3: (2, 50, 10), 4: (3, 50, 10), 5: (1, 8, 1), 6: (0, 10, 100), 7: (0, 1, 100), 8: (-45, 45, 1),
          9: (0, 400, 2), 10: (5, 25, 10), 11: (26, 40, 10), 24: (0, 1.5, 100), 25: (0, 1.5, 100), 26: (0, 5, 10),
          27: (0, 20, 10), 30: (0, 1, 100), 57: (0, 2, 1), 58: (0, 2, 1), 59: (0, 1, 1), 60: (0, 1, 1), 65: (0, 8, 1),
          **{line: (0.01, 1.5, 100) for line in range(20, 24)}, **{line: (0, 90, 1) for line in range(32, 36)},
          **{line: (0, 1, 100) for line in range(36, 44)}}


def number(rng, low, high, steps):
    text = f"{rng.randint(round(low * steps), round(high * steps)) / steps:.2f}"
    return text.rstrip("0").rstrip(".") or "0"


def random_project(rng, stations):
    with open(os.path.join(SAMPLES, rng.choice(NAMES) + ".vel"), encoding="cp1252", newline="") as file:
        lines = file.read().split("\r\n")
    for line, limits in RANGES.items():
        if rng.random() < 0.6:
            lines[line - 1] = " " + number(rng, *limits)
    lines[55] = rng.choice(stations)
    return rng.choice(["\r\n", "\n"]).join(lines)


def prepare(folder):
    """The same projects for both, in a folder whose name is not of one code page."""
    rng = random.Random(20)
    stations = sorted(name for name in os.listdir(os.path.join(os.path.dirname(HERE), "klima")) if name.endswith(".met"))
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(os.path.join(folder, "Größe Łódź"))
    files = []
    for name in NAMES:
        files.append(f"Größe Łódź/{name} ß.vel")
        shutil.copy(os.path.join(SAMPLES, name + ".vel"), os.path.join(folder, files[-1]))
    for i in range(COUNT):
        files.append(f"{i}.vel")
        with open(os.path.join(folder, files[-1]), "w", encoding="cp1252", newline="") as file:
            file.write(random_project(rng, stations))
    with open(os.path.join(folder, "plan ä.csv"), "w", encoding="utf-8-sig", newline="") as file:
        file.write("kws;Troom\r\n0,3;19,5\r\n1,4;20\r\nfalsch;21\r\n")
    return files


def calls(files):
    """Calls of one machine, each with what it prints; a wrong call and files that are not there are among them."""
    house = files[0]
    return [["--json", *files],
            ["--csv", "jahr ü.csv", *files],
            ["--sprache", "e", files[1]],
            ["--csv-stunden", "stunden.csv", house],
            ["--temperaturen", "temperaturen.txt", files[1]],
            ["--bericht", "bericht é.rtf", house],
            ["--bericht-seite", "3", files[2]],
            ["--diagramme", "Bilder ö", house],
            ["--vergleich", "seite.html", "--vergleich-csv", "seite.csv", *files[:3]],
            ["--speichern", "ein/zwei/neu.vel", house],
            ["--speichern", "neu ü.vel", house],
            ["--neu", files[2]],
            ["--plan", "plan ä.csv", "--ausgabe", "studie.csv", house],
            ["--plan", "plan ä.csv", "--ausgabe", "studie.csv", "--fortsetzen", house],
            ["--variiere", "kws=0.1:1.4:0.1", "--variiere", "orient=-45:45:15", "--ausgabe", "-", house],
            ["--json", "fehlt ä.vel"],
            ["--json", "Größe Łódź"],
            ["--falsch"]]


def german_calls(files):
    """Calls whose texts are written with the decimal mark of the environment."""
    return [["--bericht", "Bericht mit Komma.rtf", files[1]],
            ["--temperaturen", "Temperaturen mit Komma.txt", files[0]],
            ["--vergleich", "Seite mit Komma.html", *files[:3]],
            ["--diagramme", "Bilder mit Komma", files[2]]]


def german():
    """The environment of a German user, from which Wine takes how Windows writes numbers; nothing if it cannot be made."""
    if not os.path.exists("/usr/share/i18n/locales/de_DE"):
        return None
    place = os.path.join(os.path.abspath(FOLDER), "locale")
    os.makedirs(place, exist_ok=True)
    subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", os.path.join(place, "de_DE.UTF-8")], check=True)
    return {"LOCPATH": place, "LC_ALL": "de_DE.UTF-8"}


def run(program, folder, arguments, surroundings):
    # The climate folder of a user must not mix in.
    environment = dict(os.environ, WINEDEBUG="-all", XDG_DATA_HOME=os.path.abspath(os.path.join(FOLDER, "none")), **surroundings)
    result = subprocess.run(program + arguments, cwd=folder, env=environment, capture_output=True, timeout=600)
    return result.returncode, result.stdout, result.stderr


def written(folder):
    found = {}
    for place, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(place, name)
            with open(path, "rb") as file:
                found[os.path.relpath(path, folder)] = file.read()
    return found


def first_difference(a, b):
    at = next((i for i, (x, y) in enumerate(zip(a, b)) if x != y), min(len(a), len(b)))
    return f"at byte {at}: {a[max(0, at - 60):at + 60]!r} / {b[max(0, at - 60):at + 60]!r}"


def main():
    folders = [os.path.join(FOLDER, name) for name in ("hier", "windows")]
    files = [prepare(folder) for folder in folders][0]
    todo = [(arguments, {}) for arguments in calls(files)]
    comma = german()
    if comma is not None:
        todo += [(arguments, comma) for arguments in german_calls(files)]
    faults, size, calculated = [], 0, 0
    for arguments, surroundings in todo:
        here = run([os.path.abspath(HERE)], folders[0], arguments, surroundings)
        there = run([WINE, os.path.abspath(WINDOWS)], folders[1], arguments, surroundings)
        size += len(here[1]) + len(here[2])
        for what, a, b in zip(("exit status", "stdout", "stderr"), here, there):
            if a != b:
                faults.append(f"{what} of {arguments[:2]}: " + (f"{a} / {b}" if isinstance(a, int) else first_difference(a, b)))
        if arguments[0] == "--json" and len(arguments) > 2:
            calculated = here[1].count(b'"Datei"')
    here, there = (written(folder) for folder in folders)
    faults += [f"only one of both wrote {name}" for name in here.keys() ^ there.keys()]
    for name in here.keys() & there.keys():
        size += len(here[name])
        if here[name] != there[name]:
            faults.append(f"{name} {first_difference(here[name], there[name])}")
    if comma is not None and not re.search(rb"\d,\d", here.get("Temperaturen mit Komma.txt", b"")):
        faults.append("no number has a decimal comma")
    if calculated < len(files) * 0.8:
        faults.append(f"only {calculated} of {len(files)} projects were calculated at all")
    for fault in faults:
        print(fault)
    if comma is None:
        print("Note: no call had a decimal comma; that takes the package locales.")
    print(f"{len(todo)} calls, {calculated} of {len(files)} projects calculated, {len(here)} files, "
          f"{size} bytes compared: {'DIFFERENT' if faults else 'equal'}")
    return 1 if faults else 0


sys.exit(main())
