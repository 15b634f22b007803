#pragma once

#include "desk/geometry/curve.h"

#include <array>
#include <vector>

namespace geometry {

/// The highest degree that the host draws; a spline of a higher one is taken as cubic.
inline constexpr int kHighestDegree = 25;

/// Makes the lists fit one another: a degree that the points allow, one knot more than points and degree
/// together in rising order (else even ones, the ends clamped), as many weights as points (else none).
/// Returns false where fewer than two points leave no curve.
bool repairSpline(SplineCurve& spline);

/// A place on a spline and the derivative there by the parameter.
struct SplinePoint {
    Point3 point;
    Vector3 derivative;
};
/// De Boor's algorithm. Parameters outside the curve are moved to its ends.
SplinePoint evaluate(const SplineCurve& spline, double parameter);

/// The different knots over which the curve runs, from the first to the last parameter.
std::vector<double> spanKnots(const SplineCurve& spline);

/// The cubic curve with continuous curvature through `points`, parameters by chord length. A null tangent
/// leaves that end free; `closed` joins the ends smoothly.
SplineCurve interpolate(std::vector<Point3> points, const Vector3& startTangent, const Vector3& endTangent,
                        bool closed);

}  // namespace geometry
