#!/usr/bin/env python3
"""Runs the examples of README, docs and help, so that a sentence that isn't true fails, and looks for dead links.

    check_prose.py VORLANE [FILE ...]     without files: README*.md, docs/*.md and the help

A recipe is a block of Markdown that a reader copies: ```sh recipe is run by the shell, ```vns recipe DRAWING by the console
as a script, both where the samples lie. It has to end well and to say nothing on the error stream, and the drawings that it
leaves have to pass ezdxf's audit.

An example is a comment of HTML, which no reader sees, beside the sentence that it proves:

    <!-- try samples/apartment.dxf [options of the console]
    = points.txt           a file for the folder that it runs in, up to a line "="; \\t is a tab
    ...
    =
    VNREPLACE              lines for the console
    ;= PORTE_90            the console has printed this since the text expected before
    -->

README.fr.md and the pages in help/fr run on a French desktop, all others on an English one."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

import ezdxf

ROOT = Path(__file__).resolve().parent.parent
LOCK_FILES = shutil.ignore_patterns("*.dwl")  # of tests beside this one that have a sample open
RECIPE = re.compile(r"^```(sh|vns) recipe *([^\n]*)\n(.*?)^```$", re.M | re.S)
EXAMPLE = re.compile(r"<!-- try ([^\n]*)\n(.*?)-->", re.S)
FILE = re.compile(r"^= (\S+)\n(.*?)^=\n", re.S | re.M)


class Run:
    """A folder with the program and the samples, as a reader has them."""

    def __init__(self, vorlane, folder, language):
        self.folder = folder
        (folder / "bin").mkdir()
        (folder / "bin/vorlane").symlink_to(vorlane)
        locale = "fr_FR.UTF-8" if language == "fr" else "en_US.UTF-8"
        self.environment = {"PATH": f"{folder}/bin:{os.environ['PATH']}", "LANG": locale,
                            "XDG_DATA_HOME": f"{folder}/data", "XDG_STATE_HOME": f"{folder}/state"}

    def __call__(self, command, text=""):
        done = subprocess.run(command, cwd=self.folder, env=self.environment, input=text.encode(), capture_output=True,
                              timeout=120)
        return done.returncode, done.stdout.decode("utf-8", "replace"), done.stderr.decode("utf-8", "replace")


def recipe_faults(run, kind, drawing, text):
    shutil.copytree(ROOT / "samples", run.folder, ignore=LOCK_FILES, dirs_exist_ok=True)
    samples = set(run.folder.iterdir())
    command = ["sh", "-ec", text] if kind == "sh" else [run.folder / "bin/vorlane", drawing, "--script", "-"]
    code, told, errors = run(command, text)
    if code or errors:
        yield f"exit code {code}\n{told[-1500:]}{errors}"
    for path in set(run.folder.rglob("*.dxf")) - samples:
        yield from (f"{path.name}: audit: {error.message}" for error in ezdxf.readfile(path).audit().errors)


def example_faults(run, options, script):
    shutil.copytree(ROOT / "samples", run.folder / "samples", ignore=LOCK_FILES)
    for name, content in FILE.findall(script):
        (run.folder / name).write_bytes(content.replace("\\t", "\t").replace("\n", "\r\n").encode("cp1252"))
    lines = [line for line in FILE.sub("", script).splitlines(True) if not line.startswith(";=")]
    drawing, *rest = options.split()
    code, told, errors = run([run.folder / "bin/vorlane", drawing, "--script", "-", *rest], "".join(lines))
    if code:
        yield f"exit code {code}\n{told[-1500:]}{errors}"
        return
    at = 0
    for expected in re.findall(r"^;= (.*)$", script, re.M):
        found = told.find(expected.strip(), at)
        if found < 0:
            yield f"\"{expected}\" isn't printed\n{told[-1500:]}"
            return
        at = found + 1


def dead_links(path, text):
    for link in re.findall(r"\]\(([^)#]+)[^)]*\)", text) if path.suffix == ".md" else []:
        if "://" not in link and not (path.parent / link).exists():
            yield f"{path.name}: dead link {link}"


def faults(vorlane, path):
    """How often the examples of a file were run, and what is false."""
    text = path.read_text(encoding="utf-8")
    language = "fr" if path.name.endswith(".fr.md") or path.parent.name == "fr" else "en"
    count, found = 0, list(dead_links(path, text))
    for pattern, check in ((RECIPE, recipe_faults), (EXAMPLE, example_faults)):
        for match in pattern.finditer(text):
            if "vorlane picture" in match[0] and not (vorlane.parent / "vorlane-picture").exists():
                continue  # built without what the window needs
            count += 1
            with tempfile.TemporaryDirectory(prefix="vorlane-prose-") as name:
                where = f"{path.name}:{text[: match.start()].count(chr(10)) + 1}"
                found += [f"{where}: {fault}" for fault in check(Run(vorlane, Path(name), language), *match.groups())]
    return count, found


def main():
    vorlane = Path(sys.argv[1]).resolve()
    files = [Path(name) for name in sys.argv[2:]] or sorted(
        [*ROOT.glob("README*.md"), *ROOT.glob("docs/*.md"), *ROOT.glob("resources/help/*/*.html")])
    total, failed = 0, 0
    for path in files:
        count, found = faults(vorlane, path)
        total, failed = total + count, failed + len(found)
        print("\n".join(found), end="\n" if found else "")
    print(f"{total} examples, {failed} false")
    return 1 if failed or not total else 0


if __name__ == "__main__":
    sys.exit(main())
