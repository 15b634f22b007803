#!/usr/bin/env python3
"""What the verbs promise about a user's files, on copies of the samples:  check_verbs.py VORLANE"""

import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
from pathlib import Path

import ezdxf

ROOT = Path(__file__).resolve().parent.parent.parent
REPLACE = ["replace", "--from", "PORTE_80", "--to", "PORTE_90"]


class Verbs:
    def __init__(self, vorlane, folder):
        self.vorlane, self.folder, self.faults = vorlane, folder, []
        for sample in (ROOT / "samples").iterdir():
            if sample.suffix != ".dwl":  # another test has the drawing open, for as long as it likes
                shutil.copy(sample, folder)

    def run(self, *words, code=0):
        done = subprocess.run([self.vorlane, *words], cwd=self.folder, capture_output=True, text=True, timeout=120)
        self.hold(done.returncode == code, f"{' '.join(map(str, words))}: exit code {done.returncode}\n{done.stderr}")
        return done

    def script(self, lines, drawing="apartment.dxf", code=0):
        done = subprocess.run([self.vorlane, drawing, "--script", "-", "--fresh"], cwd=self.folder, input=lines,
                              capture_output=True, text=True, timeout=120)
        self.hold(done.returncode == code, f"{lines}: exit code {done.returncode}\n{done.stderr}")
        return done

    def hold(self, condition, what):
        if not condition:
            self.faults.append(what)

    def bytes(self, name):
        return (self.folder / name).read_bytes()


def files_are_safe(verbs):
    before = verbs.bytes("apartment.dxf")
    done = verbs.run(*REPLACE, "apartment.dxf", "--dry-run")
    verbs.hold("would do: 16 replaced" in done.stdout and verbs.bytes("apartment.dxf") == before, "--dry-run")
    verbs.run(*REPLACE, "apartment.dxf", code=2)
    verbs.run(*REPLACE, "apartment.dxf", "--out", "apartment.dxf", code=2)
    verbs.run(*REPLACE, "apartment.dxf", "--in-place")
    verbs.hold(verbs.bytes("apartment.dxf.bak") == before != verbs.bytes("apartment.dxf"), "--in-place keeps a copy")
    verbs.run("replace", "--from", "PORTE_90", "--to", "PORTE_80", "apartment.dxf", "--in-place")
    verbs.hold(verbs.bytes("apartment.dxf.bak") == before and (verbs.folder / "apartment.dxf.bak2").exists(), ".bak2")
    shutil.copy(verbs.folder / "apartment.dxf.bak", verbs.folder / "apartment.dxf")
    verbs.run(*REPLACE, "apartment.dxf", "--out", "out.dxf")
    verbs.run(*REPLACE, "apartment.dxf", "--out", "out.dxf", code=2)
    verbs.run(*REPLACE, "apartment.dxf", "--out", "out.dxf", "--force")


def one_bad_drawing_stops_no_other(verbs):
    (verbs.folder / "bad.dxf").write_text("  0\nSECTION\n  2\n")
    done = verbs.run(*REPLACE, "bad.dxf", "empty.dxf", "apartment.dxf", "--out", "new", "--json", code=1)
    report = json.loads(done.stdout)
    states = {entry["drawing"]: entry["state"] for entry in report["drawings"]}
    verbs.hold(states == {"bad.dxf": "failed", "empty.dxf": "unchanged", "apartment.dxf": "done"}, f"states {states}")
    verbs.hold([p.name for p in (verbs.folder / "new").iterdir()] == ["apartment.dxf"], "only results are written")
    verbs.hold(report["summary"]["counts"]["replaced"] == 16, "counts")
    done = verbs.run(*REPLACE, "bad.dxf", "apartment.dxf", "--dry-run", "--quiet", code=1)
    verbs.hold("bad.dxf: FAILED" in done.stderr and not done.stdout, "the failure is on the error stream")


def locked_layers_are_left(verbs):
    drawing = ezdxf.readfile(verbs.folder / "apartment.dxf")
    doors = drawing.modelspace().query('INSERT[name=="PORTE_80"]')
    drawing.layers.add("LOCKED").lock()
    for door in doors[:5]:
        door.dxf.layer = "LOCKED"
    drawing.saveas(verbs.folder / "locked.dxf")
    done = verbs.run(*REPLACE, "locked.dxf", "--out", "unlocked.dxf")
    verbs.hold("11 replaced, 5 on locked layers" in done.stdout, done.stdout)
    left = ezdxf.readfile(verbs.folder / "unlocked.dxf").modelspace().query('INSERT[name=="PORTE_80"]')
    verbs.hold(len(left) == 5, "references on locked layers stay")


def properties_are_taken_over(verbs):
    doors = lambda name, block: {d.dxf.insert: (d.dxf.layer, d.dxf.color, d.dxf.linetype) for d in
                                 ezdxf.readfile(verbs.folder / name).modelspace().query(f'INSERT[name=="{block}"]')}
    drawing = ezdxf.readfile(verbs.folder / "apartment.dxf")
    for number, door in enumerate(drawing.modelspace().query('INSERT[name=="PORTE_80"]')):
        door.dxf.color = 1 + number % 5
    drawing.saveas(verbs.folder / "coloured.dxf")
    before = doors("coloured.dxf", "PORTE_80")
    verbs.run(*REPLACE, "--keep", "layer,colour,linetype", "coloured.dxf", "--out", "kept.dxf")
    after = doors("kept.dxf", "PORTE_90")
    wrong = [place for place in before if after[place][:2] != before[place][:2]
             or after[place][2].lower() != before[place][2].lower()]
    verbs.hold(not wrong, f"taken over: {wrong}")
    verbs.run(*REPLACE, "--keep", "weight", "coloured.dxf", "--dry-run", code=2)
    done = verbs.run("replace", "--form", "PORTE_80", "coloured.dxf", code=2)
    verbs.hold("unknown option --form of replace (near: --from" in done.stderr, done.stderr)
    done = verbs.run("repalce", "coloured.dxf", code=2)
    verbs.hold("no verb and no drawing repalce (near: replace)" in done.stderr, done.stderr)


def layouts_are_kept(verbs):
    drawing = ezdxf.readfile(verbs.folder / "apartment.dxf")
    second = drawing.layouts.new("Second")
    second.add_blockref("PORTE_80", (7, 7)).add_auto_attribs({"REPERE": "X"})
    drawing.layouts.get("Planche A3").add_blockref("PORTE_80", (5, 5)).add_auto_attribs({"REPERE": "Y"})
    drawing.blocks.new("NOTHING_USES_IT").add_blockref("CHAISE", (0, 0))
    drawing.saveas(verbs.folder / "sheets.dxf")
    verbs.run(*REPLACE, "--map", "REPERE=CODE", "--keep", "space,layer", "sheets.dxf", "--out", "kept.dxf")
    kept = ezdxf.readfile(verbs.folder / "kept.dxf")
    counts = {layout.name: [door.get_attrib_text("CODE") for door in layout.query('INSERT[name=="PORTE_90"]')] for layout in kept.layouts}
    verbs.hold(counts["Second"] == ["X"] and counts["Planche A3"] == ["Y"] and len(counts["Model"]) == 19, f"{counts}")
    verbs.hold(not kept.audit().errors, "audit")
    verbs.script('(setvar "VNKEEP" "space")\nVNREPLACE\nlstDestination : PORTE_80\nCboBlocReplacer : PORTE_90\nBtnReplace\nok\n'
                 "BtnClose\nSAVE dialog.dxf\nU\nPURGE\nSAVE purged.dxf\nU\nSAVE undone.dxf\n", "sheets.dxf")
    verbs.run(*REPLACE, "--keep", "space", "sheets.dxf", "--out", "verb.dxf")
    verbs.hold(verbs.bytes("dialog.dxf") == verbs.bytes("verb.dxf"), "the dialog's runs keep too")
    verbs.hold(verbs.bytes("undone.dxf") == verbs.bytes("sheets.dxf") != verbs.bytes("purged.dxf"), "PURGE is undone")
    purged = ezdxf.readfile(verbs.folder / "purged.dxf")
    verbs.hold(not purged.audit().errors and "PORTE_80" in purged.blocks and "NOTHING_USES_IT" not in purged.blocks, "PURGE leaves what is used")


def attributes_find_partners(verbs):
    (verbs.folder / "pairs.txt").write_text("# an office's list\nREPERE\tCODE\nNONE\tNOWHERE\n")
    done = verbs.run(*REPLACE, "--map-file", "pairs.txt", "--map-equal", "apartment.dxf", "--out", "mapped.dxf")
    verbs.hold("passed over NONE=NOWHERE" in done.stdout and "no partner" in done.stdout, done.stdout)
    verbs.run(*REPLACE, "--map", "NONE=CODE", "apartment.dxf", "--dry-run", code=1)
    old = {d.dxf.insert: d.get_attrib_text("REPERE") for d in
           ezdxf.readfile(verbs.folder / "apartment.dxf").modelspace().query('INSERT[name=="PORTE_80"]')}
    new = {d.dxf.insert: d.get_attrib_text("CODE") for d in
           ezdxf.readfile(verbs.folder / "mapped.dxf").modelspace().query('INSERT[name=="PORTE_90"]')}
    verbs.hold(all(new[place] == value for place, value in old.items()), "values are carried over")


def rows_that_fail(verbs):
    table = verbs.bytes("survey_points.txt").replace(b"\t5.142\t", b"\tx\t")
    (verbs.folder / "points.txt").write_bytes(table)
    words = ["insert", "--block", "SURVEY_POINT", "--data", "points.txt", "--regional", "en", "template.dxf", "--out", "o.dxf"]
    done = verbs.run(*words, code=1)
    verbs.hold("1 of 360 rows failed" in done.stderr and not (verbs.folder / "o.dxf").exists(), done.stderr)
    done = verbs.run(*words, "--keep-going")
    verbs.hold("359 inserted, 1 failed row" in done.stdout, done.stdout)


def a_round_trip_changes_one_value(verbs):
    for name in ("table.csv", "table.txt"):
        verbs.run("extract", "--block", "PORTE_80", "--handles", "apartment.dxf", "--out", name)
        done = verbs.run("update", "--data", name, "apartment.dxf", "--dry-run")
        verbs.hold("no value differs" in done.stdout, done.stdout)
    text = (verbs.folder / "table.csv").read_text(encoding="utf-8")
    value = ezdxf.readfile(verbs.folder / "apartment.dxf").modelspace().query('INSERT[name=="PORTE_80"]')[3].get_attrib_text("REPERE")
    verbs.hold(text.count(value) == 1, f"{value} is there once")
    rows = text.replace(value, "Neue Tür, 2").replace("Neue Tür, 2", '"Neue Tür, 2"').splitlines(True)
    rows.append(rows[-1].rsplit(",", 1)[0] + ",FFFF\r\n")
    (verbs.folder / "table.csv").write_text("".join(rows), encoding="utf-8", newline="")
    done = verbs.run("update", "--data", "table.csv", "apartment.dxf", "--out", "updated.dxf")
    verbs.hold("1 updated, 1 row without reference" in done.stdout, done.stdout)
    before, after = verbs.bytes("apartment.dxf").split(b"\n"), verbs.bytes("updated.dxf").split(b"\n")
    changed = [i for i in range(min(len(before), len(after))) if before[i] != after[i]]
    # The value, and the first point of its text, which is centred.
    verbs.hold(len(before) == len(after) and len(changed) == 2, f"{len(changed)} lines differ")


def pictures_need_no_display(verbs):
    kinds = {"png": b"\x89PNG", "svg": b"<?xml", "pdf": b"%PDF"}
    if not (verbs.vorlane.parent / "vorlane-picture").exists():
        done = verbs.run("picture", "apartment.dxf", code=2)
        verbs.hold("vorlane-picture" in done.stderr and "isn't installed" in done.stderr, done.stderr)
        return
    for kind, begin in kinds.items():
        verbs.run("picture", "apartment.dxf", "empty.dxf", "--format", kind, "--out", "pictures")
        verbs.hold(verbs.bytes(f"pictures/apartment.{kind}").startswith(begin), kind)
        verbs.run("picture", "empty.dxf", "--format", kind)
        verbs.hold(verbs.bytes(f"empty.{kind}").startswith(begin), f"{kind} beside the drawing")
    verbs.run("picture", "empty.dxf", code=2)
    verbs.run("picture", "apartment.dxf", "empty.dxf", "--out", "one.svg", code=2)
    verbs.run("picture", "apartment.dxf", "--size", "3x", "--out", "one.svg", code=2)
    done = verbs.run("picture", "apartment.dxf", "--layout", "NONE", "--out", "one.svg", code=1)
    verbs.hold("no such layout" in done.stderr and not (verbs.folder / "one.svg").exists(), done.stderr)
    door = ["picture", "apartment.dxf", "--block", "PORTE_80", "--out", "door.svg"]
    verbs.run(*door)
    verbs.hold(verbs.bytes("door.svg") != verbs.bytes("pictures/apartment.svg"), "--block")
    verbs.script("ERASE\nall\n\nPICTURE erased.svg\nPICTURE door.gif\n", code=1)
    verbs.hold(len(verbs.bytes("erased.svg")) < len(verbs.bytes("pictures/apartment.svg")), "PICTURE shows unsaved changes")


def names_may_look_like_options(verbs):
    """Of drawings, data files, folders, pictures, block files, and in what other programs are started with."""
    for name in ("--fresh", "-y", "--"):
        shutil.copy(verbs.folder / "apartment.dxf", verbs.folder / f"{name}.dxf")
        done = verbs.run(*REPLACE, "--out", f"{name}new.dxf", "--", f"{name}.dxf")
        verbs.hold("16 replaced" in done.stdout, done.stdout)
        verbs.run("extract", "--block", "PORTE_80", "--handles", f"--out={name}.csv", "--", f"{name}.dxf")
        verbs.run("update", f"--data={name}.csv", "--dry-run", "--", f"{name}.dxf")
        verbs.script(f"OPEN {name}.dxf\nSAVE {name}2.dxf\nVNINSERT\nBtnData\nfile {name}.csv\nBtnClose\n")
        verbs.hold(verbs.bytes(f"{name}2.dxf") == verbs.bytes("apartment.dxf"), f"SAVE {name}2.dxf")
        if (verbs.vorlane.parent / "vorlane-picture").exists():
            verbs.run("picture", f"--out={name}.svg", "--", f"{name}.dxf")
            verbs.script(f"PICTURE {name}2.svg\n")
            verbs.hold(verbs.bytes(f"{name}2.svg").startswith(b"<?xml"), f"PICTURE {name}2.svg")
        # A converter that takes what begins with a dash for an option.
        converter = verbs.folder / "bin/dwg2dxf"
        converter.parent.mkdir(exist_ok=True)
        converter.write_text('#!/bin/sh\n[ "$1 $2" = "-y -o" ] && shift 2\n'
                             'for word; do case $word in -*) echo option "$word"; exit 1; esac; done\ncp "$2" "$1"\n')
        converter.chmod(0o755)
        shutil.copy(verbs.folder / "apartment.dxf", verbs.folder / f"{name}.dwg")
        path = {**os.environ, "PATH": f"{converter.parent}:{os.environ['PATH']}"}
        done = subprocess.run([verbs.vorlane, "list", "--", f"{name}.dwg"], cwd=verbs.folder, env=path,
                              capture_output=True, text=True)
        verbs.hold(done.returncode == 0 and "PORTE_80" in done.stdout, f"{name}.dwg: {done}")


def pipes_and_devices_are_no_files(verbs):
    os.mkfifo(verbs.folder / "pipe.txt")
    for name in ("pipe.txt", "/dev/zero"):
        verbs.run("update", "--data", name, "apartment.dxf", "--dry-run", code=2)
        verbs.run("insert", "--block", "PORTE_80", "--data", name, "apartment.dxf", "--dry-run", code=2)
        verbs.run(*REPLACE, "--map-file", name, "apartment.dxf", "--dry-run", code=2)
        verbs.run("list", name, code=1)
        verbs.script(f"VNINSERT\nBtnData\nfile {name}\nBtnClose\n", code=1)
    verbs.script("VNEXTRACT\nBtnSave\nfile pipe.txt\nBtnClose\n", code=1)


def control_c_ends_between_drawings(verbs):
    names = []
    for number in range(60):
        names.append(f"copy{number}.dxf")
        shutil.copy(verbs.folder / "apartment.dxf", verbs.folder / names[-1])
    job = subprocess.Popen([verbs.vorlane, *REPLACE, *names, "--out", "many"], cwd=verbs.folder,
                           stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, start_new_session=True)
    job.stdout.readline()
    job.send_signal(signal.SIGINT)
    told, _ = job.communicate(timeout=120)
    done = list((verbs.folder / "many").glob("*.dxf"))
    verbs.hold(job.returncode == 130 and "not begun" in told, f"exit code {job.returncode}: {told[-300:]}")
    verbs.hold(len(done) < 60 and not [p for p in (verbs.folder / "many").iterdir() if p.suffix != ".dxf"], "whole results")
    for path in done[-2:]:
        verbs.hold(not ezdxf.readfile(path).audit().errors, f"{path.name} is whole")


def main():
    wrong = 0
    checks = [files_are_safe, one_bad_drawing_stops_no_other, locked_layers_are_left, properties_are_taken_over, layouts_are_kept,
              attributes_find_partners,
              rows_that_fail, a_round_trip_changes_one_value, pictures_need_no_display,
              control_c_ends_between_drawings, names_may_look_like_options, pipes_and_devices_are_no_files]
    for check in checks:
        with tempfile.TemporaryDirectory(prefix="vorlane-verbs-") as name:
            verbs = Verbs(Path(sys.argv[1]).resolve(), Path(name))
            check(verbs)
            for fault in verbs.faults:
                wrong += 1
                print(f"WRONG: {check.__name__}: {fault}")
    print(f"{len(checks)} checks, {wrong} faults")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
