#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/shapes/names.h"

#include <optional>

namespace shapes {

// Each reads the groups of one entity of the kind that its name tells and gives world coordinates. A group
// that is no number counts as 0.

/// LINE: from 10 to 11.
LineCurve readLine(dxf::TagReader tags);
/// CIRCLE and ARC: center 10, radius 40, of an arc the angles 50 and 51, counter-clockwise.
ArcCurve readArc(dxf::TagReader tags, bool isCircle);
/// ELLIPSE: center 10, long half axis 11, ratio 40, parameters 41 and 42.
ArcCurve readEllipse(dxf::TagReader tags);
/// SPLINE: degree 71, knots 40, control points 10 with weights 41; without control points the curve through
/// its fit points 11 with the tangents 12 and 13. Nothing where there are fewer than two points.
std::optional<SplineCurve> readSpline(dxf::TagReader tags);
/// LEADER: straight stretches between its points 10.
Path readLeader(dxf::TagReader tags);
/// POINT: 10.
Point3 readPoint(dxf::TagReader tags);

/// The corners 10 to 13 of SOLID, TRACE and 3DFACE, 13 as 12 where absent, in the order of the outline.
struct Corners {
    Point3 corner[4];
    int hiddenEdges = 0;  ///< 3DFACE, group 70: bit n hides the edge from corner n on
};
/// SOLID and TRACE, whose third corner in the file lies opposite the second.
Corners readSolid(dxf::TagReader tags);
/// 3DFACE, in world coordinates and in order.
Corners readFace(dxf::TagReader tags);

/// The part of a circle of object coordinates from angle `start` counter-clockwise to `end`, radians.
ArcCurve circularArc(const Point3& center, double radius, double start, double end, const Transform& axes);
/// `end` moved by full turns to lie behind `start` by more than nothing and at most one turn.
double turnBehind(double start, double end);

}  // namespace shapes
