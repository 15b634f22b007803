#include "desk/geometry/transform.h"

namespace geometry {

Transform Transform::inverse() const {
    const double volume = determinant();
    if (volume == 0) return {};
    const Vector3 rowX = cross(yAxis, zAxis) / volume;
    const Vector3 rowY = cross(zAxis, xAxis) / volume;
    const Vector3 rowZ = cross(xAxis, yAxis) / volume;
    Transform result;
    result.xAxis = {rowX.x, rowY.x, rowZ.x};
    result.yAxis = {rowX.y, rowY.y, rowZ.y};
    result.zAxis = {rowX.z, rowY.z, rowZ.z};
    result.origin = -result.applyDirection(origin);
    return result;
}

Transform Transform::translation(const Vector3& offset) {
    Transform result;
    result.origin = offset;
    return result;
}

Transform Transform::scaling(double x, double y, double z) {
    Transform result;
    result.xAxis.x = x;
    result.yAxis.y = y;
    result.zAxis.z = z;
    return result;
}

Transform Transform::rotationZ(double angle) {
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    Transform result;
    result.xAxis = {c, s, 0};
    result.yAxis = {-s, c, 0};
    return result;
}

Transform operator*(const Transform& outer, const Transform& inner) {
    Transform result;
    result.xAxis = outer.applyDirection(inner.xAxis);
    result.yAxis = outer.applyDirection(inner.yAxis);
    result.zAxis = outer.applyDirection(inner.zAxis);
    result.origin = outer.apply(inner.origin);
    return result;
}

Transform objectToWorld(const Vector3& extrusion) {
    const Vector3 normal = normalized(extrusion);
    if (normal == kZAxis || normal == Vector3{}) return {};
    constexpr double kNearZ = 1.0 / 64.0;
    const bool nearZ = std::abs(normal.x) < kNearZ && std::abs(normal.y) < kNearZ;
    Transform result;
    result.xAxis = normalized(cross(nearZ ? Vector3{0, 1, 0} : kZAxis, normal));
    result.yAxis = normalized(cross(normal, result.xAxis));
    result.zAxis = normal;
    return result;
}

Point3 ocsToWcs(const Point3& point, const Vector3& extrusion) {
    return objectToWorld(extrusion).apply(point);
}

Point3 wcsToOcs(const Point3& point, const Vector3& extrusion) {
    const Transform axes = objectToWorld(extrusion);
    // The axes are orthonormal: the transposed matrix is the inverse.
    return {dot(axes.xAxis, point), dot(axes.yAxis, point), dot(axes.zAxis, point)};
}

}  // namespace geometry
