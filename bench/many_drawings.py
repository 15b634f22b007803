#!/usr/bin/env python3
"""Measures a replacement in many drawings: one call of the verb, a process of the verb for each drawing, and a script
with ezdxf that does the same:

    many_drawings.py VORLANE [COUNT]

COUNT copies (200 without it) of samples/apartment.dxf; times of the wall clock, and the largest memory of a process."""

import os
import resource
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
REPLACE = ["replace", "--from", "PORTE_80", "--to", "PORTE_90", "--map", "REPERE=CODE", "--map", "LARGEUR=PASSAGE"]

EZDXF = """
import sys, ezdxf
out = sys.argv[1]
for path in sys.argv[2:]:
    drawing = ezdxf.readfile(path)
    space = drawing.modelspace()
    for old in list(space.query('INSERT[name=="PORTE_80"]')):
        new = space.add_blockref("PORTE_90", old.dxf.insert, dxfattribs={
            "xscale": old.dxf.xscale, "yscale": old.dxf.yscale, "zscale": old.dxf.zscale, "rotation": old.dxf.rotation})
        new.add_auto_attribs({"CODE": old.get_attrib_text("REPERE"), "PASSAGE": old.get_attrib_text("LARGEUR")})
        space.delete_entity(old)
    drawing.saveas(out + "/" + path.rsplit("/", 1)[-1])
"""


def peak():
    return resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024


def measure(what, action):
    # In a child, so that its largest memory is this way's alone.
    reader, writer = os.pipe()
    if os.fork() == 0:
        begin = time.monotonic()
        action()
        os.write(writer, f"{what:45} {time.monotonic() - begin:7.2f} s {peak():7.0f} MB".encode())
        os._exit(0)
    os.wait()
    print(os.read(reader, 1000).decode(), flush=True)


def main():
    vorlane, count = Path(sys.argv[1]).resolve(), int(sys.argv[2]) if len(sys.argv) > 2 else 200
    with tempfile.TemporaryDirectory(prefix="vorlane-bench-") as name:
        folder = Path(name)
        paths = []
        for number in range(count):
            paths.append(str(folder / f"plan{number}.dxf"))
            shutil.copy(ROOT / "samples/apartment.dxf", paths[-1])
        run = lambda *words: subprocess.run(words, check=True, stdout=subprocess.DEVNULL)
        ways = [
            (f"{count} drawings, one call", lambda: run(vorlane, *REPLACE, *paths, "--out", folder / "a")),
            (f"{count // 4} drawings, one call", lambda: run(vorlane, *REPLACE, *paths[: count // 4], "--out", folder / "b")),
            (f"{count} drawings, one call, one at a time",
             lambda: run(vorlane, *REPLACE, *paths, "--out", folder / "c", "--jobs", "1")),
            (f"{count} drawings, a process each",
             lambda: [run(vorlane, *REPLACE, path, "--out", folder / "d", "--jobs", "1") for path in paths]),
            (f"{count} drawings, ezdxf, one process",
             lambda: ((folder / "e").mkdir(), run("/usr/bin/python3", "-c", EZDXF, str(folder / "e"), *paths))),
        ]
        for what, action in ways:
            measure(what, action)


if __name__ == "__main__":
    main()
