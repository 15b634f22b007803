#!/usr/bin/env python3
"""Writes the sample drawings into samples/: a floor of two flats, with a sheet and without, a door and a room label that serve as blocks to bring
in, and an empty drawing. Needs python3-ezdxf (Debian's package)."""

import io
import os
import pathlib
import sys

import ezdxf
from ezdxf.enums import TextEntityAlignment

import make_samples_blocks as blocks
from make_samples_blocks import CENTER, rectangle

LAYERS = [  # name, colour
    ("MURS", 7), ("CLOISONS", 8), ("HACHURES", 251), ("PORTES", 30), ("FENETRES", 5), ("MOBILIER", 42),
    ("SANITAIRES", 4), ("PIECES", 3), ("ETIQUETTES", 2), ("TEXTES", 7), ("COTES", 1), ("JARDIN", 82),
    ("FOND_PLAN", 9), ("ELECTRICITE", 6), ("CARTOUCHE", 7), ("FENETRE_PRESENTATION", 8)]

OUTER = 0.3   # thickness of outer walls
INNER = 0.1   # and of partitions
WIDTH, DEPTH = 18.0, 10.0
STAIR = (8.0, 10.0)  # the landing between the flats, from x to x


def new_drawing(version):
    doc = ezdxf.new(version)
    doc.header["$INSUNITS"] = 6
    doc.header["$MEASUREMENT"] = 1
    doc.header["$LASTSAVEDBY"] = "Vorlane"
    doc.styles.add("NOTES", font="isocp.shx")
    return doc


def insert(space, name, at, layer, values=None, scale=(1, 1), rotation=0, **attribs):
    """A reference with its attributes where the block's definitions put them. Texts stay readable in mirrored
    references, since they are centred."""
    reference = space.add_blockref(name, at, dxfattribs={
        "layer": layer, "xscale": scale[0], "yscale": scale[1], "zscale": abs(scale[1]), "rotation": rotation,
        **attribs})
    place = reference.matrix44()
    for definition in reference.block().attdefs():
        if definition.is_const:
            continue
        text = (values or {}).get(definition.dxf.tag, definition.dxf.text)
        position = place.transform(definition.dxf.align_point)
        attrib = reference.add_attrib(definition.dxf.tag, text, position, dxfattribs={
            "height": definition.dxf.height * abs(scale[1]), "style": definition.dxf.style,
            "layer": definition.dxf.layer, "flags": definition.dxf.flags, "rotation": rotation})
        attrib.set_placement(position, align=CENTER)
    return reference


class Flat:
    """Places things in the left flat, or mirrored in the right one."""

    def __init__(self, space, letter, mirrored):
        self.space, self.letter, self.mirrored = space, letter, mirrored
        self.doors = 0

    def point(self, x, y):
        return (WIDTH - x, y) if self.mirrored else (x, y)

    def insert(self, name, at, layer, values=None, scale=(1, 1), rotation=0, **attribs):
        if self.mirrored:
            scale, rotation = (-scale[0], scale[1]), -rotation
        return insert(self.space, name, self.point(*at), layer, values, scale, rotation, **attribs)

    def box(self, x, y, width, height, **attribs):
        x, y = self.point(x + width if self.mirrored else x, y)
        return rectangle(self.space, x, y, width, height, **attribs)

    def door(self, at, rotation=0, scale=(1, 1), name="PORTE_80", fire="", **attribs):
        self.doors += 1
        mark = f"{self.letter}{self.doors:02}"
        if name == "PORTE_80":
            values = {"REPERE": f"P-{mark}", "LARGEUR": "80", "FEU": fire}
        else:
            values = {"CODE": f"E-{mark}", "PASSAGE": "90", "COUPE_FEU": fire, "HUISSERIE": "métal"}
        return self.insert(name, at, "PORTES", values, scale, rotation, **attribs)

    def wall(self, start, end, openings=(), thickness=INNER, layer="CLOISONS"):
        """A straight wall in pieces between its openings, given as pairs of distances from the lower end."""
        along_x = start[1] == end[1]
        length = abs(end[0] - start[0]) + abs(end[1] - start[1])
        cuts = [0.0] + [cut for opening in openings for cut in opening] + [length]
        for begin, stop in zip(cuts[::2], cuts[1::2]):
            if along_x:
                piece = (start[0] + begin, start[1] - thickness / 2, stop - begin, thickness)
            else:
                piece = (start[0] - thickness / 2, start[1] + begin, thickness, stop - begin)
            wall = self.box(*piece, layer=layer)
            if layer == "MURS":
                hatch = self.space.add_hatch(color=256, dxfattribs={"layer": "HACHURES"})
                hatch.paths.add_polyline_path(wall.get_points("xy"), is_closed=True)


ROOMS = [  # name, corner, size, place of the label
    ("Séjour", (0.15, 0.15), (4.3, 4.2), (2.2, 2.85)),
    ("Cuisine", (4.55, 0.15), (3.35, 4.2), (6.2, 3.2)),
    ("Entrée", (0.15, 4.45), (7.75, 1.3), (4.3, 5.1)),
    ("Chambre 1", (0.15, 5.85), (2.8, 4.0), (1.5, 6.9)),
    ("Chambre 2", (3.05, 5.85), (2.3, 4.0), (4.2, 7.1)),
    ("Bains", (5.45, 5.85), (1.4, 4.0), (6.15, 7.4)),
    ("WC", (6.95, 5.85), (0.95, 1.9), (7.4, 7.3)),
    ("Rangement", (6.95, 7.85), (0.95, 2.0), (7.4, 8.6))]


def draw_walls(flat):
    flat.wall((-0.15, 0), (8, 0), [(1.75, 2.95), (5.75, 6.95)], OUTER, "MURS")
    flat.wall((-0.15, 10), (8, 10), [(1.05, 2.25), (3.75, 4.95)], OUTER, "MURS")
    flat.wall((0, 0.15), (0, 9.85), [(1.35, 2.55)], OUTER, "MURS")
    flat.wall((8, 0.15), (8, 9.85), [(4.5, 5.4)], 0.2, "MURS")
    flat.wall((0.15, 4.4), (7.9, 4.4), [(2.35, 3.15), (5.35, 6.15)])
    flat.wall((0.15, 5.8), (7.9, 5.8), [(1.35, 2.15), (4.35, 5.15), (5.6, 6.4), (6.85, 7.65)])
    flat.wall((4.5, 0.15), (4.5, 4.35), [(1.0, 1.8)])
    for x in (3.0, 5.4, 6.9):
        flat.wall((x, 5.85), (x, 9.85), [(2.1, 2.9)] if x == 6.9 else ())
    flat.wall((6.95, 7.8), (7.9, 7.8))


def draw_openings(flat):
    flat.door((8, 5.55), rotation=-90, name="PORTE_90", fire="1/2 h")
    flat.door((2.5, 4.4), scale=(1, -1))
    flat.door((5.5, 4.4), scale=(1, -1))
    flat.door((1.5, 5.8))
    flat.door((4.5, 5.8))
    flat.door((6.55, 5.8), scale=(-1, 1))
    flat.door((7.0, 5.8))
    flat.door((4.5, 1.15), rotation=90, fire="1/2 h")
    # Walled up in flat B: kept in the drawing, but not shown.
    flat.door((6.9, 8.75), rotation=-90, **({"invisible": 1} if flat.mirrored else {}))
    for number, (x, y, rotation) in enumerate(
            [(1.6, 0, 0), (5.6, 0, 0), (0.9, 10, 0), (3.6, 10, 0), (0, 1.5, 90)], start=1):
        flat.insert("FENETRE_120", (x, y), "FENETRES",
                    {"REPERE": f"F-{flat.letter}{number:02}", "ALLEGE": "0,90" if y else "0,00"}, rotation=rotation)


def draw_furniture(flat, cupboard):
    flat.insert("ENSEMBLE_REPAS", (2.2, 1.6), "MOBILIER")
    flat.insert("CANAPE", (0.3, 4.2), "MOBILIER", scale=(1, -1))
    flat.insert("EVIER", (6.5, 0.2), "SANITAIRES")
    flat.insert("CHAISE", (5.2, 1.2), "MOBILIER", rotation=35)
    flat.insert("LIT_140", (0.9, 7.8), "MOBILIER")
    # A child's bed: the same block at 7/10 of the width.
    flat.insert("LIT_140", (3.9, 7.8), "MOBILIER", scale=(0.7, 0.95))
    flat.insert("BAIGNOIRE", (5.8, 8.1), "SANITAIRES")
    flat.insert("LAVABO", (6.85, 6.9), "SANITAIRES", rotation=90)
    flat.insert("WC", (7.7, 6.2), "SANITAIRES", rotation=90, scale=(0.9, 0.9))
    flat.insert(cupboard, (0.2, 9.2), "MOBILIER", scale=(0.45, 1))


def draw_rooms(flat):
    for number, (name, corner, size, at) in enumerate(ROOMS, start=1):
        flat.box(*corner, *size, layer="PIECES")
        area = f"{size[0] * size[1]:.2f} m²".replace(".", ",")
        scale = (1, 1) if size[0] > 2 else (0.38, 0.38)
        # Labels aren't mirrored with the flat.
        insert(flat.space, "ETIQUETTE_PIECE", flat.point(*at), "ETIQUETTES",
               {"NUMERO": f"{flat.letter}-{number:02}", "NOM": name, "SURFACE": area}, scale)


def draw_landing(space):
    west, east = STAIR
    whole = Flat(space, "C", False)
    whole.wall((west, 0), (east, 0), [(0.55, 1.45)], OUTER, "MURS")
    whole.wall((west, 10), (east, 10), (), OUTER, "MURS")
    whole.door((west + 0.55, 0), name="PORTE_90", fire="1 h")
    rectangle(space, west + 0.1, 0.15, 1.8, 9.7, layer="PIECES")
    for step in range(10):
        space.add_line((west + 0.1, 6.5 + step * 0.28), (east - 0.1, 6.5 + step * 0.28), dxfattribs={"layer": "CLOISONS"})
    insert(space, "ETIQUETTE_PIECE", (9, 3.2), "ETIQUETTES",
           {"NUMERO": "C-01", "NOM": "Palier", "SURFACE": "17,46 m²"}, (0.8, 0.8))


def draw_garden(space):
    garden = {"layer": "JARDIN"}
    # The terrace has a rounded end, the path is a closed spline, the pond an ellipse.
    space.add_lwpolyline([(0, -0.15), (0, -3), (8, -3, 0, 0, 0.5), (8, -0.15)], close=True, dxfattribs=garden)
    space.add_blockref("POTEAU", (0.4, -2.7), dxfattribs={
        "layer": "JARDIN", "column_count": 5, "row_count": 2, "column_spacing": 1.8, "row_spacing": 2.2})
    space.add_cad_spline_control_frame([(9, -0.5), (10.5, -2), (13, -2.5), (15, -1.2), (17, -3.5)], dxfattribs=garden)
    space.add_ellipse((14, -4.6), major_axis=(1.8, 0.4), ratio=0.55, dxfattribs=garden)
    for x, y, size in ((11, -4.5, 1.2), (17.2, -1, 0.8), (2, -4.8, 1.0), (5.5, -4.6, 0.9)):
        insert(space, "ARBRE", (x, y), "JARDIN", scale=(size, size), rotation=15 * size)
    space.add_polyline2d([(-2, -6.5), (20, -6.5), (20, 12), (-2, 12)], close=True, dxfattribs={"layer": "FOND_PLAN"})
    insert(space, "NORD", (19, 10.6), "FOND_PLAN", rotation=-20)


def draw_notes(doc, space):
    title = space.add_text("Étage courant, logements A et B", dxfattribs={
        "layer": "TEXTES", "height": 0.4, "style": "NOTES"})
    title.set_placement((9, 11.2), align=TextEntityAlignment.MIDDLE_CENTER)
    space.add_mtext("Portes intérieures\\Pà âme pleine ; huisseries\\Pà peindre sur place", dxfattribs={
        "layer": "TEXTES", "char_height": 0.18, "width": 3.2, "insert": (-1.8, -5.2), "style": "NOTES"})
    for x in (2.2, 6.2, 11.8, 15.8):
        space.add_circle((x, 2.5), 0.08, dxfattribs={"layer": "ELECTRICITE"})
    style = doc.dimstyles.add("COTES_1_100")
    style.dxf.dimtxt, style.dxf.dimasz, style.dxf.dimexo, style.dxf.dimexe = 0.2, 0.15, 0.1, 0.1
    style.dxf.dimdec = 2
    for name in ("dimtxt", "dimasz", "dimexo", "dimexe", "dimdec"):
        doc.header["$" + name.upper()] = style.get_dxf_attrib(name)
    for begin, end in ((0, 8), (8, 10), (10, 18)):
        space.add_linear_dim(base=(0, 10.6), p1=(begin, 10.15), p2=(end, 10.15), dimstyle="COTES_1_100",
                             dxfattribs={"layer": "COTES"}).render()


def draw_sheet(doc):
    sheet = doc.layouts.get("Layout1")
    doc.layouts.rename("Layout1", "Planche A3")
    sheet.page_setup(size=(420, 297), margins=(0, 0, 0, 0), units="mm")
    rectangle(sheet, 10, 10, 400, 277, layer="CARTOUCHE")
    sheet.add_viewport(center=(200, 170), size=(360, 210), view_center_point=(9, 2.7), view_height=21,
                       dxfattribs={"layer": "FENETRE_PRESENTATION"})
    insert(sheet, "CARTOUCHE", (410, 10), "CARTOUCHE", {
        "PROJET": "Résidence des Tilleuls", "TITRE": "Étage courant", "ECHELLE": "1:100",
        "DATE": "12/03/2024", "FOLIO": "03"})


def apartment(with_sheet=True):
    """The floor in metres. Its sheet is in millimetres, which programs that show it over model space zoom out to: hence the
    same plan without one."""
    doc = new_drawing("R2010")
    for name, color in LAYERS:
        doc.layers.add(name, color=color)
    doc.layers.get("FOND_PLAN").lock()
    doc.layers.get("ELECTRICITE").freeze()
    blocks.doors(doc)
    blocks.windows(doc)
    cupboard = blocks.furniture(doc)
    blocks.signs(doc)
    if with_sheet:
        blocks.title_block(doc)
    space = doc.modelspace()
    for flat in (Flat(space, "A", False), Flat(space, "B", True)):
        draw_rooms(flat)
        draw_walls(flat)
        draw_openings(flat)
        draw_furniture(flat, cupboard)
    draw_landing(space)
    draw_garden(space)
    draw_notes(doc, space)
    if with_sheet:
        draw_sheet(doc)
    doc.header["$EXTMIN"], doc.header["$EXTMAX"] = (-2, -6.5, 0), (20, 12, 0)
    doc.set_modelspace_vport(height=20, center=(9, 2.7))
    return doc


def double_door():
    """Drawn for itself; its base point is the left jamb. An older version in a code page, with a linetype, a layer and
    a nested block of its own."""
    doc = new_drawing("R2000")
    doc.layers.add("PORTES", color=30)
    doc.layers.add("ETIQUETTES", color=2)
    doc.linetypes.add("AXE_VITRAGE", [0.3, 0.2, -0.05, 0, -0.05], description="Axe du vitrage")
    doc.layers.add("VITRAGES", color=150, linetype="AXE_VITRAGE")
    doc.header["$INSBASE"] = (2, 1, 0)
    pane = doc.blocks.new("OCULUS")
    pane.add_circle((0, 0), 0.12, dxfattribs={"layer": "VITRAGES"})
    space = doc.modelspace()
    for hinge, side in ((2.0, 1), (3.4, -1)):
        space.add_line((hinge, 1), (hinge, 1.7), dxfattribs={"layer": "PORTES"})
        angles = (0, 90) if side > 0 else (90, 180)
        space.add_arc((hinge, 1), 0.7, *angles, dxfattribs={"layer": "PORTES", "color": 8})
        space.add_blockref("OCULUS", (hinge, 1.35), dxfattribs={"layer": "VITRAGES", "xscale": side})
    space.add_line((2, 1), (3.4, 1), dxfattribs={"layer": "VITRAGES"})
    for tag, prompt, default, y, flags in (
            ("CODE", "Code de la porte", "D00", 0.8, 0), ("PASSAGE", "Passage libre en cm", "140", 0.62, 0),
            ("VITRAGE", "Nature du vitrage", "feuilleté", 0.48, blocks.INVISIBLE)):
        blocks.define_attribute(space, tag, prompt, default, (2.7, y), 0.1, flags)
    return doc


def survey_label():
    """A label for a room's survey, drawn round its base point."""
    doc = new_drawing("R2010")
    doc.layers.add("ETIQUETTES", color=2)
    space = doc.modelspace()
    rectangle(space, -0.8, -0.42, 1.6, 0.84)
    for tag, prompt, default, y in (
            ("NUMERO", "Numéro de la pièce", "00", 0.27), ("SURFACE", "Surface", "-", 0.09),
            ("PERIMETRE", "Périmètre", "-", -0.09), ("CALQUE", "Calque du contour", "-", -0.27)):
        blocks.define_attribute(space, tag, prompt, default, (0, y), 0.12)
    return doc


def write(doc, path):
    """Saves a drawing. Group 60 (invisible) isn't written by ezdxf, so it is added behind the layer."""
    hidden = {entity.dxf.handle for insert in doc.modelspace().query("INSERT") if insert.dxf.invisible
              for entity in (insert, *insert.attribs)}
    text = io.StringIO(newline="\n")
    doc.write(text)
    lines = text.getvalue().splitlines()
    result, inside = [], False
    for code, value in zip(lines[::2], lines[1::2]):
        result += [code, value]
        if code.strip() == "5":
            inside = value in hidden
        elif code.strip() == "8" and inside:
            result += [" 60", "1"]
            inside = False
    encoding = "utf-8" if doc.dxfversion >= "AC1021" else "cp1252"
    path.write_text("\r\n".join(result) + "\r\n", encoding=encoding, newline="")


def main():
    if os.environ.get("PYTHONHASHSEED") != "0":  # the order of sets shows in the files
        os.execve(sys.executable, [sys.executable, *sys.argv], {**os.environ, "PYTHONHASHSEED": "0"})
    ezdxf.options.write_fixed_meta_data_for_testing = True  # the same bytes at each run
    folder = pathlib.Path(__file__).resolve().parent.parent / "samples"
    folder.mkdir(exist_ok=True)
    for name, doc in (("apartment", apartment()), ("apartment_plan", apartment(with_sheet=False)),
                      ("porte_double", double_door()),
                      ("releve_piece", survey_label()), ("empty", new_drawing("R2010"))):
        findings = doc.audit().errors
        if findings:
            sys.exit(f"{name}: " + "; ".join(finding.message for finding in findings))
        path = folder / f"{name}.dxf"
        write(doc, path)
        print(f"{path.relative_to(folder.parent)}: {path.stat().st_size} bytes, {len(doc.modelspace())} entities")


if __name__ == "__main__":
    main()
