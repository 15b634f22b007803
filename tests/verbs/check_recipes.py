#!/usr/bin/env python3
"""Runs the recipes of a document, each as its reader would, on copies of the samples:

    check_recipes.py VORLANE DOCUMENT.md

A block of the kind ```sh recipe is run by the shell, one of ```vns recipe DRAWING by the console as a script. Each has
to end well and to say nothing on the error stream, and the drawings that it leaves have to pass ezdxf's audit."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import ezdxf

ROOT = Path(__file__).resolve().parent.parent.parent


def recipes(document):
    return re.findall(r"^```(sh|vns) recipe *(.*?)\n(.*?)^```$", document.read_text(encoding="utf-8"), re.M | re.S)


def faults(vorlane, kind, drawing, text, folder):
    for sample in (ROOT / "samples").iterdir():
        shutil.copy(sample, folder)
    before = {path.name for path in folder.iterdir()}
    (folder / "bin").mkdir()
    (folder / "bin/vorlane").symlink_to(vorlane)
    environment = {"PATH": f"{folder}/bin:{os.environ['PATH']}", "XDG_DATA_HOME": f"{folder}/data", "LANG": "en_US.UTF-8"}
    command = ["sh", "-ec", text] if kind == "sh" else ["vorlane", drawing, "--script", "-"]
    done = subprocess.run(command, cwd=folder, env=environment, input=text, capture_output=True, text=True,
                          executable=None if kind == "sh" else vorlane)
    if done.returncode != 0 or done.stderr:
        yield f"exit code {done.returncode}\n{done.stdout[-1500:]}{done.stderr}"
    made = [path for path in folder.rglob("*.dxf") if path.name not in before or path.parent != folder]
    for path in made:
        audit = ezdxf.readfile(path).audit()
        for error in audit.errors:
            yield f"{path.name}: audit: {error.message}"


def main():
    vorlane, document = Path(sys.argv[1]).resolve(), Path(sys.argv[2])
    failed = 0
    found = recipes(document)
    if not (vorlane.parent / "vorlane-picture").exists():  # built without what the window needs
        found = [recipe for recipe in found if "vorlane picture" not in recipe[2]]
    for kind, drawing, text in found:
        with tempfile.TemporaryDirectory(prefix="vorlane-recipe-") as name:
            for fault in faults(vorlane, kind, drawing, text, Path(name)):
                failed += 1
                print(f"RECIPE\n{text}FAILED: {fault}")
    print(f"{len(found)} recipes, {failed} faults")
    return 1 if failed or not found else 0


if __name__ == "__main__":
    sys.exit(main())
