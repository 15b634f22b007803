#!/usr/bin/env python3
"""Seeds one-line faults in rooms and tells which of them the tests don't notice.

    seed_faults.py ROOM... [--count N] [--seed N] [--file TEXT] [--tests NAME,NAME] [--acts NAME,NAME] [--looks N]
                   [--quick] [--headers] [--list] [--again] [--survivors] [--copy NAME]

A room is a name of cmake/RoomList.cmake. The tool works on a copy of the tree under build/seed (which stays, so that a second
call builds little), builds there with one job, through ccache where it is installed, and never touches the tree itself. First
it runs the rooms' test programs and all transcripts and notes which lines each of them reaches. Then it seeds one fault at a
time: an operator turned, a constant changed, a condition negated, a statement dropped. Each fault is given to the tests that
reach its line, the room's own first, then the quickest, until one fails. A fault that doesn't compile is replaced by another.
The tests named Hostile..., which are long, don't look at faults.

What was found out is kept in the copy's build folder: a run that was stopped goes on where it was, and a test whose sources
stayed isn't asked again what it reaches. Verdicts are dropped by --again.

    --count N      so many faults in each room (30)
    --seed N       another choice of faults (1); the same seed on the same sources makes the same choice
    --file TEXT    only in files whose name holds the text
    --tests A,B    these folders of tests/ besides the rooms' own
    --acts A,B     only the transcripts whose names begin so
    --looks N      at most so many tests look at a fault (all of them); a fault that outlives them counts as a survivor
    --quick        doesn't ask what the tests reach, for which it would build the rooms anew: all of them look at each fault
    --headers      faults in headers too: each rebuilds much
    --again        tries every fault anew
    --survivors    tries the earlier survivors anew: after tests were written for them
    --copy NAME    works in build/NAME (seed): two runs side by side
    --list         prints the faults that would be seeded, and ends

The exit code is 0 however many survive. A survivor may change nothing that can be seen: that is for you to judge."""

import argparse
import hashlib
import json
import os
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import time
from pathlib import Path

from check_includes import ROOT, rooms

OPERATORS = {" == ": " != ", " != ": " == ", " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " && ": " || ",
             " || ": " && ", " + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " += ": " -= ", " -= ": " += "}
NUMBER = re.compile(r"(?<![\w.])(\d+(?:\.\d*)?)(?![\w.'])")
NO_STATEMENT = re.compile(r"(return|if|else|for|while|do|case|default|using|static|const|constexpr|auto|namespace|typedef|"
                          r"struct|class|enum|template|friend|public|private|protected)\b|.*\breserve\(")
STATEMENT = re.compile(r"[*\w:.\->\[\]()]+(\s*([-+|&*/]?=)\s.*|\(.*\)|\+\+|--)?;|(\+\+|--)[\w.]+;")
LITERAL = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|(?<![0-9a-fA-F])\'(?:\\.|[^\'\\\n])+\'', re.S)


def masked(text):
    """The text with comments and literals blotted out, each character in its place."""
    return LITERAL.sub(lambda found: re.sub(r"[^\n]", "~", found.group()), text)


def closing(text, start):
    """The place of the bracket that closes the one at `start`, or -1."""
    depth = 0
    for i in range(start, len(text)):
        depth += {"(": 1, ")": -1}.get(text[i], 0)
        if depth == 0:
            return i
    return -1


def line_faults(line, code, before):
    """The faults of a line: what was done, and the line with it. `code` is the masked line, `before` the code line above."""
    swap = lambda start, end, text: line[:start] + text + line[end:]
    for old, new in OPERATORS.items():
        if old == " + " and "~" in code:
            continue  # joins texts
        for found in re.finditer(re.escape(old), code):
            yield f"operator{old}becomes{new.rstrip()}", swap(*found.span(), new)
    for old, new in (("true", "false"), ("false", "true")):
        for found in re.finditer(rf"\b{old}\b", code):
            yield f"constant {old} becomes {new}", swap(*found.span(), new)
    for found in NUMBER.finditer(code):
        old = found.group(1)
        # A large number is doubled: a control that is one unit wider is no fault.
        new = str(float(old) + 1) if "." in old else str(int(old) + 1 if int(old) < 100 else int(old) * 2)
        yield f"constant {old} becomes {new}", swap(*found.span(1), new)
    for found in re.finditer(r"!(?=[\w(])", code):
        yield "negation dropped", swap(*found.span(), "")
    for found in re.finditer(r"\b(if|while) \(", code):
        start, end = found.end(), closing(code, found.end() - 1)
        if end < 0:
            continue
        start = code.rfind("; ", start, end) + 2 if "; " in code[start:end] else start
        if not re.search(r"[\w\]] = ", code[start:end]):
            yield "condition negated", line[:start] + "!(" + line[start:end] + ")" + line[end:]
        rest = code[end + 1:].strip()
        if rest.endswith(";"):
            yield "statement dropped", line[:end + 1] + " {}\n"
    bare = code.strip()
    whole = bare.count("(") == bare.count(")") and STATEMENT.fullmatch(bare) and not NO_STATEMENT.match(bare)
    if whole and before.endswith((";", "{", "}", ":", ")", "else")):
        yield "statement dropped", line[:len(line) - len(line.lstrip())] + ";\n"


def faults(file):
    """Every fault of a file as (file, line from 1, what was done, the new line)."""
    text = file.read_text(encoding="utf-8")
    lines, codes, before, depth = text.splitlines(True), masked(text).splitlines(), ";", 0
    for number, (line, code) in enumerate(zip(lines, codes), 1):
        bare = code.strip().replace("~", "")
        is_code = bare and not bare.startswith(("#", "using ", "template", "static_assert"))
        if is_code and code.startswith("  "):
            for what, new in line_faults(line, code, before):
                yield file, number, what, new
        before = code.strip().rstrip("~ ") or before


def choose(files, seed):
    """Faults in random order, no more than one a line."""
    by_line = {}
    for fault in (fault for file in files for fault in faults(file)):
        by_line.setdefault(fault[:2], []).append(fault)
    rng = random.Random(seed)
    chosen = [rng.choice(by_line[key]) for key in sorted(by_line)]
    rng.shuffle(chosen)
    return chosen


class Copy:
    """The private copy of the tree with its build, and the tests in it."""

    def __init__(self, name, rooms, more_tests, acts, quick):
        self.top = ROOT / "build" / name
        self.build = self.top / "build" / "test"
        self.acts = acts
        self.own = [name for name in dict.fromkeys([*rooms, *more_tests]) if any((ROOT / "tests" / name).glob("*.cpp"))]
        self.refresh()
        # The options of the tree's own build in CI, so that a compiler cache serves both.
        options = ["-DVORLANE_COVERAGE=" + ("" if quick else ";".join(rooms)), "-DVORLANE_WERROR=ON"]
        if shutil.which("ccache"):
            options.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
            os.environ.update(CCACHE_BASEDIR=str(self.top), CCACHE_NOHASHDIR="1",
                              CCACHE_SLOPPINESS="pch_defines,time_macros,include_file_mtime,include_file_ctime")
        subprocess.run(["cmake", "--preset", "test", *options], cwd=self.top, check=True, stdout=subprocess.DEVNULL)

    def refresh(self):
        """Makes the copy's sources equal to the tree's, its own new files included."""
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT, check=True,
                                capture_output=True).stdout.decode().split("\0")
        wanted = {name for name in listed if name and (ROOT / name).is_file()}
        for path in [path for path in self.top.rglob("*") if path.is_file()]:
            name = str(path.relative_to(self.top))
            if not name.startswith("build/") and name not in wanted:
                path.unlink()
        for name in wanted:
            old, new = self.top / name, ROOT / name
            if not old.exists() or old.read_bytes() != new.read_bytes():
                old.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(new, old)

    def targets(self, test):
        """What a test needs built."""
        return [f"test_{test[6:]}"] if test.startswith("tests/") else ["vorlane-console", "make-big-drawing"]

    def make(self, targets):
        """Builds the targets; whether that went well."""
        return subprocess.run(["ninja", "-C", self.build, "-j1", *targets], capture_output=True).returncode == 0

    def tests(self):
        """The commands by name."""
        options = ["--gtest_fail_fast", "--gtest_brief=1", "--gtest_filter=-Hostile*"]
        found = {f"tests/{name}": [self.build / "tests" / f"test_{name}", *options] for name in self.own}
        for script in sorted((self.top / "tests/acts").glob("*.vns")):
            if not script.stem.startswith(self.acts):
                continue
            found[f"acts/{script.stem}"] = ["/usr/bin/python3", self.top / "tests/acts/run_act.py",
                                            self.build / "vorlane-console", script]
        return found

    def passes(self, command, limit):
        """Whether a test passes in so many seconds and 4 GB; what it started ends with it."""
        for data in self.build.rglob("*.gcda"):
            data.unlink()
        room = 4 << 30
        with subprocess.Popen(command, cwd=self.top, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, start_new_session=True,
                              preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (room, room))) as test:
            try:
                return test.wait(limit) in (0, 77)
            except subprocess.TimeoutExpired:
                os.killpg(test.pid, signal.SIGKILL)
                return False

    def reached(self):
        """The lines that the last test reached, by file: the sets of all lines that hold code and of those that ran."""
        data = sorted(self.build.rglob("*.gcda"))
        found = {}
        if data:
            told = subprocess.run(["gcov", "--json-format", "--stdout", *data], cwd=self.build, capture_output=True).stdout
            for report in told.decode().splitlines():
                report = json.loads(report)
                for file in report["files"]:
                    path = (Path(report["current_working_directory"]) / file["file"]).resolve()
                    if path.is_relative_to(self.top):
                        known, ran = found.setdefault(path, (set(), set()))
                        known.update(line["line_number"] for line in file["lines"])
                        ran.update(line["line_number"] for line in file["lines"] if line["count"])
        return found


def reaches(lines, file, number):
    """Whether a test that reached these lines runs that one. A line without code of its own belongs to the statement that began
    above it; a table, which has no code at all, is reached by whatever reaches its file."""
    if file not in lines:
        return False
    known, ran = lines[file]
    for candidate in range(number, number - 8, -1):
        if candidate in known:
            return candidate in ran
    return bool(ran)


class Known:
    """What earlier runs found out, in a file that is written anew after each finding."""

    def __init__(self, path):
        self.path = path
        self.found = json.loads(path.read_text(encoding="utf-8")) if path.exists() else {}

    def get(self, key):
        return self.found.get(key)

    def put(self, key, value):
        self.found[key] = value
        new = self.path.with_suffix(".new")
        new.write_text(json.dumps(self.found), encoding="utf-8")
        new.replace(self.path)

    def drop(self, unwanted):
        self.found = {key: value for key, value in self.found.items() if not unwanted(value)}


def digest(top, patterns):
    """A digest of the files of a tree."""
    found = hashlib.sha256()
    for path in sorted({path for pattern in patterns for path in top.glob(pattern) if path.is_file()}):
        found.update(str(path.relative_to(top)).encode() + b"\0" + path.read_bytes())
    return found.hexdigest()


class Reach:
    """What each test reaches, and how long it takes."""

    def __init__(self, copy, quick):
        self.quick = quick
        self.copy, self.tests, self.lines, self.seconds = copy, copy.tests(), {}, {}
        if not copy.make(sorted({target for name in self.tests for target in copy.targets(name)})):
            sys.exit("The tree doesn't build.")
        print(f"Running {len(self.tests)} tests without a fault", flush=True)
        known = Known(copy.build / "reached.json")
        flags = (copy.build / "CMakeCache.txt").read_text(encoding="utf-8")
        rooms = re.findall(r"^VORLANE_COVERAGE.*", flags, re.M)
        sources = digest(copy.top, ["src/**/*", "desk/**/*", "faces/text/*", "samples/*", "resources/**/*", "tests/acts/*.py"])
        for name, command in self.tests.items():
            own = f"{name}/*" if name.startswith("tests/") else f"tests/{name}.*"
            key = f"{name} {sources} {digest(copy.top, [own])} {rooms}"
            if not known.get(key):
                start = time.monotonic()
                if not copy.passes(command, 900):
                    sys.exit(f"{name} fails without a fault.")
                seconds = time.monotonic() - start
                lines = {} if quick else copy.reached()
                known.drop(lambda value: value["test"] == name)
                known.put(key, {"test": name, "seconds": seconds,
                                "lines": [[str(path), *map(sorted, sets)] for path, sets in lines.items()]})
            found = known.get(key)
            self.seconds[name] = found["seconds"]
            self.lines[name] = {Path(path): (set(code), set(ran)) for path, code, ran in found["lines"]}

    def of(self, room, file, number):
        """The tests that reach a line, in the order in which they are to look."""
        able = [name for name in self.tests if self.quick or reaches(self.lines[name], file, number)]
        return sorted(able, key=lambda name: (name != f"tests/{room}", self.seconds[name]))

    def catcher(self, names):
        """The first of these tests that fails with the fault that was just seeded, "" if none does, None if it doesn't compile.
        Only what a test needs is built before it."""
        for name in names:
            if not self.copy.make(self.copy.targets(name)):
                return None
            if not self.copy.passes(self.tests[name], 20 + 5 * self.seconds[name]):
                return name
        return ""


def verdict_on(fault, reach, room, looks):
    """Seeds a fault: the test that caught it, "" and how many ran in vain, or None if it doesn't compile."""
    file, number, _, new = fault
    original = file.read_text(encoding="utf-8")
    able = reach.of(room, file, number)[:looks]
    if not able:
        return ["", 0]
    text = original.splitlines(True)
    text[number - 1] = new
    try:
        file.write_text("".join(text), encoding="utf-8")
        return [reach.catcher(able), len(able)]
    finally:
        file.write_text(original, encoding="utf-8")


def seed_room(room, reach, known, chosen, count, looks):
    """Seeds faults until `count` of them compiled; how many were caught, and the report's entries for the others."""
    copy, caught, survivors = reach.copy, 0, []
    for fault in chosen:
        file, number, what, new = fault
        if caught + len(survivors) >= count:
            break
        lines, name = file.read_text(encoding="utf-8").splitlines(), file.relative_to(copy.top)
        old = lines[number - 1].strip()
        key = f"{name}: {old} -> {new.strip()} ({lines[:number].count(lines[number - 1])})"
        if not known.get(key):
            known.put(key, verdict_on(fault, reach, room, looks))
        catcher, looked = known.get(key)
        if catcher is None:
            continue
        where = f"{name}:{number}: {what}"
        if catcher:
            caught += 1
            print(f"caught    {where}  ({catcher})", flush=True)
        else:
            reason = f"{looked} tests run it" if looked else "no test runs it"
            survivors.append(f"{where}  ({reason})\n    - {old}\n    + {new.strip()}")
            print(f"SURVIVED  {survivors[-1]}", flush=True)
    return caught, survivors


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("rooms", nargs="+", metavar="ROOM")
    parser.add_argument("--count", type=int, default=30)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--file", default="")
    parser.add_argument("--tests", default="")
    parser.add_argument("--acts", default="")
    parser.add_argument("--looks", type=int)
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--headers", action="store_true")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--survivors", action="store_true")
    parser.add_argument("--copy", default="seed")
    parser.add_argument("--list", action="store_true")
    given = parser.parse_args()
    table = rooms()
    for room in given.rooms:
        if room not in table:
            sys.exit(f"No room {room}; there are {', '.join(table)}.")
    os.nice(5)
    copy = Copy(given.copy, given.rooms, [name for name in given.tests.split(",") if name], tuple(given.acts.split(",")), given.quick)
    reach = None if given.list else Reach(copy, given.quick)
    known = Known(copy.build / "verdicts.json")
    known.drop(lambda verdict: given.again or (given.survivors and verdict[0] == ""))
    report = []
    for room in given.rooms:
        files = [file for file in sorted((copy.top / table[room][0]).glob("*.[ch]*"))
                 if given.file in file.name and (given.headers or file.suffix == ".cpp")]
        chosen = choose(files, given.seed)
        if given.list:
            for file, number, what, new in chosen[: given.count]:
                print(f"{file.relative_to(copy.top)}:{number}: {what}\n    {new.strip()}")
            continue
        caught, survivors = seed_room(room, reach, known, chosen, given.count, given.looks)
        total = caught + len(survivors)
        report += [f"{room}: caught {caught} of {total} faults ({100 * caught // max(total, 1)} %)", *survivors]
        print(report[-1 - len(survivors)], flush=True)
    print("\n" + "\n".join(report))


if __name__ == "__main__":
    main()
