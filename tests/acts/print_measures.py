#!/usr/bin/env python3
"""Prints length and area of closed polylines, worked out from the corners and bulges that ezdxf reads:
print_measures.py DRAWING HANDLE..."""

import math
import sys

import ezdxf


def corners(entity):
    if entity.dxftype() == "LWPOLYLINE":
        return list(entity.get_points("xyb"))
    return [(v.dxf.location.x, v.dxf.location.y, v.dxf.get("bulge", 0)) for v in entity.vertices]


def measures(points):
    length = area = 0
    for (x1, y1, bulge), (x2, y2, _) in zip(points, points[1:] + points[:1]):
        chord = math.hypot(x2 - x1, y2 - y1)
        area += (x1 * y2 - x2 * y1) / 2
        angle = 4 * math.atan(bulge)
        if abs(bulge) < 1e-12 or chord == 0:
            length += chord
            continue
        radius = chord / 2 / math.sin(angle / 2)
        length += radius * angle
        area += radius * radius / 2 * (angle - math.sin(angle))
    return length, abs(area)


document = ezdxf.readfile(sys.argv[1])
for handle in sys.argv[2:]:
    print("%s: length %.6f area %.6f" % (handle, *measures(corners(document.entitydb[handle]))))
