#!/usr/bin/env python3
"""Fails each file call of a session in turn, and a choice of its allocations: one run of the console for each.

    failing_calls.py [--memory N] [SESSION...]

After each run the drawing on disk must be the old one or the new one, whole, and where it is the old one the user
must have been told (an exit code, or an error in what was printed). Sessions: the commands, each with a save at its
end. N allocations of each session fail, spread evenly (100 without it)."""

import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
CONSOLE = next((path for path in (ROOT / "build/test/vorlane-console", ROOT / "build/release/vorlane-console")
                if path.exists()), ROOT / "build/test/vorlane-console")

SESSIONS = {
    "replace": "VNREPLACE\nlstDestination = PORTE_80\nCboBlocReplacer = PORTE_90\nBtnReplace\nok\nBtnClose\nSAVE\n",
    "label": "VNLABEL\nCombo2 = PORTE_90\nBtnInserer\n1,-10\n2,-10\nesc\nBtnClose\nSAVE\n",
    "insert": "VNINSERT\nCombo1 # 6\nBtnData\nfile table.txt\nBtnInsert\nok\nBtnClose\nSAVE\n",
    "about": "VNABOUT\nclose\n(vla-Delete (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument "
             "(vlax-get-acad-object))) 0))\nSAVE\n",
}
DRAWINGS = {"insert": "template.dxf"}


class Sweep:
    def __init__(self, folder):
        self.folder = folder
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
        shutil.copytree(self.folder / "data", work / "data", dirs_exist_ok=True) if (
            self.folder / "data").exists() else None
        variables = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
        variables.update(XDG_DATA_HOME=str(work / "data"), XDG_STATE_HOME=str(work / "state"), LANG="en_US.UTF-8",
                         LD_PRELOAD=str(self.preload), **environment)
        done = subprocess.run([CONSOLE, "drawing.dxf", "--script", "session.vns", "--regional", "en"], cwd=work,
                              env=variables, capture_output=True, timeout=120)
        left = (work / "drawing.dxf").read_bytes() if (work / "drawing.dxf").exists() else None
        return left, (done.stdout + done.stderr).decode("utf-8", "replace"), done.returncode

    def sweep(self, session, allocations):
        old = (ROOT / "samples" / DRAWINGS.get(session, "apartment.dxf")).read_bytes()
        counts = self.folder / "counts"
        new, told, code = self.run(session, FAIL_COUNT=str(counts))
        if code != 0 or new in (None, old):
            sys.exit(f"{session} doesn't do its work:\n{told}")
        files, memory = map(int, counts.read_text().split())
        step = max(memory // max(allocations, 1), 1)
        runs = [("file", n) for n in range(1, files + 1)]
        if allocations:
            runs += [("memory", n) for n in range(1, memory + 1, step)]
        faults = []
        for kind, n in runs:
            left, told, code = self.run(session, FAIL_KIND=kind, FAIL_AT=str(n))
            if left not in (old, new):
                faults.append(f"{kind} {n}: the drawing is neither the old nor the new one\n{told[-500:]}")
            elif left == old and code == 0 and "rror" not in told and "not saved" not in told:
                faults.append(f"{kind} {n}: nothing was saved and nobody told\n{told[-500:]}")
            elif code < 0:
                faults.append(f"{kind} {n}: the program ended by signal {-code}\n{told[-500:]}")
        print(f"{session}: {files} file calls and {len(runs) - files} of {memory} allocations failed, "
              f"{len(faults)} faults", flush=True)
        for fault in faults[:20]:
            print("  " + fault)
        return len(faults)


def main():
    arguments = sys.argv[1:]
    allocations = 100
    if arguments[:1] == ["--memory"]:
        allocations = int(arguments[1])
        arguments = arguments[2:]
    folder = Path(tempfile.mkdtemp(prefix="vorlane-failing-"))
    try:
        sweep = Sweep(folder)
        sys.exit(1 if sum(sweep.sweep(session, allocations) for session in arguments or SESSIONS) else 0)
    finally:
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()
