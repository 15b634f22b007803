#!/usr/bin/env python3
"""Runs the examples of README, docs and help in the console, so that a sentence that isn't true fails.

    check_prose.py CONSOLE [FILE ...]     without files: README*.md, docs/*.md and the help

An example is a comment of HTML, which no reader sees, beside the sentence that it proves:

    <!-- try samples/apartment.dxf [options of the console] [--language fr]
    = points.txt           a file for the folder that it runs in, up to a line "="; \\t is a tab
    ...
    =
    VNREPLACE              lines for the console
    ;= PORTE_90            the console has printed this since the text expected before
    -->

In Markdown a fenced block that opens with ```console DRAWING [options] is shown and run; what it must print
stands in a comment right behind it: <!-- prints: text --> ."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
HIDDEN = re.compile(r"<!-- try ([^\n]*)\n(.*?)-->", re.S)
FENCED = re.compile(r"```console ([^\n]*)\n(.*?)```\s*((?:<!-- prints: [^\n]*? -->\s*)*)", re.S)
FILE = re.compile(r"^= (\S+)\n(.*?)^=\n", re.S | re.M)


def examples(path):
    """Line, options and script of each example."""
    text = path.read_text(encoding="utf-8")
    for match in HIDDEN.finditer(text):
        yield text[: match.start()].count("\n") + 1, match.group(1), match.group(2)
    for match in FENCED.finditer(text):
        expected = re.findall(r"<!-- prints: (.*?) -->", match.group(3))
        script = match.group(2) + "".join(f";= {line}\n" for line in expected)
        yield text[: match.start()].count("\n") + 1, match.group(1), script


def run(console, options, script, folder):
    """What the console printed and its exit code."""
    for name, content in FILE.findall(script):
        text = content.replace("\\t", "\t").replace("\n", "\r\n")
        (folder / name).write_bytes(text.encode("cp1252"))
    lines = [line for line in FILE.sub("", script).splitlines(True) if not line.startswith(";=")]
    (folder / "script.vns").write_text("".join(lines), encoding="utf-8")
    drawing, *rest = options.split()
    language = "en"
    if "--language" in rest:
        at = rest.index("--language")
        language = rest[at + 1]
        del rest[at : at + 2]
    if "--regional" not in rest:
        rest += ["--regional", language]
    locale = "fr_FR.UTF-8" if language == "fr" else "en_US.UTF-8"
    environment = {"PATH": os.environ["PATH"], "LANG": locale, "XDG_DATA_HOME": str(folder / "data"),
                   "XDG_STATE_HOME": str(folder / "state")}
    done = subprocess.run([console, drawing, "--script", "script.vns", *rest], cwd=folder, env=environment,
                          stdin=subprocess.DEVNULL, capture_output=True, timeout=120)
    return done.stdout.decode("utf-8", "replace") + done.stderr.decode("utf-8", "replace"), done.returncode


def faults(console, path):
    for line, options, script in examples(path):
        where = f"{path.relative_to(ROOT)}:{line}"
        with tempfile.TemporaryDirectory(prefix="vorlane-prose-") as name:
            folder = Path(name)
            shutil.copytree(ROOT / "samples", folder / "samples")
            (folder / "out").mkdir()
            told, code = run(console, options, script, folder)
        if code != 0:
            yield f"{where}: exit code {code}\n{told[-1500:]}"
            continue
        at = 0
        for expected in re.findall(r"^;= (.*)$", script, re.M):
            found = told.find(expected.strip(), at)
            if found < 0:
                yield f"{where}: \"{expected}\" isn't printed\n{told[-1500:]}"
                break
            at = found + 1


def main():
    console = Path(sys.argv[1]).resolve()
    files = [Path(name).resolve() for name in sys.argv[2:]] or sorted(
        [*ROOT.glob("README*.md"), *ROOT.glob("docs/*.md"), *ROOT.glob("resources/help/*/*.html")])
    count, found = 0, []
    for path in files:
        count += sum(1 for _ in examples(path))
        found += faults(console, path)
    for fault in found:
        print(fault)
    print(f"{count} examples, {len(found)} false")
    return 1 if found or not count else 0


if __name__ == "__main__":
    sys.exit(main())
