#!/usr/bin/env python3
"""Saves a copy of a drawing with more blocks, each a circle and the attribute TEXTE: add_blocks.py DRAWING COPY NAME..."""

import sys

import ezdxf

document = ezdxf.readfile(sys.argv[1])
for name in sys.argv[3:]:
    block = document.blocks.new(name)
    block.add_circle((0, 0), 1)
    block.add_attdef("TEXTE", (0, 0), "-")
document.saveas(sys.argv[2])
