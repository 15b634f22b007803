#include "desk/shapes/read_curves.h"

#include "desk/geometry/spline.h"
#include "desk/shapes/read_tags.h"

#include <utility>

namespace shapes {

namespace {

/// Adds to a list of points whose X opens a new one.
bool takeListed(const dxf::Tag& tag, int code, std::vector<Point3>& points) {
    if (tag.code == code) points.emplace_back();
    return !points.empty() && takePoint(tag, code, points.back());
}

Corners readCorners(dxf::TagReader tags, Vector3& extrusion) {
    Corners result;
    bool hasLast = false;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        for (int i = 0; i < 4; ++i) {
            if (takePoint(tag, 10 + i, result.corner[i])) {
                hasLast = hasLast || i == 3;
                return;
            }
        }
        if (takePoint(tag, 210, extrusion)) return;
        if (tag.code == 70) result.hiddenEdges = static_cast<int>(tag.integerOr(0));
    });
    if (!hasLast) result.corner[3] = result.corner[2];
    return result;
}

}  // namespace

double turnBehind(double start, double end) {
    constexpr double kFullTurn = 2 * kPi;
    end -= kFullTurn * std::floor((end - start) / kFullTurn);
    return end - start < 1e-9 ? end + kFullTurn : end;
}

ArcCurve circularArc(const Point3& center, double radius, double start, double end, const Transform& axes) {
    return {axes.apply(center), axes.xAxis * radius, axes.yAxis * radius, start, turnBehind(start, end)};
}

LineCurve readLine(dxf::TagReader tags) {
    LineCurve result;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        takePoint(tag, 10, result.start) || takePoint(tag, 11, result.end);
    });
    return result;
}

ArcCurve readArc(dxf::TagReader tags, bool isCircle) {
    Point3 center;
    Vector3 extrusion = kZAxis;
    double radius = 0;
    double start = 0;
    double end = 0;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (takePoint(tag, 10, center) || takePoint(tag, 210, extrusion)) return;
        if (tag.code == 40) radius = tag.numberOr(0);
        if (tag.code == 50 && !isCircle) start = radiansOf(tag.numberOr(0));
        if (tag.code == 51 && !isCircle) end = radiansOf(tag.numberOr(0));
    });
    return circularArc(center, radius, start, end, objectToWorld(extrusion));
}

ArcCurve readEllipse(dxf::TagReader tags) {
    ArcCurve result;
    Vector3 extrusion = kZAxis;
    double ratio = 1;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (takePoint(tag, 10, result.center) || takePoint(tag, 11, result.cosine)) return;
        if (takePoint(tag, 210, extrusion)) return;
        if (tag.code == 40) ratio = tag.numberOr(1);
        if (tag.code == 41) result.start = tag.numberOr(0);
        if (tag.code == 42) result.end = tag.numberOr(0);
    });
    result.sine = cross(normalized(extrusion), result.cosine) * ratio;
    result.end = turnBehind(result.start, result.end);
    return result;
}

std::optional<SplineCurve> readSpline(dxf::TagReader tags) {
    SplineCurve result;
    std::vector<Point3> fitPoints;
    Vector3 startTangent;
    Vector3 endTangent;
    bool closed = false;
    forEachTag(tags, [&](const dxf::Tag& tag) {
        if (takeListed(tag, 10, result.points) || takeListed(tag, 11, fitPoints)) return;
        if (takePoint(tag, 12, startTangent) || takePoint(tag, 13, endTangent)) return;
        if (tag.code == 40) result.knots.push_back(tag.numberOr(0));
        if (tag.code == 41) result.weights.push_back(tag.numberOr(1));
        if (tag.code == 70) closed = (tag.integerOr(0) & 1) != 0;
        if (tag.code == 71) result.degree = static_cast<int>(tag.integerOr(3));
    });
    if (result.points.size() < 2 && fitPoints.size() >= 2) {
        result = interpolate(std::move(fitPoints), startTangent, endTangent, closed);
    }
    if (!repairSpline(result)) return std::nullopt;
    return result;
}

Path readLeader(dxf::TagReader tags) {
    std::vector<Point3> points;
    forEachTag(tags, [&](const dxf::Tag& tag) { takeListed(tag, 10, points); });
    Path result;
    for (std::size_t i = 1; i < points.size(); ++i) result.push_back(LineCurve{points[i - 1], points[i]});
    return result;
}

Point3 readPoint(dxf::TagReader tags) {
    Point3 result;
    forEachTag(tags, [&](const dxf::Tag& tag) { takePoint(tag, 10, result); });
    return result;
}

Corners readSolid(dxf::TagReader tags) {
    Vector3 extrusion = kZAxis;
    Corners result = readCorners(tags, extrusion);
    const Transform axes = objectToWorld(extrusion);
    for (Point3& corner : result.corner) corner = axes.apply(corner);
    std::swap(result.corner[2], result.corner[3]);
    return result;
}

Corners readFace(dxf::TagReader tags) {
    Vector3 unused = kZAxis;
    return readCorners(tags, unused);
}

}  // namespace shapes
