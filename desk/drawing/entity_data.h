#pragma once

#include "desk/drawing/ids.h"
#include "desk/drawing/placement.h"

#include <string>

namespace drawing {

/// Colour numbers of group 62: 0 is ByBlock, 1 to 255 the palette, 256 ByLayer (also where the group is
/// absent).
inline constexpr int kColorByBlock = 0;
inline constexpr int kColorByLayer = 256;

/// What every entity has.
struct CommonData {
    std::string layer;           ///< group 8, as the layer table spells it
    int color = kColorByLayer;   ///< group 62
    bool visible = true;         ///< group 60 is 0 or absent
    Vector3 extrusion = kZAxis;  ///< groups 210, 220, 230
};

/// A block reference (INSERT).
struct InsertData {
    CommonData common;
    std::string name;      ///< group 2, as the block's definition spells it
    BlockId block;         ///< its definition; kNoBlock where the drawing has none
    Placement placement;   ///< object coordinates, radians
    Point3 insertion;      ///< the insertion point in world coordinates
    bool isArray = false;  ///< more than one column or row
};

/// Text of an attribute reference (ATTRIB) or an attribute definition (ATTDEF). Points are object
/// coordinates.
struct AttribData {
    CommonData common;
    std::string tag;                 ///< group 2
    std::string text;                ///< group 1; of a multi-line attribute its whole text
    std::string prompt;              ///< group 3 of a definition
    std::string style = "STANDARD";  ///< group 7
    Point3 position;                 ///< groups 10, 20, 30
    Point3 alignment;                ///< groups 11, 21, 31
    bool hasAlignment = false;       ///< whether the file gives group 11
    double height = 0;               ///< group 40
    double widthFactor = 1;          ///< group 41
    double rotation = 0;             ///< group 50, radians here
    double oblique = 0;              ///< group 51, radians here
    double thickness = 0;            ///< group 39
    int flags = 0;                   ///< group 70: 1 invisible, 2 constant, 4 verify, 8 preset
    int generation = 0;              ///< group 71 of the text: 2 backward, 4 upside down
    int horizontal = 0;              ///< group 72
    int vertical = 0;                ///< group 74
    bool multiLine = false;          ///< the text is an embedded multi-line text

    bool isConstant() const { return (flags & 2) != 0; }
};

}  // namespace drawing
