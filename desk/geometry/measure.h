#pragma once

#include "desk/geometry/curve.h"

namespace geometry {

/// Length along the curve in space: exact for lines and circular arcs, to about 12 digits for the others.
double curveLength(const Curve& curve);
double pathLength(const Path& path);

/// The area vector of a path, half the integral of p x dp: upright on its plane, as long as its area,
/// pointing to where the path runs counter-clockwise. A path that isn't closed is closed by a straight line.
Vector3 areaVector(const Path& path);
/// Area of a plane path, never negative. One that crosses itself has the parts that run the other way taken
/// off.
double pathArea(const Path& path);

/// Whether the points lie in one plane, to a millionth of their extent.
bool isPlanar(const std::vector<Point3>& points);

}  // namespace geometry
