#!/usr/bin/python3
"""Lays Vorlane's pictures beside those of two other programs: which share of the strokes of each lies within two
pixels of the other's, on a picture 1600 pixels wide.

    tools/compare_pictures.py PROGRAM DRAWING...      PROGRAM is build/.../vorlane-picture

ezdxf (python3-ezdxf) draws into a list here, in drawing units. LibreCAD (librecad) writes a PDF that is fitted to its
page by rules of its own, so scale and offset are looked for first. Texts don't count, and nothing that lies where we
have one: each program has fonts of its own. Nor do areas that are filled. LibreCAD needs no display but takes some seconds a drawing."""

import math
import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
import zlib
from pathlib import Path

PIXELS = 1600
NEAR = 2.0
STEP = 1.0  # of the places on a stroke that are looked at, pixels


def places(strokes, step):
    """Points along polylines, `step` apart."""
    for points in strokes:
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            count = max(1, int(math.hypot(x2 - x1, y2 - y1) / step))
            for i in range(count + 1):
                yield x1 + (x2 - x1) * i / count, y1 + (y2 - y1) * i / count


class Near:
    """Which cells of a pixel's size have a stroke within NEAR pixels."""

    def __init__(self, strokes, width, height):
        self.cells = set()
        reach = int(NEAR)
        disc = [(dx, dy) for dx in range(-reach, reach + 1) for dy in range(-reach, reach + 1)
                if dx * dx + dy * dy <= NEAR * NEAR]
        seen = {(int(x), int(y)) for x, y in places(strokes, STEP / 2)
                if -9 <= x <= width + 9 and -9 <= y <= height + 9}
        for x, y in seen:
            self.cells.update((x + dx, y + dy) for dx, dy in disc)

    def share(self, strokes, width, height, texts):
        """Share of the strokes' length, as far as it is on the picture and no text there, that has something near."""
        seen = {(int(x), int(y)) for x, y in places(strokes, STEP) if 0 <= x < width and 0 <= y < height} - texts
        return sum(cell in self.cells for cell in seen) / len(seen) if seen else 1.0


# Ours


def ours(program, drawing, window, size, folder):
    """Our strokes from an SVG, in pixels, and the cells that lie under texts."""
    path = os.path.join(folder, "ours.svg")
    area = ",".join(repr(v) for v in window)
    command = [program, drawing, path, "--window=" + area, "--size=%dx%d" % size, "--no-margin"]
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    root = ElementTree.parse(path).getroot()
    wide = float(root.get("viewBox").split()[2])
    factor = size[0] / wide
    strokes = []
    texts = set()

    def walk(node, drawn):
        if node.get("stroke") is not None:
            drawn = node.get("stroke") != "none"
        tag = node.tag.rsplit("}", 1)[-1]
        if drawn and tag in ("polyline", "polygon"):
            numbers = [float(v) for v in re.split(r"[ ,]+", node.get("points").strip())]
            points = list(zip(numbers[::2], numbers[1::2]))
            strokes.append(points + points[:1] if tag == "polygon" else points)
        elif drawn and tag == "path":
            for part in re.findall(r"M([^M]+)", node.get("d")):
                numbers = [float(v) for v in re.findall(r"-?[\d.]+(?:e-?\d+)?", part)]
                strokes.append(list(zip(numbers[::2], numbers[1::2])))
        elif tag == "path" and "C" in node.get("d"):
            # Only letters have curves; areas are filled along chords.
            numbers = [float(v) * factor for v in re.findall(r"-?[\d.]+(?:e-?\d+)?", node.get("d"))]
            xs, ys = numbers[::2], numbers[1::2]
            for x in range(int(min(xs)) - 3, int(max(xs)) + 5):
                texts.update((x, y) for y in range(int(min(ys)) - 3, int(max(ys)) + 5))
        for child in node:
            walk(child, drawn)

    walk(root, False)
    return [[(x * factor, y * factor) for x, y in points] for points in strokes], texts


# ezdxf


def ezdxf_strokes(drawing, to_pixels):
    from ezdxf import recover
    from ezdxf.addons.drawing import Frontend, RenderContext
    from ezdxf.addons.drawing.backend import Backend
    from ezdxf.tools.fonts import MonospaceFont

    strokes = []

    class Recorder(Backend):
        def set_background(self, color):
            pass

        def draw_point(self, pos, properties):
            pass

        def draw_line(self, start, end, properties):
            strokes.append([(start.x, start.y), (end.x, end.y)])

        def draw_path(self, path, properties):
            strokes.append([(v.x, v.y) for v in path.flattening(0.01)])

        def draw_filled_paths(self, paths, holes, properties):
            pass

        def draw_filled_polygon(self, points, properties):
            pass

        def draw_text(self, text, transform, properties, cap_height):
            pass

        def get_font_measurements(self, cap_height, font=None):
            return MonospaceFont(cap_height, 1.0).measurements

        def get_text_line_width(self, text, cap_height, font=None):
            return len(text) * cap_height

        def clear(self):
            pass

        def finalize(self):
            pass

    document, _ = recover.readfile(drawing)
    Frontend(RenderContext(document), Recorder()).draw_layout(document.modelspace())
    return [[to_pixels(x, y) for x, y in points] for points in strokes]


# LibreCAD


def pdf_strokes(path):
    """Stroked lines and curves of a PDF, in its units with Y upwards."""
    data = Path(path).read_bytes()
    page = [float(v) for v in re.search(rb"/MediaBox *\[([^\]]+)\]", data).group(1).split()]
    fine = (page[2] - page[0]) / 4000
    strokes = []
    for match in re.finditer(rb"stream\r?\n(.*?)endstream", data, re.S):
        try:
            content = zlib.decompressobj().decompress(match.group(1)).decode("latin-1")
        except zlib.error:
            continue
        matrix, stack, numbers, paths, ends = (1, 0, 0, 1, 0, 0), [], [], [], {}

        def apply(x, y):
            a, b, c, d, e, f = matrix
            return a * x + c * y + e, b * x + d * y + f

        for word in content.split():
            try:
                numbers.append(float(word))
                continue
            except ValueError:
                pass
            if word in ("m", "l", "c", "cm") and len(numbers) < {"c": 6, "cm": 6}.get(word, 2):
                break  # no page, but a font or an image
            if word == "q":
                stack.append(matrix)
            elif word == "Q" and stack:
                matrix = stack.pop()
            elif word == "cm":
                a, b, c, d, e, f = numbers[-6:]
                m = matrix
                matrix = (a * m[0] + b * m[2], a * m[1] + b * m[3], c * m[0] + d * m[2], c * m[1] + d * m[3],
                          e * m[0] + f * m[2] + m[4], e * m[1] + f * m[3] + m[5])
            elif word == "m":
                paths.append([apply(*numbers[-2:])])
            elif word == "l" and paths:
                # It draws arcs in steps far finer than a pixel.
                point = apply(*numbers[-2:])
                if math.dist(point, paths[-1][-1]) > fine:
                    paths[-1].append(point)
                else:
                    ends[id(paths[-1])] = point
            elif word == "c" and paths:
                p0 = paths[-1][-1]
                p1, p2, p3 = (apply(*numbers[-6:][i:i + 2]) for i in (0, 2, 4))
                for i in range(1, 17):
                    t = i / 16
                    u = 1 - t
                    paths[-1].append(tuple(u**3 * p0[k] + 3 * u * u * t * p1[k] + 3 * u * t * t * p2[k] + t**3 * p3[k]
                                           for k in (0, 1)))
            elif word == "h" and paths:
                paths[-1].append(paths[-1][0])
            elif word in ("S", "s"):
                strokes += [points + [ends[id(points)]] if id(points) in ends else points for points in paths]
                paths, ends = [], {}
            elif word in ("f", "f*", "n", "B", "b", "B*", "b*", "F"):
                paths = []
            numbers = []
    return [points for points in strokes if len(points) > 1]


def librecad_strokes(drawing, folder):
    from ezdxf import recover

    # It writes beside the drawing, and prints the layouts over model space: the copy has none.
    copy = os.path.join(folder, "librecad.dxf")
    path = os.path.join(folder, "librecad.pdf")
    document, _ = recover.readfile(drawing)
    for layout in document.layouts:
        if layout.name != "Model":
            layout.delete_all_entities()
    # Texts don't count, and those that it turns or blows up would change what it fits to the page.
    for holder in document.blocks:
        for entity in list(holder):
            if entity.dxftype() in ("TEXT", "MTEXT", "ATTDEF"):
                holder.delete_entity(entity)
            elif entity.dxftype() == "INSERT":
                entity.attribs.clear()
    document.saveas(copy)
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    subprocess.run(["librecad", "dxf2pdf", "-a", copy], env=environment,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=300)
    return pdf_strokes(path) if os.path.exists(path) else None


def box(strokes):
    xs = [x for points in strokes for x, _ in points]
    ys = [y for points in strokes for _, y in points]
    return min(xs), min(ys), max(xs), max(ys)


def coarse_starts(flipped, reference, size):
    """Scales and offsets at which both pictures, a few hundred pixels across, cover each other best: what one of
    them lacks or has beyond the other then doesn't matter, as it does for the boxes about them."""
    import numpy

    cells = 512
    shrink = cells / max(size) / 2

    def raster(points):
        grid = numpy.zeros((cells, cells))
        for x, y in points:
            if 0 <= x < cells and 0 <= y < cells:
                grid[int(y), int(x)] = 1
        return grid

    own = raster((x * shrink, y * shrink) for x, y in places(reference, 1 / shrink))
    transformed = numpy.conj(numpy.fft.rfft2(own))
    sample = list(places(flipped, max(max(x for p in flipped for x, _ in p), max(y for p in flipped for _, y in p)) / 800))
    left, low, right, high = box(reference)
    base = max(right - left, high - low) / max(max(x for x, _ in sample), max(y for _, y in sample), 1e-9)
    found = []
    for k in range(-40, 41):
        scale = base * 1.04**k
        grid = raster((x * scale * shrink, y * scale * shrink) for x, y in sample)
        if grid.sum() < 20:
            continue
        match = numpy.fft.irfft2(numpy.conj(numpy.fft.rfft2(grid) * transformed), s=grid.shape)
        at = int(match.argmax())
        dy, dx = divmod(at, cells)
        dx, dy = (v - cells if v > cells / 2 else v for v in (dx, dy))
        found.append((float(match.max() / math.sqrt(grid.sum() * own.sum())), scale, dx / shrink, dy / shrink))
    return sorted(found, reverse=True)[:4]


def aligned(strokes, near, reference, size):
    """The strokes scaled and moved so that as many as can be lie near the reference's."""
    left, low, right, high = box(strokes)
    want = box(reference)
    flipped = [[(x - left, high - y) for x, y in points] for points in strokes]
    sample = list(places(flipped, max(right - left, high - low) / 400))
    sample = sample[::max(1, len(sample) // 600)]

    def hits(scale, dx, dy):
        return sum((int(x * scale + dx), int(y * scale + dy)) in near.cells for x, y in sample)

    best = (-1, 1.0, 0.0, 0.0)
    base = (want[2] - want[0]) / max(right - left, 1e-9)
    for start in (base, (want[3] - want[1]) / max(high - low, 1e-9)):
        best = max(best, (hits(start, want[0], want[1]), start, want[0], want[1]))
    if best[0] < 0.9 * len(sample):
        best = max([best] + [fitted(hits, size, (hits(*start[1:]), *start[1:]), 0.04, 12.0)
                             for start in coarse_starts(flipped, reference, size)])
    _, scale, dx, dy = fitted(hits, size, best, 0.06, 40.0)
    return [[(x * scale + dx, y * scale + dy) for x, y in points] for points in flipped]


def fitted(hits, size, best, spread, shift):
    """Looks about a scale and offset for better ones."""
    for _ in range(9):
        _, scale, dx, dy = best
        for k in (-1, -0.5, 0, 0.5, 1):
            for i in (-1, -0.5, 0, 0.5, 1):
                for j in (-1, -0.5, 0, 0.5, 1):
                    s = scale * (1 + spread * k)
                    # about the middle of the picture, so that scale and offset don't fight
                    x = size[0] / 2 - (size[0] / 2 - dx) * s / scale + shift * i
                    y = size[1] / 2 - (size[1] / 2 - dy) * s / scale + shift * j
                    best = max(best, (hits(s, x, y), s, x, y))
        spread *= 0.55
        shift *= 0.55
    return best


def window_of(drawing):
    """The drawing's extents, as ezdxf finds them."""
    from ezdxf import bbox, recover

    document, _ = recover.readfile(drawing)
    entities = (e for e in document.modelspace() if e.dxftype() not in ("XLINE", "RAY"))
    extents = bbox.extents(entities)
    (x1, y1, _), (x2, y2, _) = extents.extmin, extents.extmax
    edge = max(x2 - x1, y2 - y1) * 0.02
    return x1 - edge, y1 - edge, x2 + edge, y2 + edge


def compare(program, drawing):
    window = window_of(drawing)
    scale = PIXELS / (window[2] - window[0])
    size = (PIXELS, max(1, round((window[3] - window[1]) * scale)))
    if size[1] > 2 * PIXELS:
        scale *= 2 * PIXELS / size[1]
        size = (max(1, round((window[2] - window[0]) * scale)), 2 * PIXELS)

    def to_pixels(x, y):
        return (x - window[0]) * scale, (window[3] - y) * scale

    with tempfile.TemporaryDirectory() as folder:
        own, texts = ours(program, drawing, window, size, folder)
        own_near = Near(own, *size)
        others = ezdxf_strokes(drawing, to_pixels)
        row = [own_near.share(others, *size, texts), Near(others, *size).share(own, *size, texts)]
        strokes = librecad_strokes(drawing, folder)
        if strokes:
            moved = aligned(strokes, own_near, own, size)
            row += [own_near.share(moved, *size, texts), Near(moved, *size).share(own, *size, texts)]
    return row


def main():
    if len(sys.argv) < 3:
        print(__doc__)
        return 2
    print(f"{'drawing':34} {'ezdxf in ours':>14} {'ours in ezdxf':>14} {'LibreCAD in ours':>17} {'ours in LibreCAD':>17}")
    for drawing in sys.argv[2:]:
        try:
            row = compare(sys.argv[1], drawing)
        except Exception as error:  # a drawing that one of them can't read is told, the others still count
            print(f"{Path(drawing).name:34} {error}")
            continue
        cells = [f"{100 * value:.1f} %" for value in row]
        print(f"{Path(drawing).name:34} " + " ".join(f"{cell:>{width}}" for cell, width in zip(cells, (14, 14, 17, 17))))
    return 0


if __name__ == "__main__":
    sys.exit(main())
