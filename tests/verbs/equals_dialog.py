#!/usr/bin/env python3
"""Holds `vorlane replace` and `vorlane extract` to what the dialogs make of the same drawings, byte for byte:

    equals_dialog.py VORLANE [--keep FOLDER]

The drawings are the samples and the corpus of real drawings where that is there. Each pair of blocks is replaced by one
call of the verb on all drawings that have it, and by a script of the console on each."""

import subprocess
import sys
import tempfile
from collections import defaultdict
from pathlib import Path

import ezdxf

ROOT = Path(__file__).resolve().parent.parent.parent
CORPUS = ROOT.parent / "shared" / "corpus"
ATTRIBUTES = {"PORTE_80": [("REPERE", "CODE"), ("LARGEUR", "PASSAGE")]}


def pairs(path):
    """The block with most references that lie in no block, and another block of the drawing."""
    drawing = ezdxf.readfile(path)
    counts = defaultdict(int)
    for layout in drawing.layouts:
        for reference in layout.query("INSERT"):
            layer = drawing.layers.get(reference.dxf.layer) if reference.dxf.layer in drawing.layers else None
            counts[reference.dxf.name] += -1000 if layer is not None and layer.is_locked() else 1
    names = [b.name for b in drawing.blocks if not b.block_record.is_any_layout and not b.block_record.is_xref]
    usable = [name for name in counts if counts[name] > 0 and not name.startswith("*")]
    if path.name == "apartment.dxf":
        return "PORTE_80", "PORTE_90"
    if not usable:
        return None
    source = max(usable, key=lambda name: counts[name])
    others = [name for name in names if name != source and not name.startswith("*")]
    return source, others[0] if others else source


def script(source, target):
    lines = ["VNREPLACE", f"lstDestination : {source}", f"CboBlocReplacer : {target}"]
    if source in ATTRIBUTES:
        lines += ["ChkAttSet", "BtnAttSet"]
        for old, new in ATTRIBUTES[source]:
            lines += [f"ListView1 : {old}", f"Combo2 : {new}"]
        lines.append("OKButton")
    return lines + ["BtnReplace", "ok", "BtnClose", "SAVE replaced.dxf"]


def extraction(block):
    return ["VNEXTRACT", "BtnNew", f"first {block}", "OKButton", "all", "", "BtnSave", "file table.txt", "BtnClose"]


def run(command, folder, text=None):
    done = subprocess.run(command, cwd=folder, input=text, capture_output=True, text=True)
    if done.returncode != 0:
        print(f"WRONG: {' '.join(map(str, command))}: exit code {done.returncode}\n{done.stdout[-800:]}{done.stderr}")
    return done.returncode == 0


def can_be_extracted_by_hand(path, block):
    drawing = ezdxf.readfile(path)
    frozen = {layer.dxf.name.lower() for layer in drawing.layers if layer.is_frozen()}
    shown = lambda found: found.dxf.layer.lower() not in frozen
    elsewhere = sum(1 for layout in drawing.layouts if layout.name != "Model"
                    for found in layout.query("INSERT") if found.dxf.name == block)
    return elsewhere == 0 and all(shown(f) and f.mcount == 1 for f in drawing.modelspace().query("INSERT") if f.dxf.name == block)


def main():
    vorlane = Path(sys.argv[1]).resolve()
    drawings = sorted((ROOT / "samples").glob("*.dxf")) + sorted(CORPUS.glob("*.dxf"))
    work, wrong, compared = defaultdict(list), 0, 0
    for path in drawings:
        found = pairs(path)
        if found:
            work[found].append(path)
    with tempfile.TemporaryDirectory(prefix="vorlane-equal-") as name:
        folder = Path(name)
        common = ["--regional", "en", "--lang", "en"]
        for (source, target), paths in work.items():
            maps = [word for old, new in ATTRIBUTES.get(source, []) for word in ("--map", f"{old}={new}")]
            out = folder / f"out{len(list(folder.iterdir()))}"
            ok = run([vorlane, "replace", "--from", source, "--to", target, *maps, *common, *paths, "--out", out], folder)
            by_hand = [path for path in paths if can_be_extracted_by_hand(path, source)]
            if by_hand:
                ok &= run([vorlane, "extract", "--block", source, *common, *by_hand, "--out", out], folder)
            wrong += not ok
            for path in paths:
                console = [vorlane, path, "--script", "-", "--fresh", *common]
                lines = script(source, target)
                ok = run(console, folder, "\n".join(lines) + "\n")
                same = ok and (folder / "replaced.dxf").read_bytes() == (out / path.name).read_bytes()
                compared += 1
                if path in by_hand:
                    ok = run(console, folder, "\n".join(extraction(source)) + "\n")
                    table = out / (path.stem + ".txt")
                    same &= ok and (folder / "table.txt").read_bytes() == table.read_bytes()
                    compared += 1
                if not same:
                    wrong += 1
                    print(f"WRONG: {path.name}: {source} by {target} differs")
    print(f"{compared} results of the verbs compared with the dialogs', {wrong} differ")
    return 1 if wrong or not compared else 0


if __name__ == "__main__":
    sys.exit(main())
