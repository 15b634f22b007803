#!/usr/bin/env python3
"""Fails each file call of a session in turn, and a choice of its allocations: one run of the program for each.

    failing_calls.py [--build FOLDER] [--files N] [--every N] [--told] [SESSION...]

After each run the drawing on disk must be the old one or the new one, whole, and where it is the old one the user
must have been told (an exit code, or an error in what was printed); a table that was asked for is whole, or not there
and told. An allocation may fail within an operation that goes on over failures by its nature, such as a row of a bulk
insertion: then the drawing must be whole and hold all that it held before. Without memory some functions of the
system's libraries end the program; that is counted apart. Sessions: the commands, each with a save at its end, and
the verbs. --files makes do with N file calls of a session, spread evenly, without it every one fails; of the
allocations every 100th, or each that --every says. --told prints how the sessions ended. The programs are those of
FOLDER, build/test without it. The session "replace" makes its install folder itself; the others find one."""

import argparse
import collections
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SAMPLES = ROOT / "samples"

ERASE_AND_SAVE = ("(vla-Delete (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object))) 0))\n"
                  "SAVE\n")
SCRIPTS = {
    "replace": "VNREPLACE\nlstDestination = PORTE_80\nCboBlocReplacer = PORTE_90\nBtnReplace\nok\nBtnClose\nSAVE\n",
    "label": "VNLABEL\nCombo2 : PORTE_90\nBtnInserer\n1,-10\n2,-10\nesc\nclose\nSAVE\n",
    "insert": "VNINSERT\nCombo1 # 6\nBtnData\nfile table.txt\nBtnInsert\nok\nBtnClose\nSAVE\n",
    "extract": "VNEXTRACT\nBtnNew\n@128\nOKButton\nall\n\nBtnSave\nfile made.txt\nBtnClose\n" + ERASE_AND_SAVE,
    "about": "VNABOUT\nclose\n" + ERASE_AND_SAVE,
}
VERBS = {
    "verb-replace": ["replace", "--from", "PORTE_80", "--to", "PORTE_90", "drawing.dxf", "--in-place"],
    "verb-insert": ["insert", "--block", "SURVEY_POINT", "--data", "table.txt", "drawing.dxf", "--in-place"],
    "verb-update": ["update", "--data", "values.csv", "drawing.dxf", "--in-place"],
    "verb-extract": ["extract", "--block", "PORTE_80", "drawing.dxf", "--out", "made.csv"],
}
DRAWINGS = {"insert": "template.dxf", "verb-insert": "template.dxf"}
MADE = {"verb-extract": "made.csv"}  # the dialog's own table fails without a word, as it always did
HANDLE = re.compile(rb"(?<!\$HANDSEED\r)\n +(?:5|105)\r?\n([0-9A-F]+)\r?\n")

Run = collections.namedtuple("Run", "drawing made told code")


def spread(count, wanted):
    """`wanted` numbers of 1 to `count`, the last among them; all of them without `wanted`."""
    if wanted is None or wanted >= count:
        return list(range(1, count + 1))
    return [count - i * count // wanted for i in range(wanted)][::-1]


def read(path):
    return path.read_bytes() if path.exists() else None


class Sweep:
    def __init__(self, folder, build):
        self.folder = folder
        self.build = build
        self.preload = folder / "failing_calls.so"
        self.variables = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
        self.variables.update(XDG_DATA_HOME="data", XDG_STATE_HOME="state", LANG="en_US.UTF-8")
        subprocess.run(["g++", "-O1", "-w", "-shared", "-fPIC", "-o", self.preload,
                        ROOT / "tools/failing_calls/failing_calls.cpp", "-ldl"], check=True)
        self.installed = folder / "installed"
        self.installed.mkdir()
        self.call(self.installed, ["vorlane-console", "--script", os.devnull])

    def call(self, work, words, **environment):
        return subprocess.run([self.build / words[0], *words[1:]], cwd=work, capture_output=True, timeout=120,
                              env={**self.variables, "XDG_DATA_HOME": str(work / "data"),
                                   "XDG_STATE_HOME": str(work / "state"), **environment})

    def prepare(self, session):
        """The fresh folder of a session."""
        work = self.folder / "work"
        shutil.rmtree(work, ignore_errors=True)
        if session == "replace":
            work.mkdir()
        else:
            shutil.copytree(self.installed, work)
        shutil.copy(SAMPLES / DRAWINGS.get(session, "apartment.dxf"), work / "drawing.dxf")
        shutil.copy(SAMPLES / "survey_points.txt", work / "table.txt")
        if session == "verb-update":
            self.call(work, ["vorlane", "extract", "--block", "PORTE_80", "--handles", "drawing.dxf", "--out", "t.csv"])
            (work / "values.csv").write_bytes((work / "t.csv").read_bytes().replace(b",80,", b",81,"))
        return work

    def run(self, session, **environment):
        """Runs the session in a fresh folder."""
        work = self.prepare(session)
        words = ["vorlane", *VERBS[session], "--regional", "en"] if session in VERBS else \
                ["vorlane-console", "drawing.dxf", "--script", "session.vns", "--regional", "en"]
        if session in SCRIPTS:
            (work / "session.vns").write_text(SCRIPTS[session], encoding="utf-8")
        done = self.call(work, words, LD_PRELOAD=str(self.preload), **environment)
        return Run(read(work / "drawing.dxf"), read(work / MADE[session]) if session in MADE else None,
                   (done.stdout + done.stderr).decode("utf-8", "replace"), done.returncode)

    def holds(self, left, old):
        """Whether a drawing is without fault and holds every object of the old one."""
        done = self.call(self.folder / "work", ["vorlane", "check", "drawing.dxf"])
        before = set(HANDLE.findall(old))
        return done.returncode == 0 and before and before <= set(HANDLE.findall(left))

    def fault(self, session, kind, old, new, run):
        """What is wrong after a run; empty where nothing is."""
        told = run.code != 0 or "rror" in run.told or "not saved" in run.told
        if run.drawing not in (old.drawing, new.drawing) and not (kind == "memory" and self.holds(run.drawing, old.drawing)):
            return "the drawing is neither the old nor the new one"
        if session in MADE:
            if run.made not in (None, new.made):
                return "the table isn't whole"
            if run.made is None and not told:
                return "there is no table and nobody told"
        elif run.drawing == old.drawing and not told:
            return "nothing was saved and nobody told"
        return f"the program ended by signal {-run.code}" if kind == "file" and run.code < 0 else ""

    def sweep(self, session, files_wanted, every, tells):
        counts = self.folder / f"counts of {session}"
        old = Run(read(SAMPLES / DRAWINGS.get(session, "apartment.dxf")), None, "", 0)
        new = self.run(session, FAIL_COUNT=str(counts))
        if new.code != 0 or (new.made is None if session in MADE else new.drawing in (None, old.drawing)):
            sys.exit(f"{session} doesn't do its work:\n{new.told}")
        files, memory = (max(map(int, column)) for column in zip(*map(str.split, counts.read_text().splitlines())))
        chosen = {"file": spread(files, files_wanted), "memory": list(range(1, memory + 1, every))}
        faults, ends = [], collections.Counter()
        for kind, numbers in chosen.items():
            for n in numbers:
                run = self.run(session, FAIL_KIND=kind, FAIL_AT=str(n))
                ends[kind, "saved" if run.drawing == new.drawing else "old" if run.drawing == old.drawing else "other",
                     run.code] += 1
                if run.code < 0 and tells:
                    print(f"  {kind} {n}: signal {-run.code}: {run.told[-150:]!r}")
                wrong = self.fault(session, kind, old, new, run)
                if wrong:
                    faults.append(f"{kind} {n}: {wrong}\n{run.told[-500:]}")
        ended = sum(count for (kind, _, code), count in ends.items() if kind == "memory" and code < 0)
        print(f"{session}: {len(chosen['file'])} of {files} file calls and {len(chosen['memory'])} of {memory} "
              f"allocations failed, {ended} of these ended the program, {len(faults)} faults", flush=True)
        for (kind, left, code), count in sorted(ends.items()) if tells else ():
            print(f"  {kind}: drawing {left}, exit code {code}: {count}")
        for fault in faults[:20]:
            print("  " + fault)
        return len(faults)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=Path, default=ROOT / "build/test")
    parser.add_argument("--files", type=int)
    parser.add_argument("--every", type=int, default=100)
    parser.add_argument("--told", action="store_true")
    parser.add_argument("sessions", nargs="*", metavar="SESSION", default=[*SCRIPTS, *VERBS])
    line = parser.parse_args()
    folder = Path(tempfile.mkdtemp(prefix="vorlane-failing-"))
    try:
        sweep = Sweep(folder, line.build.resolve())
        sys.exit(1 if sum(sweep.sweep(session, line.files, line.every, line.told) for session in line.sessions) else 0)
    finally:
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()
