#!/usr/bin/env python3
"""Plays the transcripts of tests/acts on the add-in's DLL under Wine and compares with the console.

    play_acts.py BUILD CONSOLE [NAME...]      (all without a name)

BUILD is the folder of the Windows build, CONSOLE the program vorlane-console. Each transcript runs in the stand-in of
windows/stand_in, where the registered Vorlane.dll shows its native dialogs; the stand-in clicks, pastes and presses keys, and
prints what the controls hold. Its story must equal the console's, and the files that the two leave must be equal to the byte.

Before stories are compared, NORMALISED takes out what the two can't have in common; each of its rules says why. KEEP=FOLDER
in the environment keeps what differing runs left."""

import difflib
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tests/acts"))
import run_act  # noqa: E402

sys.path.insert(0, str(Path(__file__).resolve().parent))
import wine  # noqa: E402

# What the add-in under Wine can't do as the console does, with the reason.
EXCEPTIONS = {
    "bad_folder": "the install folder is the desk's own affair: the installer makes the add-in's",
    "bad_full_disk": "the limit on a file's size would end Wine's server",
    "block_file_refused": "the command line names the file as its system does, and the stand-in has no converter",
}
KEPT = (".dxf", ".txt")  # the files that are compared


def help_number(page):
    """The number that opens a page, as in the compiled help file."""
    language, name = page.removesuffix(".html").split("/")
    for line in (ROOT / "resources/help/contexts.txt").read_text(encoding="utf-8").splitlines():
        words = line.split()
        if len(words) > 1 and words[1] == name:
            number = int(words[0])
            break
    if number == 0:
        return f"[help: Vorlane.chm::/{language}/start.html]"
    return f"[help: Vorlane.chm {number + (0 if language == 'fr' else 1000000)}]"


# What the two can't have in common, each with the reason.
NORMALISED = [
    (r"^vorlane-console: ", "stand-in: "),  # the program's name
    (r"^wine: .*\n", ""),  # Wine tells of its own affairs
    (r"\S*\.dwg(: this)? is a DWG .*", "a DWG drawing"),  # the desk looks for a converter, the stand-in has none
    (r"^\+-- Save As$", "+-- Save as"),  # the system's own title of a file dialog
    (r"^\+-- (?= \([!i]\)$|$)", "+-- Message"),  # the console's title of a box without one
    (r" \(\.dxf too\)$", ""),  # the console's remarks: on a file dialog,
    (r"^\(typed only; .*\n", ""),  # on what is typed,
    (r"^(! Error .*\n)  .*\n", r"\1"),  # on what to do after a failure
    (r"^(! |stand-in: line \d+: file .*: )\S+ isn't there or can't be read\n", ""),  # on a file to open that isn't there,
    (r"^\|  in .*\n", ""),  # the start folder of a file dialog isn't written on it
    (r"^The changes to .*\n", ""),  # unsaved changes are the host's affair
    (r"^https://.*\n", ""),  # the shell opens an address in a program of its own, which notes it in its own time
]


def plain(story):
    # The console prints the page, the viewer of the tests the number that was asked for.
    story = re.sub(r"\[help: (\w+/\w+\.html)\]\n.*?\[end of help\]", lambda m: help_number(m.group(1)), story, flags=re.S)
    for pattern, replacement in NORMALISED:
        story = re.sub(pattern, replacement, story, flags=re.M)
    return story.splitlines()


class Windows:
    """Runs a transcript's program under Wine in run_act's way."""

    def __init__(self, prefix, build):
        self.prefix, self.build = prefix, build

    def prepare(self, folder, language):
        """The install folder, as the installer leaves it."""
        install = folder / "data/vorlane"
        install.mkdir(parents=True, exist_ok=True)
        for file in (ROOT / "resources/languages").iterdir():
            if not (install / file.name).exists():
                shutil.copy(file, install)
        settings = install / "Vorlane.ini"
        if not settings.exists():
            name = "Fran\xe7ais" if language == ["fr"] else "English"
            settings.write_bytes(f"Lng={name}\r\n".encode("cp1252"))

    def __call__(self, drawing, script, folder, settings):
        of = lambda key: [value for k, value in settings if k == key]
        self.prepare(folder, of("language"))
        command = [self.build / "stand-in.exe", drawing, "--script", wine.windows_path(script), "--lisp",
                   wine.windows_path(ROOT / "resources/vorlane.lsp"), "--install", r"data\vorlane"]
        return self.prefix.run(command + " ".join(of("options")).split(), cwd=folder, timeout=180)


def play(text, name, folder, console, program):
    folder.mkdir()
    script = folder.parent / (folder.name + "-" + name)
    script.write_text(text, encoding="utf-8")
    story = run_act.tell(console, script, folder, program)
    return story.replace(wine.windows_path(folder) + "\\", "FOLDER/")


def files(folder):
    """What a run left."""
    return {p.name: p.read_bytes() for p in folder.iterdir() if p.suffix in KEPT and p.name != "opened.txt"}


def compare(script, console, windows, keep):
    """The differences of a transcript's runs, as lines."""
    wrong = []
    for number, text in enumerate(run_act.runs(script)):
        with tempfile.TemporaryDirectory(prefix="vorlane-windows-") as name:
            top = Path(name).resolve()
            there = play(text, script.name, top / "linux", console, None)
            here = play(text, script.name, top / "windows", console, windows)
            wrong += difflib.unified_diff(plain(there), plain(here), "console", f"windows {number}", lineterm="", n=2)
            left, right = files(top / "linux"), files(top / "windows")
            wrong += [f"file {file} differs" for file in sorted(left.keys() | right.keys()) if left.get(file) != right.get(file)]
            if keep and wrong:
                (top / "linux.story").write_text(there, encoding="utf-8")
                (top / "windows.story").write_text(here, encoding="utf-8")
                shutil.copytree(top, keep / f"{script.stem}-{number}", dirs_exist_ok=True)
    return wrong


def play_all(scripts, prefix, build, console, keep):
    """Plays what is left of `scripts`; several of these share the list. How many were played, and how many differ."""
    failed = played = 0
    with wine.Prefix(prefix, build) as prefix:
        windows = Windows(prefix, build)
        while scripts:
            script = scripts.pop()
            start = time.monotonic()
            try:
                wrong = compare(script, console, windows, keep)
            except SystemExit:
                continue  # the drawing's corpus isn't here
            except subprocess.TimeoutExpired:
                wrong = ["no end after the time allowed"]
            played, failed = played + 1, failed + bool(wrong)
            print(f"{'DIFFERENT' if wrong else 'same     '} {script.stem} ({time.monotonic() - start:.1f} s)\n"
                  + "".join(f"    {line}\n" for line in wrong[:None if keep else 40]), end="", flush=True)
    return played, failed


def main():
    build, console, names = Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve(), sys.argv[3:]
    scripts = [s for s in sorted((ROOT / "tests/acts").glob("*.vns")) if not names or s.stem in names]
    keep = Path(os.environ["KEEP"]) if "KEEP" in os.environ else None
    for script in [s for s in scripts if s.stem in EXCEPTIONS]:
        print(f"left out  {script.stem}: {EXCEPTIONS[script.stem]}", flush=True)
        scripts.remove(script)
    # What prepares drawings writes the time and a random mark into them, unless told otherwise.
    config = build / "ezdxf.ini"
    config.write_text("[core]\nwrite_fixed_meta_data_for_testing = true\n")
    os.environ["EZDXF_CONFIG_FILE"] = str(config)
    os.environ["PYTHONHASHSEED"] = "0"  # and goes through sets
    # The long ones first: those of many drawings.
    scripts.sort(key=lambda script: len(list(run_act.runs(script))))
    players = min(len(scripts), os.cpu_count() or 1)
    with ThreadPoolExecutor() as pool:
        done = [pool.submit(play_all, scripts, build / f"prefix-{i}", build, console, keep) for i in range(players)]
        played, failed = (sum(counts) for counts in zip(*(d.result() for d in done)))
    print(f"{played - failed} of {played} transcripts play the same under Windows")
    return 1 if failed or not played else 0


if __name__ == "__main__":
    sys.exit(main())
