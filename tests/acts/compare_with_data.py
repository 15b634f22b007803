#!/usr/bin/env python3
"""Compares the references of a block in a drawing with the rows of a block data file, as ezdxf and Python read them:
place moved by the deltas, scales, rotation, the attributes of the columns' tags, and a line from each row's own place.
The file's layout is that of an extraction.

    compare_with_data.py DATA DRAWING BLOCK [DX DY DZ]"""

import math
import sys

import ezdxf

data, drawing, name = sys.argv[1:4]
delta = [float(text) for text in sys.argv[4:]]
lines = open(data, encoding="cp1252", newline="").read().split("\r\n")[:-1]
headers, rows = lines[1].split("\t"), [line.split("\t") for line in lines[2:]]
space = ezdxf.readfile(drawing).modelspace()
references = [insert for insert in space.query("INSERT") if insert.dxf.name.upper() == name.upper()]
leaders = list(space.query("LINE"))
wrong = 0


def same(left, right):
    return math.isclose(left, right, rel_tol=1e-14, abs_tol=1e-12)


for i, (row, insert) in enumerate(zip(rows, references)):
    start = [float(text) for text in row[1:4]]
    place = [s + d for s, d in zip(start, delta)] if delta else start
    dxf = insert.dxf
    numbers = [*dxf.insert, dxf.xscale, dxf.yscale, dxf.zscale, math.radians(dxf.rotation)]
    good = all(same(a, b) for a, b in zip(numbers, place + [float(text) for text in row[4:8]]))
    texts = dict(zip(headers[8:], row[8:]))
    good = good and all(attrib.dxf.text == texts[attrib.dxf.tag] for attrib in insert.attribs)
    if delta:
        ends = [*leaders[i].dxf.start, *leaders[i].dxf.end]
        good = good and all(same(a, b) for a, b in zip(ends, start + place))
    wrong += not good
print(f"{len(rows)} rows, {len(references)} references, {len(leaders)} lines, {wrong} wrong")
sys.exit(1 if wrong or len(rows) != len(references) or len(leaders) != (len(rows) if delta else 0) else 0)
