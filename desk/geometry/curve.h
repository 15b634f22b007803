#pragma once

#include "desk/geometry/transform.h"
#include "desk/geometry/vector.h"

#include <limits>
#include <variant>
#include <vector>

namespace geometry {

/// Straight from `start` to `end`.
struct LineCurve {
    Point3 start;
    Point3 end;
};

/// Part of a circle or an ellipse: center + cosine * cos(t) + sine * sin(t) for t from `start` to `end`,
/// radians; `end` below `start` runs clockwise. The two radii needn't stand upright on each other, so that a
/// reference with uneven scales or in a slant plane maps an arc onto an arc.
struct ArcCurve {
    Point3 center;
    Vector3 cosine;
    Vector3 sine;
    double start = 0;
    double end = 2 * kPi;

    Point3 at(double t) const { return center + cosine * std::cos(t) + sine * std::sin(t); }
};

/// A B-spline, rational where `weights` isn't empty. It runs over the knots from `knots[degree]` to
/// `knots[points.size()]`; `repairSpline` brings the lists to fitting lengths.
struct SplineCurve {
    int degree = 3;
    std::vector<double> knots;
    std::vector<Point3> points;
    std::vector<double> weights;
};

using Curve = std::variant<LineCurve, ArcCurve, SplineCurve>;
/// Curves that follow one another.
using Path = std::vector<Curve>;

/// The smallest box about what was added; empty at first.
struct Box {
    static constexpr double kFar = std::numeric_limits<double>::infinity();
    Point3 low{kFar, kFar, kFar};
    Point3 high{-kFar, -kFar, -kFar};

    bool empty() const { return low.x > high.x; }
    void add(const Point3& point);
    void add(const Box& box);
    /// The box about the images of the corners.
    Box transformed(const Transform& transform) const;
    /// Distance in X and Y of a point from the box; 0 inside.
    double distanceXY(const Point3& point) const;
};

Point3 startPoint(const Curve& curve);
Point3 endPoint(const Curve& curve);
Curve transformed(const Curve& curve, const Transform& transform);
/// The same curve run from its end to its start.
Curve reversed(const Curve& curve);
/// Adds the box of a curve. It is the tight one for lines and arcs, that of the control points for splines.
void addBounds(const Curve& curve, Box& box);

/// The curve between two plane points of a polyline with a bulge, the tangent of a quarter of the arc's
/// angle, positive counter-clockwise (group 42). At the height of `start`.
Curve bulgeCurve(const Point3& start, const Point3& end, double bulge);

/// Appends points along the curve, first and last included: 64 to a full turn, four times the degree to a
/// span of a spline, `fineness` times as many as that.
void flatten(const Curve& curve, std::vector<Point3>& points, int fineness = 1);

/// Distance in X and Y between a point and the curve as seen from above.
double distanceXY(const Curve& curve, const Point3& point);

/// An upright rectangle of the XY plane.
struct Rectangle {
    Rectangle(const Point3& corner, const Point3& opposite);
    bool contains(const Point3& point) const {
        return point.x >= low.x && point.x <= high.x && point.y >= low.y && point.y <= high.y;
    }
    Point3 low;
    Point3 high;
};

/// Whether any part of the curve, seen from above, lies in the rectangle or on its border.
bool touches(const Curve& curve, const Rectangle& rectangle);

}  // namespace geometry
