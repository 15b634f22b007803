#include "desk/shapes/geometry.h"

#include "desk/drawing/drawing.h"
#include "desk/shapes/read_curves.h"
#include "desk/shapes/read_extras.h"
#include "desk/shapes/read_hatch.h"
#include "desk/shapes/read_polyline.h"
#include "desk/shapes/read_tags.h"
#include "desk/shapes/read_text.h"
#include "desk/shapes/tolerance_frame.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace shapes {

namespace {

Path quadrangle(const Point3& a, const Point3& b, const Point3& c, const Point3& d) {
    return {LineCurve{a, b}, LineCurve{b, c}, LineCurve{c, d}, LineCurve{d, a}};
}

void addPolyline(Polyline polyline, Geometry& geometry) {
    for (std::size_t i = 0; i < polyline.path.size(); ++i) {
        const auto [start, end] = polyline.widths.empty() ? std::pair(0.0, 0.0) : polyline.widths[i];
        geometry.strokes.push_back({std::move(polyline.path[i]), start, end});
    }
    // A single vertex draws a dot.
    if (polyline.path.empty() && !polyline.vertices.empty()) {
        geometry.points.push_back(polyline.vertices.front().point);
    }
}

void addOutline(Path path, Geometry& geometry) {
    for (Curve& curve : path) geometry.strokes.push_back({std::move(curve)});
}

void addText(const TextBox& box, Geometry& geometry) {
    if (!box) return;
    const auto& [a, b, c, d] = *box;
    geometry.texts.push_back({{quadrangle(a, b, c, d)}});
}

void addText(const TextPiece& piece, Geometry& geometry) {
    const auto at = [&](double x, double y) { return piece.frame.apply({x, y, 0}); };
    const double width = piece.width;
    geometry.texts.push_back({{quadrangle(at(0, -kDescent), at(width, -kDescent), at(width, 1), at(0, 1))}});
}

/// One that stores a single line of text.
bool isLineText(std::string_view type) { return type == "TEXT" || type == "ATTRIB" || type == "ATTDEF"; }

void addFace(const Corners& face, Geometry& geometry) {
    for (int i = 0; i < 4; ++i) {
        if ((face.hiddenEdges >> i & 1) != 0) continue;
        geometry.strokes.push_back({LineCurve{face.corner[i], face.corner[(i + 1) % 4]}});
    }
}

using Read = void (*)(const dxf::TagReader&, Geometry&);

void readSolidFill(const dxf::TagReader& tags, Geometry& geometry) {
    const Corners solid = readSolid(tags);
    const auto& [a, b, c, d] = solid.corner;
    geometry.fills.push_back({{quadrangle(a, b, c, d)}});
}

void readEndlessLine(const dxf::TagReader& tags, bool bothWays, Geometry& geometry) {
    const LineCurve line = readLine(tags);
    if (line.end != Vector3{}) geometry.endless.push_back({line.start, line.end, bothWays});
}

/// The types that draw something by their own groups alone, each with what reads it.
const std::unordered_map<std::string_view, Read>& readers() {
    using Tags = const dxf::TagReader&;
    static const std::unordered_map<std::string_view, Read> kReaders{
        {"LINE", [](Tags tags, Geometry& g) { g.strokes.push_back({readLine(tags)}); }},
        {"CIRCLE", [](Tags tags, Geometry& g) { g.strokes.push_back({readArc(tags, true)}); }},
        {"ARC", [](Tags tags, Geometry& g) { g.strokes.push_back({readArc(tags, false)}); }},
        {"ELLIPSE", [](Tags tags, Geometry& g) { g.strokes.push_back({readEllipse(tags)}); }},
        {"SPLINE",
         [](Tags tags, Geometry& g) {
             if (auto spline = readSpline(tags)) g.strokes.push_back({std::move(*spline)});
         }},
        {"LWPOLYLINE", [](Tags tags, Geometry& g) { addPolyline(readLwPolyline(tags), g); }},
        {"LEADER",
         [](Tags tags, Geometry& g) {
             for (Curve& curve : readLeader(tags)) g.strokes.push_back({std::move(curve)});
         }},
        {"POINT", [](Tags tags, Geometry& g) { g.points.push_back(readPoint(tags)); }},
        {"SOLID", readSolidFill},
        {"TRACE", readSolidFill},
        {"3DFACE", [](Tags tags, Geometry& g) { addFace(readFace(tags), g); }},
        {"RAY", [](Tags tags, Geometry& g) { readEndlessLine(tags, false, g); }},
        {"XLINE", [](Tags tags, Geometry& g) { readEndlessLine(tags, true, g); }},
        {"MESH", [](Tags tags, Geometry& g) { addOutline(readMesh(tags), g); }},
        {"VIEWPORT", [](Tags tags, Geometry& g) { addOutline(readViewportFrame(tags), g); }},
        {"MLINE", [](Tags tags, Geometry& g) { g.strokes = readMLine(tags); }},
        {"IMAGE", [](Tags tags, Geometry& g) { addOutline(readImageFrame(tags), g); }},
        {"OLE2FRAME", [](Tags tags, Geometry& g) { addOutline(readOleFrame(tags), g); }},
        {"WIPEOUT", [](Tags tags, Geometry& g) { g.fills.push_back({{readImageFrame(tags)}}); }},
        {"MULTILEADER", [](Tags tags, Geometry& g) { g = readMultiLeader(tags); }},
        {"HATCH", [](Tags tags, Geometry& g) { g.fills.push_back({readHatch(tags).worldLoops()}); }},
    };
    return kReaders;
}

/// DIMENSION and ACAD_TABLE name the anonymous block that shows them (group 2). That of a dimension has
/// its place already, or is moved by group 12; that of a table stands at 10, turned to the direction 11.
Placed readShownBlock(const Drawing& drawing, EntityId id, bool isTable) {
    Placed placed;
    Vector3 direction;
    bool named = false;
    forEachTag(drawing.tags(id), [&](const dxf::Tag& tag) {
        if (tag.code == 2 && !named) {
            named = true;
            placed.block = drawing.blocks().find(tag.text());
        }
        if (takePoint(tag, isTable ? 10 : 12, placed.placement.insertion)) return;
        if (isTable) takePoint(tag, 11, direction);
    });
    placed.placement.rotation = std::atan2(direction.y, direction.x);
    return placed;
}

}  // namespace

Box Geometry::bounds() const {
    Box box;
    for (const Stroke& stroke : strokes) {
        Box own;
        addBounds(stroke.curve, own);
        const double half = stroke.halfWidth();
        const Vector3 band{half, half, half};
        box.add(own.low - band);
        box.add(own.high + band);
    }
    for (const Fill& fill : fills) {
        for (const Path& loop : fill.loops) {
            for (const Curve& curve : loop) addBounds(curve, box);
        }
    }
    for (const Fill& text : texts) {
        for (const Curve& edge : text.loops.front()) addBounds(edge, box);
    }
    for (const EndlessLine& line : endless) box.add(line.base);
    for (const Point3& point : points) box.add(point);
    return box;
}

Geometry readGeometry(const Drawing& drawing, EntityId id, const TextStyles& styles) {
    Geometry geometry;
    const std::string_view type = drawing.type(id);
    if (type == "POLYLINE") {
        addPolyline(readPolyline(drawing.tags(id), vertexTags(drawing, id)), geometry);
    } else if (type == "MTEXT") {
        addText(readMTextBox(drawing.tags(id), styles), geometry);
    } else if (type == "TOLERANCE") {
        ToleranceFrame frame = readTolerance(drawing, id);
        geometry.strokes = std::move(frame.strokes);
        for (const TextPiece& piece : frame.texts) addText(piece, geometry);
    } else if (isLineText(type)) {
        addText(readTextBox(drawing.tags(id), styles), geometry);
    } else if (const auto found = readers().find(type); found != readers().end()) {
        found->second(drawing.tags(id), geometry);
        if (type == "LEADER") geometry.fills = readLeaderArrow(drawing, id).fills;
        for (const TextPiece& piece : readExtraTexts(drawing, styles, id)) addText(piece, geometry);
    }
    return geometry;
}

Box readTextBounds(const Drawing& drawing, EntityId id, const TextStyles& styles) {
    Box bounds;
    if (const TextBox box = readTextBox(drawing.tags(id), styles)) {
        for (const Point3& corner : *box) bounds.add(corner);
    }
    return bounds;
}

std::optional<Point3> readTextInsertion(const Drawing& drawing, EntityId id) {
    const std::string_view type = drawing.type(id);
    if (type != "MTEXT" && !isLineText(type)) return std::nullopt;
    return readInsertion(drawing.tags(id), type == "MTEXT");
}

Geometry readConstantText(const Drawing& drawing, EntityId id, const TextStyles& styles) {
    Geometry geometry;
    addText(readTextBox(drawing.tags(id), styles, false), geometry);
    return geometry;
}

std::vector<dxf::TagReader> vertexTags(const Drawing& drawing, EntityId id) {
    std::vector<dxf::TagReader> result;
    const PartRange parts = drawing.parts(id);
    result.reserve(parts.count);
    for (std::uint32_t i = 0; i < parts.count; ++i) {
        const EntityId part = parts.first + i;
        if (!drawing.isErased(part)) result.push_back(drawing.tags(part));
    }
    return result;
}

std::optional<Placed> readPlaced(const Drawing& drawing, EntityId id) {
    const std::string_view type = drawing.type(id);
    Placed placed;
    if (type == "INSERT") {
        placed.block = drawing.referencedBlock(id);
        placed.placement = drawing.placement(id);
    } else if (type.ends_with("DIMENSION") || type == "ACAD_TABLE") {
        placed = readShownBlock(drawing, id, type == "ACAD_TABLE");
    }
    if (placed.block == kNoBlock) return std::nullopt;
    return placed;
}

}  // namespace shapes
