#!/usr/bin/env python3
"""Kills the console at random instants and looks at what is left.

    kill_sessions.py [--build FOLDER] [--saves N] [--edits N]      of build/test, 200 and 100 without options

In a script that saves a drawing of two states in turn, the file must be one of the two, whole, and no other file may
stay beside it but the lock file. In a session at a terminal that erases one entity a line, the next session must be
offered the changes, up to the last line at most."""

import os
import pty
import random
import select
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/test"
CONSOLE = BUILD / "vorlane-console"
SPACE = "(vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object)))"
ERASE = f"(vla-Delete (vla-Item {SPACE} 0))"
COUNT = f"(vla-get-Count {SPACE})"


def environment(folder):
    variables = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
    variables.update(XDG_DATA_HOME=str(folder / "data"), XDG_STATE_HOME=str(folder / "state"), LANG="en_US.UTF-8",
                     TERM="dumb")
    return variables


def kill_saves(folder, times):
    """Returns how many saves were hit on their way, and what was wrong."""
    drawing = folder / "drawing.dxf"
    subprocess.run([BUILD / "make-big-drawing", "3200", drawing], check=True)
    old = drawing.read_bytes()
    script = folder / "saves.vns"
    script.write_text((ERASE + "\nSAVE\nU\nSAVE\n") * 200)
    one = folder / "one.vns"
    one.write_text(ERASE + "\nSAVE\n")
    command = [CONSOLE, drawing, "--script"]
    subprocess.run([*command, one], env=environment(folder), check=True, stdout=subprocess.DEVNULL)
    states = {old, drawing.read_bytes()}
    faults, hit = [], 0
    for _ in range(times):
        drawing.write_bytes(old)
        process = subprocess.Popen([*command, script], env=environment(folder), stdout=subprocess.DEVNULL)
        time.sleep(random.uniform(0.05, 0.6))
        process.kill()
        process.wait()
        if drawing.read_bytes() not in states:
            faults.append("the drawing is neither of its two states")
        left = [path.name for path in folder.glob(".vorlane-*")]
        hit += len(left)
        for name in left:
            os.remove(folder / name)
    return hit, faults


class Terminal:
    """A session at a terminal."""

    def __init__(self, folder, drawing):
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.execve(CONSOLE, [str(CONSOLE), str(drawing)], environment(folder))
        self.text = ""

    def until(self, *waited):
        """Reads until one of the texts stands at the end."""
        end = time.monotonic() + 20
        while not any(self.text.rstrip("\r\n ").endswith(text) for text in waited):
            if time.monotonic() > end:
                raise TimeoutError(self.text[-300:])
            if select.select([self.terminal], [], [], 0.2)[0]:
                self.text += os.read(self.terminal, 65536).decode("utf-8", "replace")
        text, self.text = self.text, ""
        return text

    def send(self, line):
        os.write(self.terminal, (line + "\n").encode())

    def ask(self, line):
        self.send(line)
        return self.until("Command:")

    def kill(self):
        os.kill(self.process, signal.SIGKILL)
        os.waitpid(self.process, 0)
        os.close(self.terminal)


def count(terminal):
    words = terminal.ask(COUNT).replace(COUNT, "").split()
    return next(int(word) for word in words if word.isdigit())


def kill_edits(folder, times):
    drawing = folder / "edited.dxf"
    subprocess.run([BUILD / "make-big-drawing", "400", drawing], check=True)
    faults = []
    for _ in range(times):
        shutil.rmtree(folder / "state", ignore_errors=True)
        terminal = Terminal(folder, drawing)
        terminal.until("Command:")
        before = count(terminal)
        done = random.randint(1, 8)
        for _ in range(done):
            terminal.ask(ERASE)
        terminal.send(ERASE)
        time.sleep(random.uniform(0, 0.03))
        terminal.kill()
        terminal = Terminal(folder, drawing)
        offer = terminal.until("[yes/no]", "Command:")
        if "[yes/no]" not in offer:
            faults.append("no copy was offered")
        else:
            terminal.send("yes")
            terminal.until("Command:")
            left = count(terminal)
            if left not in (before - done, before - done - 1):
                faults.append(f"{before} entities, {done} erased, {left} in the copy")
        terminal.kill()
    return faults


def main():
    global BUILD, CONSOLE
    options = dict(zip(sys.argv[1::2], sys.argv[2::2]))
    BUILD = Path(options.get("--build", BUILD)).resolve()
    CONSOLE = BUILD / "vorlane-console"
    folder = Path(tempfile.mkdtemp(prefix="vorlane-kill-"))
    try:
        saves, edits = int(options.get("--saves", 200)), int(options.get("--edits", 100))
        hit, faults = kill_saves(folder, saves)
        print(f"{saves} kills in sessions that save, {hit} of them in a save: {len(faults)} drawings lost")
        more = kill_edits(folder, edits)
        print(f"{edits} kills in edit sessions: {len(more)} faults")
        for fault in (faults + more)[:20]:
            print("  " + fault)
        sys.exit(1 if faults or more else 0)
    finally:
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()
