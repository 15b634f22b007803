#include "desk/shapes/read_extras.h"

#include "desk/geometry/transform.h"
#include "desk/shapes/dim_style.h"
#include "desk/shapes/mtext_layout.h"
#include "desk/shapes/read_curves.h"
#include "desk/shapes/read_tags.h"
#include "desk/shapes/tolerance_frame.h"

#include <algorithm>
#include <string>
#include <utility>

namespace shapes {

namespace {

Path outline(const std::vector<Point3>& corners) {
    Path path;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        path.push_back(LineCurve{corners[i], corners[(i + 1) % corners.size()]});
    }
    return path;
}

/// A filled head whose tip is at `tip`, three times as long as wide, the end of a line that comes from
/// `from`.
Fill arrowHead(const Point3& tip, const Point3& from, double size) {
    const Vector3 back = normalized(from - tip) * size;
    const Vector3 side = Vector3{-back.y, back.x, 0} / 6;
    return {{outline({tip, tip + back + side, tip + back - side})}};
}

/// What the context data of a MULTILEADER says, whose codes change their meaning by the braces that they
/// stand in.
struct MultiLeader {
    struct Leader {
        Point3 end;       ///< of all its lines
        Vector3 landing;  ///< direction of the landing
        double landingLength = 0;
        std::vector<std::vector<Point3>> lines;
    };
    std::vector<Leader> leaders;
    double arrowSize = 0;
    std::string text;
    Point3 textPosition;
    Vector3 textDirection{1, 0, 0};
    Vector3 textNormal = kZAxis;
    MTextFormat format;
    int attachment = 1;
};

class MultiLeaderReader {
  public:
    void take(const dxf::Tag& tag) {
        if (tag.code == 300 && tag.raw == "CONTEXT_DATA{") return open(Where::Context);
        if (tag.code == 302 && tag.raw == "LEADER{") return open(Where::Leader);
        if (tag.code == 304 && tag.raw == "LEADER_LINE{") return open(Where::Line);
        if (tag.code >= 301 && tag.code <= 305 && tag.raw == "}") {
            where_ = where_ == Where::Line     ? Where::Leader
                     : where_ == Where::Leader ? Where::Context
                                               : Where::Outside;
            return;
        }
        if (where_ == Where::Context) takeContext(tag);
        if (where_ == Where::Leader) takeLeader(tag);
        if (where_ == Where::Line) takeLine(tag);
    }
    MultiLeader result;

  private:
    enum class Where { Outside, Context, Leader, Line };

    void open(Where where) {
        where_ = where;
        if (where == Where::Leader) result.leaders.emplace_back();
        if (where == Where::Line && !result.leaders.empty()) result.leaders.back().lines.emplace_back();
    }
    void takeContext(const dxf::Tag& tag) {
        if (takePoint(tag, 12, result.textPosition) || takePoint(tag, 13, result.textDirection)) return;
        if (tag.code == 41) result.format.height = tag.numberOr(1);
        if (tag.code == 43) result.format.width = tag.numberOr(0);
        if (tag.code == 45) result.format.spacing = tag.numberOr(1);
        if (tag.code == 140) result.arrowSize = tag.numberOr(0);
        if (tag.code == 171) result.attachment = static_cast<int>(tag.integerOr(1));
        if (tag.code == 304) result.text = tag.text();
    }
    void takeLeader(const dxf::Tag& tag) {
        MultiLeader::Leader& leader = result.leaders.back();
        if (takePoint(tag, 10, leader.end) || takePoint(tag, 11, leader.landing)) return;
        if (tag.code == 40) leader.landingLength = tag.numberOr(0);
    }
    void takeLine(const dxf::Tag& tag) {
        if (result.leaders.empty() || result.leaders.back().lines.empty()) return;
        std::vector<Point3>& points = result.leaders.back().lines.back();
        if (tag.code == 10) points.emplace_back();
        if (!points.empty()) takePoint(tag, 10, points.back());
    }

    Where where_ = Where::Outside;
};

MultiLeader readContext(dxf::TagReader tags) {
    MultiLeaderReader reader;
    forEachTag(tags, [&](const dxf::Tag& tag) { reader.take(tag); });
    return std::move(reader.result);
}

}  // namespace

std::vector<Stroke> readMLine(dxf::TagReader tags) {
    struct Vertex {
        Point3 point;
        Vector3 miter;
        std::vector<double> offsets;  ///< first parameter of each element
    };
    std::vector<Vertex> vertices;
    bool closed = false;
    bool firstParameter = false;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (tag.code == 71) closed = (tag.integerOr(0) & 2) != 0;
        if (tag.code == 11) vertices.emplace_back();
        if (vertices.empty()) return;
        Vertex& vertex = vertices.back();
        if (takePoint(tag, 11, vertex.point) || takePoint(tag, 13, vertex.miter)) return;
        if (tag.code == 74) firstParameter = true;
        if (tag.code == 41 && firstParameter) {
            vertex.offsets.push_back(tag.numberOr(0));
            firstParameter = false;
        }
    });
    std::vector<Stroke> result;
    if (vertices.size() < 2) return result;
    const std::size_t stretches = vertices.size() - (closed ? 0 : 1);
    for (std::size_t element = 0; element < vertices.front().offsets.size(); ++element) {
        const auto at = [&](const Vertex& vertex) {
            return element < vertex.offsets.size() ? vertex.point + vertex.miter * vertex.offsets[element]
                                                   : vertex.point;
        };
        for (std::size_t i = 0; i < stretches; ++i) {
            result.push_back({LineCurve{at(vertices[i]), at(vertices[(i + 1) % vertices.size()])}});
        }
    }
    return result;
}

Path readImageFrame(dxf::TagReader tags) {
    Point3 corner;
    Vector3 u;
    Vector3 v;
    double width = 1;
    double height = 1;
    std::vector<Point3> clip;
    bool clips = false;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (takePoint(tag, 10, corner) || takePoint(tag, 11, u) || takePoint(tag, 12, v)) return;
        if (tag.code == 13) width = tag.numberOr(1);
        if (tag.code == 23) height = tag.numberOr(1);
        if (tag.code == 280) clips = tag.integerOr(0) != 0;
        if (tag.code == 14) clip.push_back({tag.numberOr(0), 0, 0});
        if (tag.code == 24 && !clip.empty()) clip.back().y = tag.numberOr(0);
    });
    if (!clips || clip.size() < 2) clip = {{-0.5, -0.5, 0}, {width - 0.5, height - 0.5, 0}};
    if (clip.size() == 2) {
        const auto [a, b] = std::pair(clip[0], clip[1]);
        clip = {a, {b.x, a.y, 0}, b, {a.x, b.y, 0}};
    }
    // Pixels count from the middle of the upper left one, Y downwards.
    for (Point3& point : clip) point = corner + u * (point.x + 0.5) + v * (height - point.y - 0.5);
    return outline(clip);
}

Path readOleFrame(dxf::TagReader tags) {
    Point3 a;
    Point3 b;
    forEachTag(tags, [&](const dxf::Tag& tag) { takePoint(tag, 10, a) || takePoint(tag, 11, b); });
    return outline({a, {b.x, a.y, a.z}, b, {a.x, b.y, a.z}});
}

Path readMesh(dxf::TagReader tags) {
    std::vector<Point3> vertices;
    std::vector<std::int64_t> faces;  // of each its count of vertices, then these
    bool inFaces = false;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (tag.code == 10) vertices.emplace_back();
        if (!vertices.empty() && takePoint(tag, 10, vertices.back())) return;
        if (tag.code == 93 || tag.code == 94) inFaces = tag.code == 93;
        if (tag.code == 90 && inFaces) faces.push_back(tag.integerOr(0));
    });
    std::vector<std::pair<std::size_t, std::size_t>> edges;
    for (std::size_t at = 0; at < faces.size();) {
        const auto count = static_cast<std::size_t>(std::max<std::int64_t>(faces[at++], 0));
        if (count > faces.size() - at) break;
        for (std::size_t i = 0; i < count; ++i) {
            const auto from = static_cast<std::size_t>(faces[at + i]);
            const auto to = static_cast<std::size_t>(faces[at + (i + 1) % count]);
            if (from < vertices.size() && to < vertices.size()) edges.push_back(std::minmax(from, to));
        }
        at += count;
    }
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    Path path;
    for (const auto& [from, to] : edges) path.push_back(LineCurve{vertices[from], vertices[to]});
    return path;
}

Path readViewportFrame(dxf::TagReader tags) {
    constexpr std::int64_t kSheet = 1;
    Point3 center;
    Vector3 half;
    std::int64_t number = 0;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (takePoint(tag, 10, center)) return;
        if (tag.code == 40) half.x = tag.numberOr(0) / 2;
        if (tag.code == 41) half.y = tag.numberOr(0) / 2;
        if (tag.code == 69) number = tag.integerOr(0);
    });
    if (number == kSheet || !(half.x > 0 && half.y > 0)) return {};
    const Vector3 across{half.x, -half.y, 0};
    return outline({center - half, center + across, center + half, center - across});
}

Geometry readMultiLeader(dxf::TagReader tags) {
    Geometry geometry;
    const MultiLeader leader = readContext(tags);
    for (const MultiLeader::Leader& part : leader.leaders) {
        for (const std::vector<Point3>& line : part.lines) {
            for (std::size_t i = 0; i < line.size(); ++i) {
                const Point3& next = i + 1 < line.size() ? line[i + 1] : part.end;
                if (i == 0 && leader.arrowSize > 0) {
                    geometry.fills.push_back(arrowHead(line[0], next, leader.arrowSize));
                }
                geometry.strokes.push_back({LineCurve{line[i], next}});
            }
        }
        const Point3 end = part.end + part.landing * part.landingLength;
        if (part.landingLength > 0) geometry.strokes.push_back({LineCurve{part.end, end}});
    }
    return geometry;
}

Geometry readLeaderArrow(const Drawing& drawing, EntityId id) {
    Geometry geometry;
    bool hasArrow = true;
    bool isSpline = false;
    forEachTag(drawing.tags(id), [&](const dxf::Tag& tag) {
        if (tag.code == 71) hasArrow = tag.integerOr(1) != 0;
        if (tag.code == 72) isSpline = tag.integerOr(0) != 0;
    });
    const Path path = readLeader(drawing.tags(id));
    if (!hasArrow || isSpline || path.empty()) return geometry;
    const double size = readDimStyle(drawing, id).arrow;
    const Point3 tip = startPoint(path.front());
    const Point3 from = endPoint(path.front());
    // The host leaves a head off that would hide half of the first stretch.
    if (size > 0 && distance(tip, from) >= 2 * size) geometry.fills.push_back(arrowHead(tip, from, size));
    return geometry;
}

std::vector<TextPiece> readExtraTexts(const Drawing& drawing, const TextStyles& styles, EntityId id) {
    const std::string_view type = drawing.type(id);
    if (type == "TOLERANCE") return readTolerance(drawing, id).texts;
    if (type != "MULTILEADER") return {};
    MultiLeader leader = readContext(drawing.tags(id));
    if (leader.text.empty() || !(leader.format.height > 0)) return {};
    leader.format.font = styles.find("").font;
    MTextLayout layout = layOutMText(leader.text, leader.format);
    Transform frame;
    frame.xAxis = normalized(leader.textDirection);
    frame.yAxis = {-frame.xAxis.y, frame.xAxis.x, 0};
    frame.origin = leader.textPosition;
    // 1 left, 2 centre, 3 right of the position, which lies at the text's upper edge
    const double shift = leader.attachment == 3   ? -layout.width
                         : leader.attachment == 2 ? -layout.width / 2
                                                  : 0;
    frame = frame * Transform::translation({shift, 0, 0});
    for (TextPiece& piece : layout.pieces) piece.frame = frame * piece.frame;
    return std::move(layout.pieces);
}

}  // namespace shapes
