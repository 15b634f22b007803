#!/usr/bin/env python3
"""Each failure in a script ends it with exit code 1 and the reason on the error stream, and saves nothing; with
--keep-going it is told and the script goes on:  check_scripts.py VORLANE"""

import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent

CASES = [  # what fails, the script up to it, what the error stream has to tell
    ("an unknown command", "FROBNICATE", "Unknown command"),
    ("a drawing that isn't there", "OPEN none.dxf", "none.dxf"),
    ("a Lisp error", "(car 1)", "Error"),
    ("a drawing that can't be saved", "SAVE /nowhere/x.dxf", "nowhere"),
    ("a control that isn't there", "VNREPLACE\nBtnReplac", "near: BtnReplace"),
    ("a disabled control", "VNREPLACE\nBtnSelectZone", "BtnSelectZone is disabled"),
    ("an entry that isn't there", "VNREPLACE\nlstDestination : PORTE_8", "near: PORTE_80"),
    ("a text that is no number", "VNREPLACE\nchkRotation\ntxtRotation = abc\nok", "line 4"),
    ("an error out of a handler", "VNREPLACE\nlstDestination : PORTE_80\nCboBlocReplacer = NONE\nBtnReplace", "Error"),
    ("rows that fail", "VNINSERT\nCombo1 : PORTE_80\nBtnData\nfile bad.txt\nBtnInsert\nok", "The line 2 was not insered"),
    ("a data file that isn't there", "VNINSERT\nBtnData\nfile none.txt", "none.txt isn't there"),
    ("a table that can't be written", "VNEXTRACT\nBtnSave\nfile /nowhere/t.txt", "there is no folder /nowhere"),
    ("a handle that isn't there", "VNEXTRACT\nBtnNew\n@FFFF", "the handle FFFF"),
    ("one of several handles", "SELECT\n@CF @FFFF", "the handle FFFF"),
    ("a handle of other letters", "SELECT\n@CF @XYZ", '"XYZ" is no handle'),
    ("a wrong button of a message box", "VNEXTRACT\nBtnNew\nesc\nmaybe", "is no button"),
    ("the end in the middle of a dialog", "VNREPLACE", "ended while fmReplace"),
]


def main():
    vorlane, wrong = Path(sys.argv[1]).resolve(), 0
    for what, lines, told in CASES:
        with tempfile.TemporaryDirectory(prefix="vorlane-script-") as name:
            folder = Path(name)
            shutil.copy(ROOT / "samples/apartment.dxf", folder)
            (folder / "bad.txt").write_bytes(
                b"Donn\xe9es du bloc \tX\r\nN\xb0\tX\tY\tZ\ta\tb\tc\tR\r\n1\t1\t2\t3\t1\t1\t1\t0\r\n2\tx\t2\t3\t1\t1\t1\t0\r\n")
            original = (folder / "apartment.dxf").read_bytes()
            run = lambda text, *options: subprocess.run(
                [vorlane, "apartment.dxf", "--script", "-", "--fresh", "--regional", "en", "--lang", "en", *options],
                cwd=folder, input=text, capture_output=True, text=True)
            done = run(lines + "\nBtnClose\nSAVE saved.dxf\n" if "middle" not in what else lines + "\n")
            faults = []
            if done.returncode != 1:
                faults.append(f"exit code {done.returncode}")
            if told not in done.stderr:
                faults.append(f"the error stream tells {done.stderr!r}")
            if (folder / "saved.dxf").exists() or (folder / "apartment.dxf").read_bytes() != original:
                faults.append("something was saved")
            for fault in faults:
                wrong += 1
                print(f"WRONG: {what}: {fault}\n{done.stdout[-600:]}")
    with tempfile.TemporaryDirectory(prefix="vorlane-script-") as name:
        shutil.copy(ROOT / "samples/apartment.dxf", name)
        done = subprocess.run([vorlane, "apartment.dxf", "--script", "-", "--fresh", "--keep-going"], cwd=name,
                              input="NONSENSE\nSAVE saved.dxf\n", capture_output=True, text=True)
        if done.returncode != 1 or "NONSENSE" not in done.stderr or not (Path(name) / "saved.dxf").exists():
            wrong += 1
            print(f"WRONG: --keep-going: {done}")
    print(f"{len(CASES) + 1} scripts, {wrong} faults")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
