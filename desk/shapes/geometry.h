#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/shapes/names.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace shapes {

/// A drawn curve; a wide polyline draws a band about it.
struct Stroke {
    Curve curve;
    double startWidth = 0;
    double endWidth = 0;

    double halfWidth() const { return std::max(startWidth, endWidth) / 2; }
};

/// What one entity draws by itself, in the coordinates of the block or space that it stands in. References
/// draw nothing by themselves, see `readPlaced`.
struct Geometry {
    std::vector<Stroke> strokes;
    std::vector<Fill> fills;
    std::vector<Point3> points;

    bool empty() const { return strokes.empty() && fills.empty() && points.empty(); }
    Box bounds() const;
};

/// LINE, LWPOLYLINE, POLYLINE, CIRCLE, ARC, ELLIPSE, SPLINE, POINT, SOLID, TRACE, 3DFACE, TEXT, MTEXT,
/// ATTRIB, ATTDEF, HATCH, LEADER, MULTILEADER, MLINE, IMAGE, WIPEOUT, OLE2FRAME. Of texts the box about them
/// counts as filled, of images their frame is drawn. Empty for other types.
Geometry readGeometry(const Drawing& drawing, EntityId id);

/// The box of what `readGeometry` gives for a TEXT, an ATTRIB or an ATTDEF, found at less cost.
Box readTextBounds(const Drawing& drawing, EntityId id);

/// A constant attribute definition as the references of its block show it.
Geometry readConstantText(const Drawing& drawing, EntityId id);

/// The groups of the VERTEX entities of a POLYLINE, its SEQEND among them.
std::vector<dxf::TagReader> vertexTags(const Drawing& drawing, EntityId id);

/// A block that an entity draws, and where.
struct Placed {
    BlockId block = kNoBlock;
    Placement placement;
};
/// The block of an INSERT, a dimension of any kind or a table (ACAD_TABLE); nothing for other types or where
/// the drawing lacks the block.
std::optional<Placed> readPlaced(const Drawing& drawing, EntityId id);

}  // namespace shapes
