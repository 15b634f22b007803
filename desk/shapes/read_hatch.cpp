#include "desk/shapes/read_hatch.h"

#include "desk/geometry/even_odd.h"
#include "desk/geometry/fill.h"
#include "desk/geometry/measure.h"
#include "desk/geometry/spline.h"
#include "desk/shapes/read_curves.h"
#include "desk/shapes/read_tags.h"

#include <algorithm>
#include <utility>

namespace shapes {

namespace {

/// The groups of the boundary data, read front to back; a hatch gives most codes a meaning by their place.
class Cursor {
  public:
    struct Group {
        int code;
        double value;
    };
    explicit Cursor(std::vector<Group> groups) : groups_(std::move(groups)) {}

    bool atEnd() const { return at_ == groups_.size(); }
    int code(std::size_t ahead = 0) const {
        return at_ + ahead < groups_.size() ? groups_[at_ + ahead].code : -1;
    }
    void pass() { ++at_; }
    /// The value of the next group if it has that code, which is then passed; `fallback` if not.
    double take(int code, double fallback = 0) {
        return this->code() == code ? groups_[at_++].value : fallback;
    }
    int takeInteger(int code, int fallback = 0) {
        const double value = take(code, fallback);
        return std::abs(value) < 1e9 ? static_cast<int>(value) : fallback;
    }
    Point3 takePoint(int code) {
        Point3 point;
        point.x = take(code);
        point.y = take(code + 10);
        return point;
    }

  private:
    std::vector<Group> groups_;
    std::size_t at_ = 0;
};

Path readPolylineLoop(Cursor& cursor) {
    cursor.takeInteger(72);  // says whether bulges follow; they tell it themselves
    const bool closed = cursor.takeInteger(73, 1) != 0;
    cursor.takeInteger(93);
    std::vector<std::pair<Point3, double>> vertices;
    while (cursor.code() == 10) {
        const Point3 point = cursor.takePoint(10);
        vertices.emplace_back(point, cursor.take(42));
    }
    Path path;
    for (std::size_t i = 0; i + 1 < vertices.size() + (closed ? 1 : 0); ++i) {
        const auto& [from, bulge] = vertices[i];
        path.push_back(bulgeCurve(from, vertices[(i + 1) % vertices.size()].first, bulge));
    }
    return path;
}

/// Angles of a clockwise edge count clockwise too.
void setSweep(ArcCurve& arc, double start, double end, bool counterClockwise) {
    arc.start = start;
    arc.end = turnBehind(start, end);
    if (counterClockwise) return;
    arc.start = -arc.start;
    arc.end = -arc.end;
}

ArcCurve readArcEdge(Cursor& cursor) {
    ArcCurve arc;
    arc.center = cursor.takePoint(10);
    const double radius = cursor.take(40);
    arc.cosine = {radius, 0, 0};
    arc.sine = {0, radius, 0};
    const double start = radiansOf(cursor.take(50));
    const double end = radiansOf(cursor.take(51, 360));
    setSweep(arc, start, end, cursor.takeInteger(73, 1) != 0);
    return arc;
}

/// The parameter of an ellipse at an angle as seen from its centre, in the same turn.
double parameterAt(double angle, double ratio) {
    const double turns = std::floor(angle / (2 * kPi) + 0.5) * 2 * kPi;
    return turns + std::atan2(std::sin(angle) / ratio, std::cos(angle));
}

ArcCurve readEllipseEdge(Cursor& cursor) {
    ArcCurve arc;
    arc.center = cursor.takePoint(10);
    arc.cosine = cursor.takePoint(11);
    const double ratio = cursor.take(40, 1);
    arc.sine = Vector3{-arc.cosine.y, arc.cosine.x, 0} * ratio;
    const double start = radiansOf(cursor.take(50));
    const double end = radiansOf(cursor.take(51, 360));
    const double safeRatio = ratio > 0 ? ratio : 1;
    setSweep(arc, parameterAt(start, safeRatio), parameterAt(end, safeRatio), cursor.takeInteger(73, 1) != 0);
    return arc;
}

/// Adds a spline edge, where it is one.
void readSplineEdge(Cursor& cursor, Path& path) {
    SplineCurve spline;
    spline.degree = cursor.takeInteger(94, 3);
    cursor.takeInteger(73);
    const bool periodic = cursor.takeInteger(74) != 0;
    cursor.takeInteger(95);
    cursor.takeInteger(96);
    while (cursor.code() == 40) spline.knots.push_back(cursor.take(40));
    while (cursor.code() == 10) {
        spline.points.push_back(cursor.takePoint(10));
        if (cursor.code() == 42) spline.weights.push_back(cursor.take(42, 1));
    }
    // From R2010 on a count of fit points follows. The count of source objects has the same code, but is
    // followed by their handles or the next path.
    const int behind = cursor.code(1);
    const bool fitCount = behind == 11 || behind == 12 || behind == 13 || behind == 72 || behind == 97;
    if (cursor.code() == 97 && fitCount) cursor.pass();
    std::vector<Point3> fitPoints;
    while (cursor.code() == 11) fitPoints.push_back(cursor.takePoint(11));
    const Vector3 startTangent = cursor.takePoint(12);
    const Vector3 endTangent = cursor.takePoint(13);
    if (spline.points.size() < 2 && fitPoints.size() > 1) {
        spline = interpolate(std::move(fitPoints), startTangent, endTangent, periodic);
    }
    if (repairSpline(spline)) path.push_back(std::move(spline));
}

/// How far the nearer end of a curve is from a point.
double gapTo(const Curve& curve, const Point3& point) {
    return std::min(distance(point, startPoint(curve)), distance(point, endPoint(curve)));
}

/// Joins edges to outlines. An edge that stands against the run of its outline is turned round. An outline
/// ends where it comes back to its start, or nearer to it than to the next edge: programs write several
/// outlines as one path.
void chain(const Path& edges, std::vector<Path>& outlines) {
    Path outline;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const bool isLast = i + 1 == edges.size();
        Curve edge = edges[i];
        if (!outline.empty()) {
            const Point3 end = endPoint(outline.back());
            if (distance(end, endPoint(edge)) < distance(end, startPoint(edge))) edge = reversed(edge);
        } else if (!isLast && gapTo(edges[i + 1], startPoint(edge)) < gapTo(edges[i + 1], endPoint(edge))) {
            edge = reversed(edge);
        }
        outline.push_back(std::move(edge));
        const Point3 end = endPoint(outline.back());
        if (isLast || distance(end, startPoint(outline.front())) <= gapTo(edges[i + 1], end)) {
            outlines.push_back(std::exchange(outline, {}));
        }
    }
}

void readEdgeLoops(Cursor& cursor, std::vector<Path>& loops) {
    enum EdgeType { kLine = 1, kArc = 2, kEllipse = 3, kSpline = 4 };
    cursor.takeInteger(93);
    Path path;
    while (cursor.code() == 72) {
        switch (cursor.takeInteger(72)) {
            case kLine: {
                const Point3 start = cursor.takePoint(10);
                path.push_back(LineCurve{start, cursor.takePoint(11)});
                break;
            }
            case kArc:
                path.push_back(readArcEdge(cursor));
                break;
            case kEllipse:
                path.push_back(readEllipseEdge(cursor));
                break;
            case kSpline:
                readSplineEdge(cursor, path);
                break;
            default:
                break;
        }
    }
    chain(path, loops);
}

std::vector<Path> readLoops(Cursor& cursor) {
    constexpr int kPolylineLoop = 2;
    std::vector<Path> loops;
    while (!cursor.atEnd()) {
        if (cursor.code() != 92) {
            cursor.pass();
            continue;
        }
        const bool isPolyline = (cursor.takeInteger(92) & kPolylineLoop) != 0;
        if (!isPolyline) {
            readEdgeLoops(cursor, loops);
        } else if (Path loop = readPolylineLoop(cursor); !loop.empty()) {
            loops.push_back(std::move(loop));
        }
    }
    return loops;
}

}  // namespace

HatchBoundary readHatch(dxf::TagReader tags) {
    HatchBoundary result;
    std::vector<Cursor::Group> groups;
    double elevation = 0;
    Vector3 extrusion = kZAxis;
    bool inBoundary = false;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (tag.code == 91 && groups.empty()) inBoundary = true;
        if (tag.code == 75) {
            inBoundary = false;
            result.style =
                static_cast<HatchBoundary::Style>(std::clamp<std::int64_t>(tag.integerOr(0), 0, 2));
        } else if (inBoundary) {
            if (tag.code != 330) groups.push_back({tag.code, tag.numberOr(0)});
        } else if (groups.empty() && !takePoint(tag, 210, extrusion) && tag.code == 30) {
            elevation = tag.numberOr(0);
        }
    });
    Cursor cursor(std::move(groups));
    result.loops = readLoops(cursor);
    result.toWorld = objectToWorld(extrusion);
    result.toWorld.origin = result.toWorld.zAxis * elevation;
    return result;
}

std::vector<Path> HatchBoundary::worldLoops() const {
    std::vector<Path> result = loops;
    for (Path& loop : result) {
        for (Curve& curve : loop) curve = transformed(curve, toWorld);
    }
    return result;
}

double HatchBoundary::areaWithin(geometry::Effort& effort) const {
    std::vector<FlatLoop> flat;
    flat.reserve(loops.size());
    for (const Path& loop : loops) flat.emplace_back(loop);
    std::vector<std::size_t> depths(flat.size());
    bool areCut = false;
    geometry::forEachMeeting(flat, effort, [&](std::size_t i, std::size_t j) {
        if (areCut) return;
        areCut = style == Style::kNormal && flat[i].cuts(flat[j], effort);
        effort.spend(flat[i].size() + flat[j].size());
        if (flat[j].holds(flat[i])) ++depths[i];
        if (flat[i].holds(flat[j])) ++depths[j];
    });
    if (areCut) return geometry::evenOddArea(loops, effort);
    double sum = 0;
    for (std::size_t i = 0; i < loops.size(); ++i) {
        const std::size_t depth = depths[i];
        const double size = pathArea(loops[i]);
        const bool counts = style == Style::kNormal || depth == 0 || (style == Style::kOuter && depth == 1);
        if (counts) sum += depth % 2 == 0 ? size : -size;
    }
    return std::max(sum, 0.0);
}

double HatchBoundary::area() const {
    try {
        geometry::Effort effort;
        return areaWithin(effort);
    } catch (const geometry::TooMuchWork&) {
        raise(kNotApplicable, "the hatch has too many borders across one another");
    }
}

}  // namespace shapes
