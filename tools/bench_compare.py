#!/usr/bin/env python3
"""Counts what the jobs cost, in figures that don't depend on the machine, and compares them with the accepted ones.

    tools/bench_compare.py [BUILD_FOLDER] [--accept]

BUILD_FOLDER is that of the preset "test", build/test without it: its flags are the accepted ones'. Each job runs
under valgrind on two drawings; what the larger one costs more, by the references that it has more, is the cost of a
reference: instructions (callgrind) and allocations (dhat). What the program's start costs is a line of its own. A figure
more than 2 % above the accepted one fails; --accept writes bench/accepted.json anew. Needs valgrind."""

import argparse
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
ACCEPTED = ROOT / "bench" / "accepted.json"
SMALL, LARGE = 100, 400
ALLOWED = 1.02
REPLACE = (ROOT / "tools" / "measure_job.vns").read_text()

# The script of each job and the drawing that it is given; the drawing "turned" has a rotation of its own for each
# reference. What a job has in common with the one named last is taken off.
JOBS = {
    "open": ("big", "LIST\n", None),
    "replace": ("big", REPLACE, "open"),
    "replace turned": ("turned", REPLACE, "open"),
    "replace and undo": ("turned", REPLACE.replace("LIST\n", "U\nLIST\n"), "open"),
    "extract": ("big", "VNEXTRACT\nBtnNew\n@112\nOKButton\nall\n\nBtnSave\nfile {folder}/data.txt\nBtnClose\n", "open"),
    "insert": ("one", "VNINSERT\nCombo1 # 2\nBtnData\nfile {folder}/data.txt\nBtnInsert\nok\nBtnClose\nSAVE result.dxf\n", None),
}


def valgrind(tool, pattern, command, folder):
    run = subprocess.run(
        ["valgrind", f"--tool={tool}", f"--{tool}-out-file=/dev/null", *command],
        cwd=folder, capture_output=True, text=True, env={**os.environ, "XDG_DATA_HOME": str(folder / "data")})
    found = re.search(pattern, run.stderr)
    if run.returncode != 0 or not found:
        sys.exit(f"{' '.join(command)} failed:\n{run.stdout}{run.stderr}")
    return int(found.group(1).replace(",", ""))


def counts(command, folder):
    return (valgrind("callgrind", r"Collected : (\d+)", command, folder),
            valgrind("dhat", r"Total: +[\d,]+ bytes in ([\d,]+) blocks", command, folder))


def warm_up(console, folder):
    """Lets each job fill the install folder and the settings, waits until these count as settled, and counts a start."""
    for drawing, script, _ in JOBS.values():
        (folder / "script.vns").write_text(script.format(folder=folder))
        subprocess.run([*console, f"{drawing}.dxf", "--script", "script.vns", "--regional", "en"], cwd=folder, check=True,
                       capture_output=True, env={**os.environ, "XDG_DATA_HOME": str(folder / "data")})
    time.sleep(2.5)
    (folder / "script.vns").write_text("LIST\n")
    command = [*console, "one.dxf", "--script", "script.vns", "--regional", "en"]
    subprocess.run(command, cwd=folder, check=True, capture_output=True,
                   env={**os.environ, "XDG_DATA_HOME": str(folder / "data")})  # it sees that all is in order
    return counts(command, folder)


def measure(build, folder):
    console = [str(build / "vorlane-console")]
    whole = {}
    for references in (SMALL, LARGE):
        for name, more in (("big", []), ("turned", ["turned"])):
            subprocess.run([build / "make-big-drawing", str(references), folder / f"{name}.dxf", *more], check=True)
        subprocess.run([build / "make-big-drawing", "1", folder / "one.dxf"], check=True)
        if references == SMALL:
            start = warm_up(console, folder)
        for job, (drawing, script, _) in JOBS.items():
            (folder / "script.vns").write_text(script.format(folder=folder))
            command = [*console, f"{drawing}.dxf", "--script", "script.vns", "--regional", "en"]
            whole[job, references] = counts(command, folder)
    figures = {"start": {"instructions": start[0], "allocations": start[1]}}
    for job, (_, _, common) in JOBS.items():
        each = [(whole[job, LARGE][i] - whole[job, SMALL][i]) / (LARGE - SMALL) for i in (0, 1)]
        if common:
            off = figures[common]
            each = [each[0] - off["instructions"], each[1] - off["allocations"]]
        figures[job] = {"instructions": round(each[0]), "allocations": round(each[1], 1)}
    return figures


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", nargs="?", type=pathlib.Path, default=ROOT / "build" / "test")
    parser.add_argument("--accept", action="store_true")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        figures = measure(arguments.build.resolve(), pathlib.Path(folder))
    accepted = json.loads(ACCEPTED.read_text()) if ACCEPTED.exists() else {}
    dearer = False
    print(f"{'':20}{'instructions':>14}{'accepted':>12}{'allocations':>14}{'accepted':>12}")
    for job, figure in figures.items():
        line, marks = f"{job:20}", ""
        for kind in ("instructions", "allocations"):
            before = accepted.get(job, {}).get(kind)
            line += f"{figure[kind]:>{14},}{'-' if before is None else format(before, ','):>12}"
            # A few allocations more or less in a whole job are nobody's doing.
            if before is not None and figure[kind] > before * ALLOWED + 0.1:
                marks = "  dearer"
        dearer = dearer or bool(marks)
        print(line + marks)
    if arguments.accept:
        ACCEPTED.write_text(json.dumps(figures, indent=2) + "\n")
    return 1 if dearer and not arguments.accept else 0


if __name__ == "__main__":
    sys.exit(main())
