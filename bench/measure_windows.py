#!/usr/bin/env python3
"""Measures the job of tools/measure_job.vns on the add-in's DLL under Wine beside the console: measure_windows.py BUILD CONSOLE

Every reference of a drawing is replaced, with three attributes each. Prints CPU seconds, how many calls of the host's objects a
reference took, and how many objects are held at the end."""

import re
import resource
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/windows"))
import wine  # noqa: E402

COUNTS = re.compile(r"calls (\d+), given (\d+), taken (\d+)")


def cpu_of(run):
    """CPU seconds of a function's child processes, and what it gave."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    given = run()
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime, given


def measure(prefix, console, references, folder):
    def fresh():
        subprocess.run([console.parent / "make-big-drawing", str(references), folder / "big.dxf"], check=True)

    script = ROOT / "tools/measure_job.vns"
    fresh()
    on_console, _ = cpu_of(lambda: subprocess.run([console, "big.dxf", "--script", script, "--regional", "en"], cwd=folder,
                                                  env={"XDG_DATA_HOME": str(folder / "data")}, capture_output=True, check=True))
    fresh()
    on_windows, done = cpu_of(lambda: prefix.run(
        [prefix.build / "stand-in.exe", "big.dxf", "--script", wine.windows_path(script), "--lisp",
         wine.windows_path(ROOT / "resources/vorlane.lsp"), "--install", "install", "--counts"], cwd=folder))
    calls, given, taken = map(int, COUNTS.search(done.stderr.decode("utf-8", "replace")).groups())
    print(f"{references:10} {on_console:10.2f} {on_windows:10.2f} {calls / references:10.2f} {given + taken:10}", flush=True)


def main():
    build, console = (Path(word).resolve() for word in sys.argv[1:3])
    print(f"{'references':>10} {'console s':>10} {'windows s':>10} {'calls each':>10} {'held':>10}")
    with tempfile.TemporaryDirectory(prefix="vorlane-measure-") as name, wine.Prefix(build / "prefix", build) as prefix:
        folder = Path(name)
        shutil.copytree(ROOT / "resources/languages", folder / "install")
        (folder / "install/Vorlane.ini").write_bytes(b"Lng=English\r\n")
        for references in (320, 3200, 32000):
            measure(prefix, console, references, folder)


if __name__ == "__main__":
    main()
