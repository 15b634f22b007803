#!/usr/bin/env python3
"""Writes the samples of a bulk insertion into samples/: survey_points.txt, a block data file of a surveyor's points with
decimal points, and template.dxf, a drawing with nothing in it but the blocks that the points and the rooms of
apartment.dxf are inserted as. Needs python3-ezdxf (Debian's package)."""

import math
import os
import pathlib
import random
import sys

import ezdxf

import make_samples
import make_samples_blocks as blocks

COLUMNS = ["N°", "X insertion", "Y insertion", "Z insertion", "Ech. X", "Ech. Y", "Ech. Z", "Rotation",
           "MATRICULE", "ALTITUDE", "NATURE", "Calque", "Couleur"]
KINDS = (("TN", 10), ("ARBRE", 2), ("BORDURE", 4), ("REGARD", 1), ("TALUS", 3))  # what stands there, how often


def height(x, y):
    """The ground: a slope to the south with a hollow in the middle."""
    return 84.2 + y * 0.021 + 1.4 * math.sin(x / 31) - 2.2 * math.exp(-((x - 70) ** 2 + (y - 55) ** 2) / 900)


def points():
    """A walk over the site in rows of shots, each a little off the grid."""
    chance = random.Random(1804)
    kinds = [kind for kind, share in KINDS for _ in range(share)]
    number = 0
    for row in range(15):
        for shot in range(24):
            number += 1
            x = 3 + shot * 6 + chance.uniform(-1.6, 1.6)
            y = 4 + row * 7 + chance.uniform(-1.8, 1.8)
            yield number, round(x, 3), round(y, 3), round(height(x, y) + chance.uniform(-0.05, 0.05), 3), chance.choice(kinds)


def data_lines():
    yield "Données du bloc \tSURVEY_POINT"
    yield "\t".join(COLUMNS)
    for number, x, y, z, kind in points():
        turn = "0.785398163397448" if kind == "BORDURE" else "0"  # radians
        yield "\t".join([str(number), f"{x:.15g}", f"{y:.15g}", f"{z:.15g}", "1", "1", "1", turn, f"P{number:03}",
                         f"{z:.3f}", kind, "LEVE", "256"])


def template():
    """The signs of the sample drawings, and the point: a cross with the texts beside it."""
    doc = make_samples.new_drawing("R2010")
    for name, color in (("ETIQUETTES", 2), ("PIECES", 3), ("LEVE", 6)):
        doc.layers.add(name, color=color)
    blocks.signs(doc)
    point = doc.blocks.new("SURVEY_POINT")
    point.add_line((-0.25, 0), (0.25, 0))
    point.add_line((0, -0.25), (0, 0.25))
    point.add_circle((0, 0), 0.12)
    for tag, prompt, default, y in (("MATRICULE", "Matricule du point", "P000", 0.45),
                                    ("ALTITUDE", "Altitude", "0.000", -0.45),
                                    ("NATURE", "Nature du point", "TN", -0.85)):
        blocks.define_attribute(point, tag, prompt, default, (0.9, y), 0.3)
    doc.set_modelspace_vport(height=110, center=(70, 55))
    return doc


def main():
    if os.environ.get("PYTHONHASHSEED") != "0":  # the order of sets shows in the drawing
        os.execve(sys.executable, [sys.executable, *sys.argv], {**os.environ, "PYTHONHASHSEED": "0"})
    ezdxf.options.write_fixed_meta_data_for_testing = True  # the same bytes at each run
    folder = pathlib.Path(__file__).resolve().parent.parent / "samples"
    make_samples.write(template(), folder / "template.dxf")
    text = "".join(line + "\r\n" for line in data_lines())
    (folder / "survey_points.txt").write_bytes(text.encode("cp1252"))
    print(f"{text.count(chr(10)) - 2} points")


if __name__ == "__main__":
    main()
