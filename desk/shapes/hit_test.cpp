#include "desk/shapes/hit_test.h"

#include <algorithm>
#include <cmath>

namespace shapes {

namespace {

/// Width of a band under a transform, which may stretch its directions differently: the mean of both.
double placedHalfWidth(const Stroke& stroke, const Transform& transform) {
    return stroke.halfWidth() * (length(transform.xAxis) + length(transform.yAxis)) / 2;
}

bool boxInside(const Box& box, const Rectangle& rectangle) {
    return box.empty() || (rectangle.contains(box.low) && rectangle.contains(box.high));
}

/// A box that the curve touches on all sides, which the control points of a spline wouldn't give.
Box tightBounds(const Curve& curve) {
    Box box;
    if (!std::holds_alternative<SplineCurve>(curve)) {
        addBounds(curve, box);
        return box;
    }
    std::vector<Point3> points;
    flatten(curve, points);
    for (const Point3& point : points) box.add(point);
    return box;
}

Rectangle widened(const Rectangle& rectangle, double by) {
    const Vector3 band{by, by, 0};
    return {rectangle.low - band, rectangle.high + band};
}

}  // namespace

LineCurve stretchNear(const EndlessLine& line, const Transform& transform, const Point3& place,
                      double reach) {
    const Point3 base = transform.apply(line.base);
    const Vector3 direction = transform.applyDirection(line.direction);
    const double square = direction.x * direction.x + direction.y * direction.y;
    if (!(square > 0)) return {base, base};
    const Vector3 away = place - base;
    const double foot = (away.x * direction.x + away.y * direction.y) / square;
    const double half = reach / std::sqrt(square);
    const double earliest = line.bothWays ? -Box::kFar : 0;
    return {base + direction * std::max(foot - half, earliest),
            base + direction * std::max(foot + half, earliest)};
}

Hit hitTest(const Geometry& geometry, const Transform& transform, const Point3& point) {
    Hit hit;
    for (const Stroke& stroke : geometry.strokes) {
        const double found = distanceXY(transformed(stroke.curve, transform), point);
        hit.distance = std::min(hit.distance, std::max(0.0, found - placedHalfWidth(stroke, transform)));
    }
    for (const EndlessLine& line : geometry.endless) {
        hit.distance =
            std::min(hit.distance, distanceXY(Curve(stretchNear(line, transform, point, 1)), point));
    }
    for (const Point3& own : geometry.points) {
        hit.distance = std::min(hit.distance, distanceXY(transform.apply(own), point));
    }
    const auto addFill = [&](const Fill& fill) {
        hit.filled = hit.filled || fill.contains(point, transform);
        for (const Path& loop : fill.loops) {
            for (const Curve& curve : loop) {
                hit.border = std::min(hit.border, distanceXY(transformed(curve, transform), point));
            }
        }
    };
    std::for_each(geometry.fills.begin(), geometry.fills.end(), addFill);
    std::for_each(geometry.texts.begin(), geometry.texts.end(), addFill);
    return hit;
}

bool touches(const Geometry& geometry, const Transform& transform, const Rectangle& rectangle) {
    const auto strokeTouches = [&](const Stroke& stroke) {
        return touches(transformed(stroke.curve, transform),
                       widened(rectangle, placedHalfWidth(stroke, transform)));
    };
    const auto pointTouches = [&](const Point3& point) { return rectangle.contains(transform.apply(point)); };
    const auto loopTouches = [&](const Path& loop) {
        return std::any_of(loop.begin(), loop.end(), [&](const Curve& curve) {
            return touches(transformed(curve, transform), rectangle);
        });
    };
    // A rectangle amid a fill meets none of its borders.
    const auto fillTouches = [&](const Fill& fill) {
        return std::any_of(fill.loops.begin(), fill.loops.end(), loopTouches) ||
               fill.contains(rectangle.low, transform);
    };
    const auto lineTouches = [&](const EndlessLine& line) {
        const Vector3 half = (rectangle.high - rectangle.low) / 2;
        return touches(Curve(stretchNear(line, transform, rectangle.low + half, length(half))), rectangle);
    };
    return std::any_of(geometry.strokes.begin(), geometry.strokes.end(), strokeTouches) ||
           std::any_of(geometry.endless.begin(), geometry.endless.end(), lineTouches) ||
           std::any_of(geometry.points.begin(), geometry.points.end(), pointTouches) ||
           std::any_of(geometry.fills.begin(), geometry.fills.end(), fillTouches) ||
           std::any_of(geometry.texts.begin(), geometry.texts.end(), fillTouches);
}

bool liesInside(const Geometry& geometry, const Transform& transform, const Rectangle& rectangle) {
    const auto curveInside = [&](const Curve& curve) {
        return boxInside(tightBounds(transformed(curve, transform)), rectangle);
    };
    const auto strokeInside = [&](const Stroke& stroke) {
        Box box = tightBounds(transformed(stroke.curve, transform));
        const double halfWidth = placedHalfWidth(stroke, transform);
        box.low = box.low - Vector3{halfWidth, halfWidth, 0};
        box.high = box.high + Vector3{halfWidth, halfWidth, 0};
        return boxInside(box, rectangle);
    };
    const auto fillInside = [&](const Fill& fill) {
        return std::all_of(fill.loops.begin(), fill.loops.end(), [&](const Path& loop) {
            return std::all_of(loop.begin(), loop.end(), curveInside);
        });
    };
    return geometry.endless.empty() &&
           std::all_of(geometry.strokes.begin(), geometry.strokes.end(), strokeInside) &&
           std::all_of(geometry.points.begin(), geometry.points.end(),
                       [&](const Point3& point) { return rectangle.contains(transform.apply(point)); }) &&
           std::all_of(geometry.fills.begin(), geometry.fills.end(), fillInside) &&
           std::all_of(geometry.texts.begin(), geometry.texts.end(), fillInside);
}

}  // namespace shapes
