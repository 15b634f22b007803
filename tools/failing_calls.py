#!/usr/bin/env python3
"""Fails each file call of a session in turn, and a choice of its allocations: one run of the console for each.

    failing_calls.py [--build FOLDER] [--files N] [--memory N] [SESSION...]

After each run the drawing on disk must be the old one or the new one, whole, and where it is the old one the user
must have been told (an exit code, or an error in what was printed). An allocation may fail within an operation that
goes on over failures by its nature, such as a row of a bulk insertion: then the drawing must be whole and hold all
that it held before. Without memory some functions of the system's libraries end the program; that is counted apart. Sessions: the commands, each with a save at its
end. --files and --memory make do with N calls of a session, spread evenly; without them it is every file call and
100 allocations. The console is that of FOLDER, build/test without it."""

import argparse
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent

SESSIONS = {
    "replace": "VNREPLACE\nlstDestination = PORTE_80\nCboBlocReplacer = PORTE_90\nBtnReplace\nok\nBtnClose\nSAVE\n",
    "label": "VNLABEL\nCombo2 : PORTE_90\nBtnInserer\n1,-10\n2,-10\nesc\nclose\nSAVE\n",
    "insert": "VNINSERT\nCombo1 # 6\nBtnData\nfile table.txt\nBtnInsert\nok\nBtnClose\nSAVE\n",
    "about": "VNABOUT\nclose\n(vla-Delete (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument "
             "(vlax-get-acad-object))) 0))\nSAVE\n",
}
HANDLE = re.compile(rb"(?<!\$HANDSEED\r)\n +(?:5|105)\r?\n([0-9A-F]+)\r?\n")
DRAWINGS = {"insert": "template.dxf"}


def spread(count, wanted):
    """`wanted` numbers of 1 to `count`, the last among them; all of them without `wanted`."""
    if wanted is None or wanted >= count:
        return list(range(1, count + 1))
    return [count - i * count // wanted for i in range(wanted)][::-1]


class Sweep:
    def __init__(self, folder, console):
        self.folder = folder
        self.console = console
        self.preload = folder / "failing_calls.so"
        subprocess.run(["g++", "-O1", "-w", "-shared", "-fPIC", "-o", self.preload,
                        ROOT / "tools/failing_calls/failing_calls.cpp", "-ldl"], check=True)

    def run(self, session, **environment):
        """Runs the session in a fresh folder: the drawing that is left, what was printed, the exit code."""
        work = self.folder / "work"
        shutil.rmtree(work, ignore_errors=True)
        work.mkdir()
        shutil.copy(ROOT / "samples" / DRAWINGS.get(session, "apartment.dxf"), work / "drawing.dxf")
        shutil.copy(ROOT / "samples/survey_points.txt", work / "table.txt")
        (work / "session.vns").write_text(SESSIONS[session], encoding="utf-8")
        variables = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
        variables.update(XDG_DATA_HOME=str(work / "data"), XDG_STATE_HOME=str(work / "state"), LANG="en_US.UTF-8",
                         LD_PRELOAD=str(self.preload), **environment)
        done = subprocess.run([self.console, "drawing.dxf", "--script", "session.vns", "--regional", "en"], cwd=work,
                              env=variables, capture_output=True, timeout=120)
        left = (work / "drawing.dxf").read_bytes() if (work / "drawing.dxf").exists() else None
        return left, (done.stdout + done.stderr).decode("utf-8", "replace"), done.returncode

    def holds(self, left, old):
        """Whether a drawing is without fault and holds every object of the old one."""
        done = subprocess.run([self.console.with_name("vorlane"), "check", "drawing.dxf"], cwd=self.folder / "work",
                              capture_output=True)
        before = set(HANDLE.findall(old))
        return done.returncode == 0 and before and before <= set(HANDLE.findall(left))

    def sweep(self, session, files_wanted, allocations):
        old = (ROOT / "samples" / DRAWINGS.get(session, "apartment.dxf")).read_bytes()
        counts = self.folder / "counts"
        new, told, code = self.run(session, FAIL_COUNT=str(counts))
        if code != 0 or new in (None, old):
            sys.exit(f"{session} doesn't do its work:\n{told}")
        files, memory = map(int, counts.read_text().split())
        chosen_files = spread(files, files_wanted)
        runs = [("file", n) for n in chosen_files] + [("memory", n) for n in spread(memory, allocations)]
        faults = []
        ended = 0
        for kind, n in runs:
            left, told, code = self.run(session, FAIL_KIND=kind, FAIL_AT=str(n))
            ended += kind == "memory" and code < 0
            if left not in (old, new) and not (kind == "memory" and self.holds(left, old)):
                faults.append(f"{kind} {n}: the drawing is neither the old nor the new one\n{told[-200:]}")
            elif left == old and code == 0 and "rror" not in told and "not saved" not in told:
                faults.append(f"{kind} {n}: nothing was saved and nobody told\n{told[-500:]}")
            elif kind == "file" and code < 0:
                faults.append(f"{kind} {n}: the program ended by signal {-code}\n{told[-500:]}")
        print(f"{session}: {len(chosen_files)} of {files} file calls and {len(runs) - len(chosen_files)} of {memory} "
              f"allocations failed, {ended} of these ended the program, {len(faults)} faults", flush=True)
        for fault in faults[:20]:
            print("  " + fault)
        return len(faults)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--build", type=Path, default=ROOT / "build/test")
    parser.add_argument("--files", type=int)
    parser.add_argument("--memory", type=int, default=100)
    parser.add_argument("sessions", nargs="*", metavar="SESSION", default=list(SESSIONS))
    line = parser.parse_args()
    folder = Path(tempfile.mkdtemp(prefix="vorlane-failing-"))
    try:
        sweep = Sweep(folder, line.build / "vorlane-console")
        sys.exit(1 if sum(sweep.sweep(session, line.files, line.memory) for session in line.sessions) else 0)
    finally:
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()
