#!/usr/bin/env python3
"""Measures what a hand waits for, against what the machine itself needs: copying the file, reading it, flushing it to the
disk, and against scripts with ezdxf that do the same.

    limits.py [BUILD_FOLDER] [--before BUILD_FOLDER] [--runs N] [--ezdxf N] [--large REFERENCES]...

BUILD_FOLDER is that of the preset "bench", build/bench without it; --before names that of an earlier state, which is
measured beside it. All runs are interleaved, so that other work on the
machine hits all alike; what counts is the median of the CPU time (user and system), 7 runs without --runs. The scripts
with ezdxf take minutes: they run as often as --ezdxf says, and not at all without it. The memory of drawings of 29 and 289
MB is told, and of --large as well; 1,150,000 references make a gigabyte. Run it at a high priority, on one processor:

    sudo nice -n -10 taskset -c 0 bench/limits.py
"""

import argparse
import math
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
REPLACE = (ROOT / "tools" / "measure_job.vns").read_text()
EXTRACT = "VNEXTRACT\nBtnNew\n@112\nOKButton\nall\n\nBtnSave\nfile {folder}/data.txt\nBtnClose\n"
INSERT = "VNINSERT\nCombo1 # 2\nBtnData\nfile {folder}/data.txt\nBtnInsert\nok\nBtnClose\nSAVE inserted.dxf\n"
ROWS = 32_000

EZDXF = {
    "replace": """
import sys, ezdxf
drawing = ezdxf.readfile(sys.argv[1])
space = drawing.modelspace()
for old in list(space.query('INSERT[name=="LAMP"]')):
    new = space.add_blockref("SPOT", old.dxf.insert, dxfattribs={
        "xscale": old.dxf.xscale, "yscale": old.dxf.yscale, "zscale": old.dxf.zscale, "rotation": old.dxf.rotation})
    new.add_auto_attribs({to: old.get_attrib_text(tag) for tag, to in (("TAG", "CODE"), ("ROOM", "PLACE"), ("POWER", "WATT"))})
    space.delete_entity(old)
drawing.saveas(sys.argv[2])
""",
    "extract": """
import sys, ezdxf
drawing = ezdxf.readfile(sys.argv[1])
with open(sys.argv[2], "w") as table:
    for reference in drawing.modelspace().query('INSERT[name=="LAMP"]'):
        place = reference.dxf.insert
        fields = [reference.dxf.name, place.x, place.y, place.z, reference.dxf.rotation, reference.dxf.xscale,
                  reference.dxf.yscale, reference.dxf.zscale, *(a.dxf.text for a in reference.attribs)]
        table.write("\\t".join(map(str, fields)) + "\\n")
""",
    "insert": """
import sys, ezdxf
drawing = ezdxf.readfile(sys.argv[1])
space = drawing.modelspace()
for line in open(sys.argv[3]):
    name, x, y, z, rotation, xscale, yscale, zscale, *values = line.rstrip("\\n").split("\\t")
    new = space.add_blockref(name, (float(x), float(y), float(z)), dxfattribs={
        "xscale": float(xscale), "yscale": float(yscale), "zscale": float(zscale), "rotation": float(rotation)})
    new.add_auto_attribs(dict(zip(("TAG", "ROOM", "POWER"), values)))
drawing.saveas(sys.argv[2])
""",
}


def many_blocks(count=30_000):
    """A drawing of R12 with a reference each of blocks whose names come in no order."""
    names = [f"BLOCK_{i * 7919 % count}" for i in range(count)]
    place = " 10\n0.0\n 20\n0.0\n"
    blocks = "".join(f"  0\nBLOCK\n  8\n0\n  2\n{name}\n 70\n0\n{place}  0\nPOINT\n  8\n0\n{place}  0\nENDBLK\n  8\n0\n"
                     for name in names)
    references = "".join(f"  0\nINSERT\n  8\n0\n  2\n{name}\n{place}" for name in names)
    section = lambda name, body: f"  0\nSECTION\n  2\n{name}\n{body}  0\nENDSEC\n"
    return section("BLOCKS", blocks) + section("ENTITIES", references) + "  0\nEOF\n"


class Work:
    """A folder with drawings, and runs of programs there."""

    def __init__(self, build, before, folder):
        self.builds = {"": build, **({" before": before} if before else {})}
        self.folder, self.turned = folder, False
        self.cost, self.wall = {}, {}
        self.environment = {**os.environ, "XDG_DATA_HOME": str(folder / "data")}

    def drawing(self, name, references, *more):
        subprocess.run([self.builds[""] / "make-big-drawing", str(references), self.folder / name, *more], check=True)
        return (self.folder / name).stat().st_size

    def run(self, what, *command):
        """Milliseconds of CPU and of the clock, and the largest memory, under a name."""
        begin = time.monotonic()
        with subprocess.Popen(list(map(str, command)), cwd=self.folder, env=self.environment, stdout=subprocess.DEVNULL,
                              stderr=subprocess.PIPE) as process:
            said = process.stderr.read()
            _, status, usage = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            sys.exit(f"{command} failed:\n{said.decode()}")
        self.wall.setdefault(what, []).append((time.monotonic() - begin) * 1000)
        self.cost.setdefault(what, []).append((usage.ru_utime + usage.ru_stime) * 1000)

    def command(self, build, drawing, script):
        (self.folder / "script.vns").write_text(script.format(folder=self.folder))
        return [build / "vorlane-console", drawing, "--script", "script.vns", "--regional", "en"]

    def console(self, what, drawing, script):
        # Each is the first one in every other round: the second finds the file in the processor's cache.
        for suffix, build in sorted(self.builds.items(), reverse=self.turned):
            self.run(what + suffix, *self.command(build, drawing, script))

    def memory(self, build, drawing):
        """The largest memory while a drawing is opened. Asked of a small program in between: a process is born with the
        memory of the one that starts it."""
        run = subprocess.run(["/usr/bin/time", "-f", "%M", *map(str, self.command(build, drawing, "LIST\n"))], cwd=self.folder,
                             env=self.environment, check=True, capture_output=True, text=True)
        return int(run.stderr.split()[-1]) * 1024

    def ezdxf(self, what, *arguments):
        self.run(f"{what} ezdxf", "/usr/bin/python3", "-c", EZDXF[what], *arguments)


def once(work):
    work.turned = not work.turned
    work.run("cp", "cp", "turned.dxf", "copy.dxf")
    work.run("read", "dd", "if=turned.dxf", "of=/dev/null", "bs=64M")
    work.run("write", "dd", "if=turned.dxf", "of=copy.dxf", "bs=1M", "conv=fsync")
    work.console("start", "one.dxf", "LIST\n")
    work.console("open", "turned.dxf", "LIST\n")
    work.console("save", "turned.dxf", "SAVE saved.dxf\n")
    work.console("replace", "turned.dxf", REPLACE)
    work.console("extract", "big.dxf", EXTRACT)
    work.console("insert", "one.dxf", INSERT)
    work.console("open blocks", "blocks.dxf", "LIST BLOCK_1\n")
    work.console("list blocks", "blocks.dxf", "VNREPLACE\nBtnClose\nLIST BLOCK_1\n")
    for size in ("tenth", "million"):
        work.console(f"open {size}", f"{size}.dxf", "LIST\n")
        work.console(f"extract {size}", f"{size}.dxf", EXTRACT.replace("data.txt", f"{size}.txt"))
        work.console(f"insert {size}", "one.dxf", INSERT.replace("data.txt", f"{size}.txt"))


def tell(work):
    cost = {what: statistics.median(times) for what, times in work.cost.items()}
    wall = {what: statistics.median(times) for what, times in work.wall.items()}
    print(f"{'':36}{'CPU ms':>9}{'before':>9}{'x cp':>8}{'x read':>8}{'x ezdxf':>9}")
    for suffix in work.builds:
        cost["open alone" + suffix] = cost["open" + suffix] - cost["start" + suffix]
        cost["VNREPLACE" + suffix] = cost["list blocks" + suffix] - cost["open blocks" + suffix]
    for what, name in (("cp", "cp of the file"), ("read", "dd to nowhere, a plain read"), ("start", "start and one command"),
                       ("open alone", "open, the start taken off"), ("replace", "open, replace 32,000 turned, save"),
                       ("extract", "open, extract 32,000 rows"), ("insert", "insert 32,000 rows, save"),
                       ("VNREPLACE", "VNREPLACE up with 30,000 blocks")):
        before, other = cost.get(f"{what} before"), cost.get(f"{what} ezdxf")
        print(f"{name:36}{cost[what]:9.1f}{before or math.nan:9.1f}{cost[what] / cost['cp']:8.2f}"
              f"{cost[what] / cost['read']:8.2f}{other / cost[what] if other else math.nan:9.1f}")
    for suffix in work.builds:
        print(f"\nSave by the clock, of dd with fsync{suffix}: {(wall['save' + suffix] - wall['open' + suffix]) / wall['write']:.2f}")
        for job in ("open", "extract", "insert"):
            less = cost["start" + suffix]
            ratio = (cost[f"{job} million{suffix}"] - less) / (cost[f"{job} tenth{suffix}"] - less)
            print(f"Growth of {job} from 100,000 to a million entities{suffix}: exponent {math.log10(ratio):.3f}")


def tell_memory(work, large):
    """What opening takes, with and without what the program needs for a drawing of one reference."""
    print(f"\n{'References':>12}{'file MB':>10}{'memory MB':>11}{'by size':>9}{'less the start':>16}")
    for references in (ROWS, 320_000, *large):
        size = work.drawing("large.dxf", references)
        for suffix, build in work.builds.items():
            start, peak = work.memory(build, "one.dxf"), work.memory(build, "large.dxf")
            print(f"{references:12,}{size / 1e6:10.1f}{peak / 1e6:11.1f}{peak / size:9.3f}{(peak - start) / size:16.3f}{suffix}")
        (work.folder / "large.dxf").unlink()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", nargs="?", type=pathlib.Path, default=ROOT / "build" / "bench")
    parser.add_argument("--before", type=pathlib.Path)
    parser.add_argument("--runs", type=int, default=7)
    parser.add_argument("--ezdxf", type=int, default=0)
    parser.add_argument("--large", type=int, action="append", default=[])
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="vorlane-bench-") as name:
        before = arguments.before.resolve() if arguments.before else None
        work = Work(arguments.build.resolve(), before, pathlib.Path(name))
        work.drawing("turned.dxf", ROWS, "turned")
        for drawing, references in (("one", 1), ("big", ROWS), ("tenth", 20_000), ("million", 200_000)):
            work.drawing(f"{drawing}.dxf", references)
        (work.folder / "blocks.dxf").write_text(many_blocks())
        once(work)  # fills the install folder, the settings and the caches
        time.sleep(2.5)
        work.console("start", "one.dxf", "LIST\n")  # sees that all is in order there
        work.cost, work.wall = {}, {}
        for _ in range(arguments.runs):
            once(work)
        for _ in range(arguments.ezdxf):
            work.ezdxf("replace", "turned.dxf", "other.dxf")
            work.ezdxf("extract", "big.dxf", "other.txt")
            work.ezdxf("insert", "one.dxf", "other.dxf", "other.txt")
        tell(work)
        tell_memory(work, arguments.large)


if __name__ == "__main__":
    main()
