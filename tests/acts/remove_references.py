#!/usr/bin/env python3
"""Saves a copy of a drawing without the references of some blocks in model space:

    remove_references.py DRAWING COPY BLOCK..."""

import sys

import ezdxf

document = ezdxf.readfile(sys.argv[1])
names = {name.upper() for name in sys.argv[3:]}
space = document.modelspace()
gone = [insert for insert in space.query("INSERT") if insert.dxf.name.upper() in names]
for insert in gone:
    space.delete_entity(insert)
document.saveas(sys.argv[2])
print(f"removed {len(gone)} references")
