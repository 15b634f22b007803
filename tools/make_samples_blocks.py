"""Block definitions of the sample drawings. Lengths in metres."""

import math

from ezdxf.enums import TextEntityAlignment

CENTER = TextEntityAlignment.MIDDLE_CENTER
INVISIBLE = 1
CONSTANT = 2


def rectangle(space, x, y, width, height, **attribs):
    """A closed polyline about a corner and a size."""
    corners = [(x, y), (x + width, y), (x + width, y + height), (x, y + height)]
    return space.add_lwpolyline(corners, close=True, dxfattribs=attribs)


def define_attribute(block, tag, prompt, default, at, height=0.12, flags=0, layer="ETIQUETTES"):
    attdef = block.add_attdef(tag, at, default, dxfattribs={
        "prompt": prompt, "height": height, "flags": flags, "layer": layer, "style": "NOTES"})
    attdef.set_placement(at, align=CENTER)
    return attdef


def single_door(doc, name, width):
    """A leaf that turns about the base point, its jambs, and the swing."""
    block = doc.blocks.new(name, base_point=(0, 0))
    block.add_line((0, 0), (0, width))
    block.add_line((0.04, 0), (0.04, width))
    block.add_line((0, width), (0.04, width))
    block.add_arc((0, 0), width, 0, 90, dxfattribs={"color": 8})
    rectangle(block, -0.05, -0.05, 0.05, 0.1)
    rectangle(block, width, -0.05, 0.05, 0.1)
    return block


def doors(doc):
    door = single_door(doc, "PORTE_80", 0.8)
    define_attribute(door, "REPERE", "Repère de la porte", "P00", (0.4, -0.2))
    define_attribute(door, "LARGEUR", "Largeur de passage", "80", (0.4, -0.38), 0.09)
    define_attribute(door, "FEU", "Degré coupe-feu", "", (0.4, -0.52), 0.09, INVISIBLE)

    door = single_door(doc, "PORTE_90", 0.9)
    rectangle(door, 0, 0.2, 0.04, 0.3, color=1)
    define_attribute(door, "CODE", "Code de la porte", "?", (0.45, -0.2))
    define_attribute(door, "PASSAGE", "Passage libre en cm", "90", (0.45, -0.38), 0.09)
    define_attribute(door, "COUPE_FEU", "Coupe-feu (néant, 1/2 h, 1 h)", "néant", (0.45, -0.52), 0.09, INVISIBLE)
    define_attribute(door, "HUISSERIE", "Matière de l'huisserie", "bois", (0.45, -0.66), 0.09, INVISIBLE)


def windows(doc):
    block = doc.blocks.new("FENETRE_120", base_point=(0, 0))
    rectangle(block, 0, -0.15, 1.2, 0.3)
    for y in (-0.02, 0.02):
        block.add_line((0, y), (1.2, y))
    block.add_line((0.6, -0.15), (0.6, 0.15))
    define_attribute(block, "REPERE", "Repère de la fenêtre", "F00", (0.6, 0.3))
    define_attribute(block, "ALLEGE", "Hauteur d'allège", "0,90", (0.6, -0.3), 0.09)


def furniture(doc):
    chair = doc.blocks.new("CHAISE")
    rectangle(chair, -0.22, -0.22, 0.44, 0.44)
    chair.add_lwpolyline([(-0.22, 0.18, 0, 0, -0.25), (0.22, 0.18)], dxfattribs={"const_width": 0.03})

    table = doc.blocks.new("TABLE_160", base_point=(0.8, 0.45))
    rectangle(table, 0, 0, 1.6, 0.9)

    # A block of blocks: the table with a chair at each place.
    dining = doc.blocks.new("ENSEMBLE_REPAS")
    dining.add_blockref("TABLE_160", (0, 0))
    for x in (-0.4, 0.4):
        dining.add_blockref("CHAISE", (x, 0.65))
        dining.add_blockref("CHAISE", (x, -0.65), dxfattribs={"rotation": 180})

    bed = doc.blocks.new("LIT_140")
    rectangle(bed, 0, 0, 1.4, 2.0)
    for x in (0.1, 0.75):
        rectangle(bed, x, 1.55, 0.55, 0.35)
    bed.add_line((0, 1.4), (1.4, 1.4))

    sofa = doc.blocks.new("CANAPE")
    rectangle(sofa, 0, 0, 2.0, 0.9)
    rectangle(sofa, 0.15, 0.2, 1.7, 0.7)

    # Content on layer 0 takes the layer of the reference.
    sink = doc.blocks.new("EVIER")
    rectangle(sink, 0, 0, 1.2, 0.6)
    rectangle(sink, 0.08, 0.1, 0.5, 0.42)
    sink.add_circle((0.33, 0.31), 0.04)

    basin = doc.blocks.new("LAVABO")
    basin.add_ellipse((0, 0.25), major_axis=(0.28, 0), ratio=0.7)
    basin.add_circle((0, 0.25), 0.03)
    rectangle(basin, -0.35, 0, 0.7, 0.5)

    bath = doc.blocks.new("BAIGNOIRE")
    rectangle(bath, 0, 0, 0.75, 1.7)
    bath.add_lwpolyline([(0.1, 0.1), (0.65, 0.1), (0.65, 1.32, 0, 0, 1), (0.1, 1.32)], close=True)

    toilet = doc.blocks.new("WC")
    rectangle(toilet, -0.2, 0, 0.4, 0.18)
    toilet.add_ellipse((0, 0.4), major_axis=(0, 0.24), ratio=0.75)

    cupboard = doc.blocks.new_anonymous_block(type_char="U")
    rectangle(cupboard, 0, 0, 1.5, 0.6)
    for start in ((0, 0), (0.75, 0)):
        cupboard.add_line(start, (start[0] + 0.75, 0.6), dxfattribs={"color": 8})
    return cupboard.name


def signs(doc):
    label = doc.blocks.new("ETIQUETTE_PIECE")
    label.add_lwpolyline([(-0.9, -0.32), (0.9, -0.32, 0, 0, 1), (0.9, 0.32), (-0.9, 0.32, 0, 0, 1)], close=True)
    define_attribute(label, "NUMERO", "Numéro de la pièce", "00", (0, 0.24), 0.1)
    define_attribute(label, "NOM", "Nom de la pièce", "Pièce", (0, 0.04), 0.16)
    define_attribute(label, "SURFACE", "Surface en m²", "0,00 m²", (0, -0.18), 0.12)

    # Only a constant attribute: the references carry no attribute of their own.
    post = doc.blocks.new("POTEAU")
    rectangle(post, -0.1, -0.1, 0.2, 0.2)
    hatch = post.add_hatch(color=8)
    hatch.paths.add_polyline_path([(-0.1, -0.1), (0.1, -0.1), (0.1, 0.1), (-0.1, 0.1)], is_closed=True)
    define_attribute(post, "MATIERE", "", "chêne", (0, -0.2), 0.07, CONSTANT)

    north = doc.blocks.new("NORD")
    north.add_circle((0, 0), 0.6)
    north.add_solid([(-0.2, -0.4), (0, -0.2), (0, 0.6), (0, 0.6)])
    north.add_line((0, 0.6), (0.2, -0.4))
    north.add_line((0.2, -0.4), (0, -0.2))
    north.add_text("N", dxfattribs={"height": 0.25, "style": "NOTES"}).set_placement((0, 0.85), align=CENTER)

    tree = doc.blocks.new("ARBRE")
    tree.add_circle((0, 0), 1)
    for step in range(8):
        angle = step * math.pi / 4
        tree.add_line((0, 0), (0.8 * math.cos(angle), 0.8 * math.sin(angle)))


def title_block(doc):
    """For the sheet, in millimetres; its base point is the lower right corner of the frame."""
    block = doc.blocks.new("CARTOUCHE", base_point=(180, 0))
    rectangle(block, 0, 0, 180, 40)
    for y in (14, 27):
        block.add_line((0, y), (180, y))
    for x in (60, 120):
        block.add_line((x, 0), (x, 14))
    fields = [("PROJET", "Projet", "Projet", (90, 33.5), 5), ("TITRE", "Titre de la planche", "Titre", (90, 20.5), 5),
              ("ECHELLE", "Échelle", "1:100", (30, 7), 4), ("DATE", "Date", "", (90, 7), 4),
              ("FOLIO", "Numéro de la planche", "01", (150, 7), 4)]
    for tag, prompt, default, at, height in fields:
        define_attribute(block, tag, prompt, default, at, height, layer="CARTOUCHE")
