#!/usr/bin/env python3
"""Runs a transcript: a script of the console on a drawing, in a folder of its own, against its expected story.

    run_act.py CONSOLE SCRIPT.vns [--accept]

Comments at the head of the script say what it needs:

    ; drawing: samples/apartment.dxf   the drawing, copied into the folder; corpus/NAME stands for the corpus of
                                       real drawings, and the transcript is skipped where that isn't there;
                                       big N stands for a generated drawing of N references
    ; drawing: FILE | VALUE | VALUE    several such lines: the script is run for each, with the values in the places
                                       of {1}, {2}...
    ; copy: samples/a.dxf              a further file for the folder
    ; options: --regional fr           options of the console
    ; language: fr                     the desktop's language (en without it)
    ; exit: 1                          the exit code (0 without it)
    ; check: result.dxf [--imports]    judges a saved drawing by tools/check_drawing.py
    ; run: tool.py ARGUMENTS           runs a tool of tools/ or tests/acts in the folder
    ; prepare: tool.py ARGUMENTS       the same before the console starts
    ; before: mkdir -p data/vorlane    a command of the shell, run in the folder before the console starts; the
                                       install folder is data/vorlane
    ; disk: 100                        no file may grow beyond so many thousand bytes, as on a full disk

The story is what the console printed, then what the checks printed."""

import difflib
import re
import resource
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
CORPUS = ROOT.parent / "shared" / "corpus"
SKIPPED = 77
PYTHON = "/usr/bin/python3"  # Debian's, which has python3-ezdxf


def runs(script):
    """The script's text for each of its drawings."""
    lines = script.read_text(encoding="utf-8").splitlines(True)
    rows = [line for line in lines if line.startswith("; drawing:")]
    for row in rows:
        text = "".join(line for line in lines if line == row or line not in rows)
        for i, value in enumerate(row.split("|")[1:], 1):
            text = text.replace("{%d}" % i, value.strip())
        yield text


def directives(script):
    for line in script.read_text(encoding="utf-8").splitlines():
        match = re.match(r";\s*(drawing|copy|options|language|exit|check|run|prepare|before|disk):\s*(.*)$", line)
        if match:
            yield match.group(1), match.group(2).strip()
        elif not line.startswith(";"):
            return


def find_file(name):
    if name.startswith("big "):
        return None
    if name.startswith("corpus/"):
        path = CORPUS / name.removeprefix("corpus/")
        if not path.exists():
            print(f"skipped: no {name}")
            sys.exit(SKIPPED)
        return path
    return ROOT / name


def bring(name, folder, console):
    """Puts a drawing into the folder; its name there."""
    source = find_file(name)
    if source is None:
        subprocess.run([console.parent / "make-big-drawing", name.split()[1], folder / "big.dxf"], check=True)
        return "big.dxf"
    shutil.copyfile(source, folder / source.name)
    return source.name


def find_tool(name):
    return next(path for path in (ROOT / "tests/acts" / name, ROOT / "tools" / name) if path.exists())


def run_console(console, drawing, script, folder, settings):
    of = lambda key: [value for k, value in settings if k == key]
    locale = "fr_FR.UTF-8" if of("language") == ["fr"] else "en_US.UTF-8"
    # No other program: what this machine has installed must not show in a story.
    environment = {"PATH": str(folder), "XDG_DATA_HOME": str(folder / "data"), "LANG": locale}
    options = " ".join(of("options")).split()
    return subprocess.run([console, drawing, "--script", script, *options], cwd=folder, env=environment,
                          stdin=subprocess.DEVNULL, capture_output=True, timeout=600,
                          preexec_fn=lambda: fill_disk(of("disk")))


def tell(console, script, folder, program=None):
    """The story; `program` runs another program in the console's place."""
    settings, story = list(directives(script)), ""
    of = lambda key: [value for k, value in settings if k == key]
    drawing = bring(of("drawing")[0].split("|")[0].strip(), folder, console)
    for name in of("copy"):
        bring(name, folder, console)
    original = folder / ("original-" + drawing)
    shutil.copyfile(folder / drawing, original)
    for command in of("before"):
        subprocess.run(command, shell=True, cwd=folder, check=True)
    for command in of("prepare"):
        name, *rest = command.split()
        story += f"-- prepare {command}\n" + run_tool([find_tool(name), *rest], folder)
    if program is None:
        done = run_console(console, drawing, script, folder, settings)
    else:
        done = program(drawing, script, folder, settings)
    story += done.stdout.decode("utf-8", "replace") + done.stderr.decode("utf-8", "replace")
    wanted = int((of("exit") or ["0"])[0])
    if done.returncode != wanted:
        story += f"WRONG: exit code {done.returncode}\n"
    for key, value in settings:
        if key == "check":
            name, *rest = value.split()
            story += f"-- check {value}\n" + run_tool([ROOT / "tools/check_drawing.py", original, name, *rest], folder)
        if key == "run":
            name, *rest = value.split()
            story += f"-- run {value}\n" + run_tool([find_tool(name), *rest], folder)
    return story.replace(str(folder), "FOLDER")


def fill_disk(thousands):
    for number in thousands:
        size = int(number) * 1000
        resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))


def run_tool(command, folder):
    done = subprocess.run([PYTHON, *command], cwd=folder, capture_output=True, timeout=600)
    text = done.stdout.decode("utf-8", "replace") + done.stderr.decode("utf-8", "replace")
    return text + (f"WRONG: exit code {done.returncode}\n" if done.returncode else "")


def main():
    console, script = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()
    expected_file, story = script.with_suffix(".story"), ""
    for text in runs(script):
        with tempfile.TemporaryDirectory(prefix="vorlane-act-") as name:
            filled, folder = Path(name).resolve() / script.name, Path(name).resolve() / "folder"
            folder.mkdir()
            filled.write_text(text, encoding="utf-8")
            story += tell(console, filled, folder)
    expected = expected_file.read_text(encoding="utf-8") if expected_file.exists() else ""
    if story != expected:
        sys.stdout.writelines(difflib.unified_diff(expected.splitlines(True), story.splitlines(True), "expected", "told"))
        if "--accept" in sys.argv:
            expected_file.write_text(story, encoding="utf-8")
            print(f"accepted {expected_file.name}")
            return 0
    return 1 if story != expected or "WRONG:" in story else 0


if __name__ == "__main__":
    sys.exit(main())
