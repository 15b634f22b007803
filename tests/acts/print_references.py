#!/usr/bin/env python3
"""Prints the references of a block in a drawing, as ezdxf reads them: print_references.py DRAWING BLOCK"""

import sys

import ezdxf

document = ezdxf.readfile(sys.argv[1])
for layout in document.layouts:
    for insert in layout.query("INSERT"):
        if insert.dxf.name.upper() != sys.argv[2].upper():
            continue
        dxf = insert.dxf
        place = ",".join(f"{v:.6g}" for v in dxf.insert)
        scale = ",".join(f"{v:.6g}" for v in (dxf.xscale, dxf.yscale, dxf.zscale))
        values = " ".join(f"{a.dxf.tag}={a.dxf.text!r}" for a in insert.attribs)
        hidden = " invisible" if dxf.invisible else ""
        print(f"{layout.name}: at {place} scale {scale} rotation {dxf.rotation:.6g} layer {dxf.layer}{hidden} {values}".rstrip())
