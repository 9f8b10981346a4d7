#!/usr/bin/env python3
"""Measures what the tests catch: puts one small fault at a time into the sources and runs the tests.

Call from the top of the checkout with a configured build folder of its own, best Release or -O1, warnings not
as errors, and CMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST:

    mutanten.py build/mutanten src/calc src/energy    one mutant per 25 lines of both folders
    mutanten.py build/mutanten src/calc/geometrie.cpp --every 5 --seed 3
    mutanten.py build/mutanten src/calc --also console_test --report mutanten.json
    mutanten.py build/mutanten src/calc --list        shows the mutants, builds nothing

A mutant is killed by a failed, crashed or overlong GoogleTest case, else it survived; "not built" ones prove
nothing. The same seed makes the same mutants. The source is written back after each, at an interrupt as well.
"""
import argparse
import json
import os
import random
import re
import signal
import subprocess
import sys
import time
from collections import Counter, defaultdict
from pathlib import Path

# Folders whose test program has another name than the room below src/ that they belong to.
TESTS = {
    "tools/csv.cpp": ["karten_test", "werkzeuge_test"],
    "tools/pictures": ["karten_test"],
    "tools/climate": ["werkzeuge_test"],
    "tools/help": ["hilfe_test"],
}
SWAPS = {
    "arithmetic": {"+": "-", "-": "+", "*": "/", "/": "*", "+=": "-=", "-=": "+=", "*=": "/=", "/=": "*="},
    "comparison": {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="},
    "logic": {"&&": "||", "||": "&&"},
}
NO_STATEMENT = {"return", "throw", "break", "continue", "using", "delete", "goto", "case", "default", "co_return"}


def masked(text):
    """The text with comments, the inside of texts, preprocessor lines and asserts blanked, place for place."""
    pattern = re.compile(
        r"//[^\n]*|/\*.*?\*/"
        r'|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"'
        r'|"(?:\\.|[^"\\\n])*"'
        r"|(?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'"
        r"|^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*"
        r"|\b(?:static_)?assert\s*\((?:[^;\"]|\"(?:\\.|[^\"\\])*\")*;",
        re.DOTALL | re.MULTILINE)

    def blank(match):
        found = match.group()
        bare = re.sub(r"[^\n]", " ", found)
        return found[0] + bare[1:-1] + found[-1] if found[0] in "\"'" else bare

    return pattern.sub(blank, text)


class Mutant:
    def __init__(self, file, text, kind, begin, end, new):
        self.file, self.kind, self.begin, self.end, self.new = file, kind, begin, end, new
        self.line = text.count("\n", 0, begin) + 1
        first = text.rfind("\n", 0, begin) + 1
        last = text.find("\n", end)
        self.before = text[first:last].strip()
        self.after = (text[first:begin] + new + text[end:last]).strip()

    def __str__(self):
        return f"{self.file}:{self.line} [{self.kind}]\n    - {self.before}\n    + {self.after}"


def operators(file, text, code, dice):
    for kind, swap in SWAPS.items():
        signs = "|".join(re.escape(sign) for sign in sorted(swap, key=len, reverse=True))
        for match in re.finditer(rf"(?<= )({signs})(?= |\n)", code):
            around = code[:match.start()].rstrip()[-1:] + code[match.end():].lstrip()[:1]
            if '"' not in around:  # no arithmetic on texts
                yield Mutant(file, text, kind, match.start(), match.end(), swap[match.group()])


def constants(file, text, code, dice):
    """One of the first three digits that count, one up (9: one down)."""
    for match in re.finditer(r"(?<![\w.'])\d[\d.']*(?:[eE][-+]?\d+)?[fFuUlL]*(?![\w.])", code):
        number = match.group()
        places = [i for i, c in enumerate(re.split("[eE]", number)[0]) if c.isdigit()]
        while len(places) > 1 and number[places[0]] == "0":
            places.pop(0)
        place = dice.choice(places[:3])
        digit = "8" if number[place] == "9" else str(int(number[place]) + 1)
        yield Mutant(file, text, "constant", match.start(), match.end(), number[:place] + digit + number[place + 1:])


def closing(code, start):
    """Where the bracket that opens at `start` closes."""
    depth = 0
    for i in range(start, len(code)):
        depth += (code[i] in "([{") - (code[i] in ")]}")
        if depth == 0:
            return i
    return -1


def conditions(file, text, code, dice):
    for match in re.finditer(r"\bif \(", code):
        begin = match.end()
        end = closing(code, begin - 1)
        initial = max(code.rfind(";", begin, end) + 1, begin)
        if end > 0 and not re.match(r"\s*(const )?auto\b", code[initial:end]):
            yield Mutant(file, text, "condition", initial, end, f"!({text[initial:end].strip()})")


def indices(file, text, code, dice):
    for match in re.finditer(r"(?<=[\w)\]])\[([^\[\]{}=&,;]+)\]", code):
        shift = dice.choice([" + 1", " - 1"])
        yield Mutant(file, text, "index", match.start(1), match.end(1), match.group(1) + shift)


def statements(file, text, code, dice):
    for match in re.finditer(r"(?<=[;{})])\s+(([A-Za-z_]\w*)[\w:.>\-\[\]()]*(?: [-+*/]?= [^;]*|\([^;]*\)));", code):
        found = match.group(1)
        if match.group(2) not in NO_STATEMENT and all(found.count(a) == found.count(b) for a, b in ("()", "{}")):
            yield Mutant(file, text, "dropped", match.start(1), match.end(1), "")


def columns(code, begin, end):
    """The places of the entries of the list between two brackets."""
    places, start, depth = [], begin + 1, 0
    for i in range(begin + 1, end):
        depth += (code[i] in "({") - (code[i] in ")}")
        if i == end - 1 or (code[i] == "," and depth == 0):
            places.append((start, i))
            start = i + 2
    return places


def tables(file, text, code, dice):
    """An entry exchanged with that of the next row, a number with the next one, or the two texts of a pair."""
    rows = list(re.finditer(r"^[ ]+\w*(\{.*\}),$", code, re.MULTILINE))
    for one, two in zip(rows, rows[1:]):
        if one.end() + 1 != two.start():
            continue
        pairs = [pair for pair in zip(columns(code, *one.span(1)), columns(code, *two.span(1)))
                 if text[slice(*pair[0])] != text[slice(*pair[1])]]
        if len(pairs) > 1:  # not the first one, by which a row may be found
            (begin, middle), (again, end) = dice.choice(pairs[1:])
            new = text[again:end] + text[middle:again] + text[begin:middle]
            yield Mutant(file, text, "exchanged", begin, end, new)
    for entry in (r"-?\d[\d.']*F?", r'"[^"]*"'):
        for match in re.finditer(rf"(?<=[{{,] |.[{{,])({entry}), ({entry})(?=[,}}])", code):
            first, second = text[slice(*match.span(1))], text[slice(*match.span(2))]
            if first != second:
                yield Mutant(file, text, "exchanged", match.start(), match.end(), f"{second}, {first}")


def mutants(file, every, seed):
    """The sample of a file: the kinds in turn, no line twice, one per `every` lines of code and at least one."""
    text = Path(file).read_text(encoding="utf-8")
    code = masked(text)
    dice = random.Random(f"{seed}:{file}")
    kinds = defaultdict(list)
    for make in (operators, constants, conditions, indices, statements, tables):
        for mutant in make(file, text, code, dice):
            kinds[mutant.kind].append(mutant)
    for found in kinds.values():
        dice.shuffle(found)
    order = sorted(kinds)
    dice.shuffle(order)
    wanted = max(1, round(sum(1 for line in code.splitlines() if line.strip()) / every))
    sample, lines = [], set()
    while len(sample) < wanted and any(kinds.values()):
        for kind in order:
            while kinds[kind]:
                mutant = kinds[kind].pop()
                if mutant.line not in lines:
                    lines.add(mutant.line)
                    sample.append(mutant)
                    break
    return sorted(sample[:wanted], key=lambda m: m.begin)


def tests_of(file):
    """The test program of a room holds the tests of its subfolders too."""
    parts = Path(file).parts
    return TESTS.get("/".join(parts[:2]), [parts[1 if parts[0] == "src" else 0] + "_test"])


class House:
    """The build folder: makes and runs test programs."""

    def __init__(self, build, limit):
        self.build, self.limit, self.usual = Path(build), limit, {}
        self.build_limit = None
        os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")

    def make(self, programs):
        """True if all was built. A build runs generators too, which a mutant may keep from ending."""
        call = ["cmake", "--build", str(self.build), "--target", *programs]
        with subprocess.Popen(call, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              start_new_session=True) as process:
            try:
                return process.wait(timeout=self.build_limit) == 0
            except (subprocess.TimeoutExpired, KeyboardInterrupt) as end:
                os.killpg(process.pid, signal.SIGTERM)
                if isinstance(end, KeyboardInterrupt):
                    raise
                return False

    def run(self, name):
        """The cases of a test program that failed; after a crash the others run again, past the limit none does."""
        seconds = max(10.0, self.limit * self.usual.get(name, 60.0))
        failed, done = set(), []
        for _ in range(4):
            call = [str((self.build / "bin" / name).resolve()), "--gtest_color=no"]
            if done:
                call.append("--gtest_filter=-" + ":".join(done))
            try:
                result = subprocess.run(call, cwd=self.build, timeout=seconds, stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, check=False)
                output, ended = result.stdout, result.returncode in (0, 1)
            except subprocess.TimeoutExpired as late:
                output, ended = late.stdout or b"", None
            running = None
            for line in output.decode("utf-8", "replace").splitlines():
                case = re.match(r"\[ +(RUN|OK|FAILED|SKIPPED) +\] (\w[\w/]*\.\w[\w/]*)", line)
                if not case:
                    continue
                running = case.group(2) if case.group(1) == "RUN" else None
                if running is None:
                    done.append(case.group(2))
                    if case.group(1) == "FAILED":
                        failed.add(case.group(2))
            if ended:
                break
            if running is None:
                failed.add("(start or end of the program)")
                break
            failed.add(running)
            done.append(running)
            if ended is None:
                break
        return sorted(f"{name}.{case}" for case in failed)

    def measure(self, programs):
        """How long each program runs on the sound sources; a program that fails there measures nothing."""
        if not self.make(programs):
            sys.exit("the sound sources do not build")
        for name in programs:
            start = time.monotonic()
            if failed := self.run(name):
                sys.exit(f"fails on the sound sources: {', '.join(failed)}")
            self.usual[name] = time.monotonic() - start
        self.build_limit = 120


def judge(house, mutant, also):
    """Puts the mutant in, builds, runs; the source is written back whatever happens."""
    path = Path(mutant.file)
    sound = path.read_bytes()
    text = sound.decode("utf-8")
    own = tests_of(mutant.file)
    try:
        path.write_bytes((text[:mutant.begin] + mutant.new + text[mutant.end:]).encode("utf-8"))
        if not house.make(own):
            return "not built", []
        killers = [case for name in own for case in house.run(name)]
        if also and not killers and house.make(also):
            killers = [case for name in also for case in house.run(name)]
        return ("killed" if killers else "survived"), killers
    finally:
        path.write_bytes(sound)


def table(title, rows, key):
    print(f"\n{title:32} killed  survived  not built")
    counts = defaultdict(Counter)
    for row in rows:
        counts[key(row)][row["result"]] += 1
    for name, count in sorted(counts.items()):
        share = 100 * count["killed"] / max(1, count["killed"] + count["survived"])
        print(f"{name:32} {count['killed']:6}  {count['survived']:8}  {count['not built']:9}  {share:4.0f} %")


def summary(rows):
    table("folder", rows, lambda row: os.path.dirname(row["file"]))
    table("kind", rows, lambda row: row["kind"])
    table("all", rows, lambda row: "")
    kills, alone = Counter(), Counter()
    for row in rows:
        kills.update(row["killers"])
        if len(row["killers"]) == 1:
            alone.update(row["killers"])
    print("\nkills  alone  test")
    for name, count in sorted(kills.items(), key=lambda item: (-alone[item[0]], -item[1], item[0])):
        print(f"{count:5}  {alone[name]:5}  {name}")
    print("\nsurvivors")
    for row in rows:
        if row["result"] == "survived":
            print(f"{row['file']}:{row['line']} [{row['kind']}]\n    - {row['before']}\n    + {row['after']}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", help="build folder of its own, configured")
    parser.add_argument("sources", nargs="+", help="folders or files below the top of the checkout")
    parser.add_argument("--every", type=float, default=25, help="lines of code per mutant (25)")
    parser.add_argument("--seed", default="1", help="another seed, other mutants")
    parser.add_argument("--also", nargs="*", default=[], help="test programs that a survivor must pass as well")
    parser.add_argument("--limit", type=float, default=5, help="times its usual time that a program may run (5)")
    parser.add_argument("--minutes", type=float, default=1e9, help="start no mutant after so many minutes")
    parser.add_argument("--report", help="JSON file of all mutants, written as they are judged")
    parser.add_argument("--list", action="store_true", help="only show the mutants")
    args = parser.parse_args()

    files = sorted({str(path) for source in args.sources
                    for path in ([Path(source)] if Path(source).is_file() else Path(source).rglob("*.cpp"))
                    if path.name != "main.cpp"})
    todo = [mutant for file in files for mutant in mutants(file, args.every, args.seed)]
    if args.list:
        print("\n".join(map(str, todo)))
        print(f"{len(todo)} mutants in {len(files)} files")
        return
    house = House(args.build, args.limit)
    programs = sorted({name for mutant in todo for name in tests_of(mutant.file)} | set(args.also))
    house.measure(programs)
    signal.signal(signal.SIGTERM, signal.default_int_handler)  # so that the source is written back then too
    rows, begin = [], time.monotonic()
    try:
        for number, mutant in enumerate(todo, 1):
            if time.monotonic() - begin > args.minutes * 60:
                break
            start = time.monotonic()
            result, killers = judge(house, mutant, args.also)
            seconds = round(time.monotonic() - start, 1)
            rows.append({"file": mutant.file, "line": mutant.line, "kind": mutant.kind, "before": mutant.before,
                         "after": mutant.after, "result": result, "killers": killers, "seconds": seconds})
            print(f"{number}/{len(todo)} {result:9} {seconds:5} s  {mutant.file}:{mutant.line} [{mutant.kind}] "
                  f"{len(killers)} tests", flush=True)
            if args.report:
                Path(args.report).write_text(json.dumps(rows, indent=1, ensure_ascii=False), encoding="utf-8")
    except KeyboardInterrupt:
        pass
    house.make(programs)
    summary(rows)


if __name__ == "__main__":
    main()
