#!/usr/bin/python3
"""Pulls the plug on the window: no drawing may be lost, and the user must be told.

    window_faults.py [--kills N] [CASE ...]

CASEs are save, pick, full, folder_gone, other, meanwhile; all without one. Each tells what it saw; exit 1 where a drawing was
lost or the user wasn't told. What is installed for it stands in window_desktop.py."""

import argparse
import random
import resource
import shutil
import subprocess
import sys
import time
import traceback

from window_desktop import Desktop, Failure, ROOT, Window, x

SAMPLE = ROOT / "samples/apartment.dxf"
BIG = ROOT / "build/test/make-big-drawing"
SPACE = "(vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object)))"
ERASE = f"(vla-Delete (vla-Item {SPACE} 0))"
MODIFIED = "●"


def expect(condition, what):
    if not condition:
        raise Failure(what)


class Case:
    def __init__(self, desktop, options):
        self.desktop, self.options = desktop, options
        self.folder = desktop.folder / "drawings"
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir()
        self.drawing = self.folder / "plan.dxf"
        shutil.copy(SAMPLE, self.drawing)
        self.window = None

    def open(self, **options):
        self.window = Window(self.desktop, self.drawing, **options)
        if not options.get("keep"):  # else a question comes before the drawing
            self.window.until(lambda: "plan.dxf" in self.window.main.get_name(), "the drawing is open", 30)
        return self.window

    def edit(self):
        """A change that isn't saved; the title's mark tells it."""
        self.window.command(ERASE)
        self.window.until(lambda: self.window.main.get_name().startswith(MODIFIED), "the mark of a change")

    def texts(self):
        """All that stands in the window and in its boxes."""
        window = self.window
        places = [window.main, *window.windows()]
        return " | ".join(node.get_name() for place in places for node in window.walk(place) if node.get_name())

    def told(self, text, seconds=20):
        self.window.until(lambda: text in self.texts(), f"the user is told {text!r}", seconds)

    # The cases.

    def save(self):
        """Kills while a save goes on."""
        subprocess.run([BIG, "25600", self.drawing], check=True)
        old = self.drawing.read_bytes()
        window = self.open()
        self.edit()
        window.key("ctrl+s")
        window.until(lambda: not window.main.get_name().startswith(MODIFIED), "saved", 60)
        window.close()
        states = {old, self.drawing.read_bytes()}
        expect(len(states) == 2, "the save changed the drawing")
        hits = 0
        for _ in range(self.options.kills):
            self.drawing.write_bytes(old)
            window = self.open()
            self.edit()
            x("key", "ctrl+s")
            time.sleep(random.uniform(0, 0.12))
            window.close()
            expect(self.drawing.read_bytes() in states, "the drawing is neither of its two states")
            left = list(self.folder.glob(".vorlane-*"))
            hits += bool(left) or self.drawing.read_bytes() == old
            for path in left:
                path.unlink()
        return f"{self.options.kills} kills, {hits} before the new file was in place; the drawing was whole each time"

    def pick(self):
        """Kills while a command waits for a pick, after it has changed the drawing."""
        before = self.drawing.read_bytes()
        window = self.open()
        self.edit()
        window.command("VNREPLACE")
        window.press("012_24")
        window.prompt(window.captions["msg_112"][:24])
        window.close()
        expect(self.drawing.read_bytes() == before, "the drawing's file was left alone")
        window = self.open(keep=True)
        self.told("A session before ended without saving its changes")
        window.press(name="Yes")
        window.until(lambda: window.main.get_name().startswith(MODIFIED), "the changes are there again")
        window.key("ctrl+s")
        window.until(lambda: not window.main.get_name().startswith(MODIFIED), "saved", 30)
        expect(self.drawing.read_bytes() != before, "the change was saved")
        return "the session after offered the changes, took them, saved them"

    def full(self):
        """A save that the disk has no room for."""
        before = self.drawing.read_bytes()
        limit = len(before) // 2
        window = self.open(before=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, resource.RLIM_INFINITY)))
        window.command(ERASE)
        window.until(lambda: window.main.get_name().startswith(MODIFIED), "the mark of a change")
        window.key("ctrl+s")
        self.told("could not be saved")
        window.key("Return")
        expect(self.drawing.read_bytes() == before, "the file is as it was")
        expect(not list(self.folder.glob(".vorlane-*")), "nothing half written stays")
        window.until(lambda: window.main.get_name().startswith(MODIFIED), "it still counts as changed")
        resource.prlimit(window.process.pid, resource.RLIMIT_FSIZE, (resource.RLIM_INFINITY, resource.RLIM_INFINITY))
        time.sleep(0.5)
        window.key("ctrl+s")
        window.until(lambda: not window.main.get_name().startswith(MODIFIED), "saved once there is room", 30)
        return "told; the file stayed as it was; saved once there was room"

    def folder_gone(self):
        """The drawing's folder goes away."""
        window = self.open()
        self.edit()
        shutil.rmtree(self.folder)
        self.told("was removed or renamed by another program")
        window.key("ctrl+s")
        self.told("could not be saved")
        window.key("Return")
        self.folder.mkdir()
        time.sleep(0.3)
        window.key("ctrl+s")
        window.until(lambda: not window.main.get_name().startswith(MODIFIED), "saved where a folder is again", 30)
        expect(self.drawing.stat().st_size > 10000, "the drawing is there again")
        return "told twice; the drawing stayed open and was saved when the folder was there again"

    def other(self):
        """Another program writes the drawing while it is open."""
        window = self.open()
        self.edit()
        theirs = self.drawing.read_bytes() + b"999\ntheirs\n"
        self.drawing.write_bytes(theirs)
        self.told("was changed by another program")
        window.key("ctrl+s")
        self.told("Write over it?")
        window.press(name="No")
        time.sleep(0.5)
        window.key("Return")
        expect(self.drawing.read_bytes() == theirs, "their drawing is as they wrote it")
        window.until(lambda: window.main.get_name().startswith(MODIFIED), "ours is still open")
        window.click(window.find("Open anew", "push button"))
        window.until(lambda: not window.main.get_name().startswith(MODIFIED), "theirs is open")
        return "told at once, asked before a save wrote over it, opened anew on demand"

    def meanwhile(self):
        """Another program writes the drawing while it is being opened."""
        subprocess.run([BIG, "51200", self.drawing], check=True)
        self.window = window = Window(self.desktop, None)
        window.command(f"OPEN {self.drawing}")
        time.sleep(0.05)
        with open(self.drawing, "ab") as file:
            file.write(b"999\ntheirs\n")
        self.told("was changed by another program", 60)
        return "told"


CASES = ("save", "pick", "full", "folder_gone", "other", "meanwhile")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("cases", nargs="*", help=", ".join(CASES))
    parser.add_argument("--kills", type=int, default=10)
    options = parser.parse_args()
    failures = 0
    with Desktop(1400, 900) as desktop:
        for name in options.cases or CASES:
            case = Case(desktop, options)
            try:
                print(f"{name}: {getattr(case, name)()}", flush=True)
            except Exception as failure:
                failures += 1
                print(f"{name}: FAILED {failure}\n{''.join(traceback.format_tb(failure.__traceback__)[-3:])}", flush=True)
                if case.window:
                    case.window.shoot(ROOT / f"out/faults-{name}.png")
            finally:
                if case.window:
                    case.window.close()
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
