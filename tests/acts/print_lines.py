#!/usr/bin/env python3
"""Prints the lines of model space on a layer, as ezdxf reads them: print_lines.py DRAWING LAYER"""

import sys

import ezdxf

for line in ezdxf.readfile(sys.argv[1]).modelspace().query("LINE"):
    if line.dxf.layer == sys.argv[2]:
        start, end = (",".join(f"{v:.6g}" for v in point) for point in (line.dxf.start, line.dxf.end))
        print(f"{start} to {end}")
