#!/usr/bin/env python3
"""Compares the references of some blocks in model space of two drawings, one by one in the order of the files, as
ezdxf reads them: place in world coordinates, scales, rotation and attributes. Numbers are equal when the 15 digits
are that a block data file holds, of a rotation those in radians.

    compare_references.py ORIGINAL RESULT BLOCK..."""

import math
import sys

import ezdxf


def references(path, name):
    space = ezdxf.readfile(path).modelspace()
    return [insert for insert in space.query("INSERT") if insert.dxf.name.upper() == name.upper()]


def values(insert):
    dxf = insert.dxf
    place = insert.ocs().to_wcs(dxf.insert)
    numbers = [*place, dxf.xscale, dxf.yscale, dxf.zscale, math.radians(dxf.rotation)]
    return [f"{number + 0.0:.15g}" for number in numbers] + [f"{a.dxf.tag}={a.dxf.text}" for a in insert.attribs]


wrong = 0
for name in sys.argv[3:]:
    before, after = (references(path, name) for path in sys.argv[1:3])
    differences = [(old, new) for old, new in zip(before, after) if values(old) != values(new)]
    equal = min(len(before), len(after)) - len(differences)
    print(f"{name}: {len(before)} before, {len(after)} after, {equal} equal")
    wrong += len(differences) + abs(len(before) - len(after))
    for old, new in differences[:5]:
        print(f"  {' '.join(values(old))}\n  became\n  {' '.join(values(new))}")
sys.exit(1 if wrong else 0)
