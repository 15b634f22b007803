#pragma once

#include "desk/geometry/vector.h"

namespace geometry {

/// An affine map: three images of the axes and an origin. The default is the identity.
struct Transform {
    Vector3 xAxis{1, 0, 0};
    Vector3 yAxis{0, 1, 0};
    Vector3 zAxis{0, 0, 1};
    Point3 origin;

    /// The image of a point.
    Point3 apply(const Point3& point) const {
        return xAxis * point.x + yAxis * point.y + zAxis * point.z + origin;
    }
    /// The image of a direction, which the origin doesn't move.
    Vector3 applyDirection(const Vector3& direction) const {
        return xAxis * direction.x + yAxis * direction.y + zAxis * direction.z;
    }
    /// Volume factor; negative for a mirroring map, 0 for one that can't be inverted.
    double determinant() const { return dot(xAxis, cross(yAxis, zAxis)); }
    /// The inverse map. A map that flattens space has none: the identity is returned.
    Transform inverse() const;

    static Transform translation(const Vector3& offset);
    static Transform scaling(double x, double y, double z);
    /// Turn about the Z axis, radians, counter-clockwise.
    static Transform rotationZ(double angle);
};

/// `outer` after `inner`.
Transform operator*(const Transform& outer, const Transform& inner);

/// Object coordinates to world coordinates for an extrusion direction (groups 210, 220, 230) by the arbitrary
/// axis algorithm of DXF: the X axis is Wy x N where N is within 1/64 of the Z axis in both X and Y, else Wz
/// x N.
Transform objectToWorld(const Vector3& extrusion);
/// A point of object coordinates in world coordinates, and back.
Point3 ocsToWcs(const Point3& point, const Vector3& extrusion);
Point3 wcsToOcs(const Point3& point, const Vector3& extrusion);

}  // namespace geometry
