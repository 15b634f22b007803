#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/shapes/names.h"
#include "desk/shapes/text_style.h"

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

/// A RAY, or an XLINE that runs both ways.
struct EndlessLine {
    Point3 base;
    Vector3 direction;
    bool bothWays = false;
};

/// What one entity draws by itself, in the coordinates of the block or space that it stands in. References
/// draw nothing by themselves, see `readPlaced`.
struct Geometry {
    std::vector<Stroke> strokes;
    std::vector<EndlessLine> endless;
    std::vector<Fill> fills;
    std::vector<Fill> texts;  ///< the boxes about texts, which count as filled
    std::vector<Point3> points;
    /// Where texts and references stand, for those who snap to it; only `BlockShapes` and
    /// `forEachGeometryNear` give them. Nothing is drawn there.
    std::vector<Point3> insertions;

    bool empty() const {
        return strokes.empty() && endless.empty() && fills.empty() && texts.empty() && points.empty();
    }
    /// Without the endless lines, of which their base counts.
    Box bounds() const;
};

/// LINE, LWPOLYLINE, POLYLINE, CIRCLE, ARC, ELLIPSE, SPLINE, RAY, XLINE, POINT, SOLID, TRACE, 3DFACE, MESH,
/// TEXT, MTEXT, ATTRIB, ATTDEF, HATCH, LEADER, MULTILEADER, MLINE, TOLERANCE, IMAGE, WIPEOUT, OLE2FRAME,
/// VIEWPORT. Of images and viewports their frame is drawn. Empty for other types.
Geometry readGeometry(const Drawing& drawing, EntityId id, const TextStyles& styles = {});

/// The box of what `readGeometry` gives for a TEXT, an ATTRIB or an ATTDEF, found at less cost.
Box readTextBounds(const Drawing& drawing, EntityId id, const TextStyles& styles);

/// A constant attribute definition as the references of its block show it.
Geometry readConstantText(const Drawing& drawing, EntityId id, const TextStyles& styles);

/// Where a text of any kind stands, as its alignment has it; nothing for other types.
std::optional<Point3> readTextInsertion(const Drawing& drawing, EntityId id);

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
