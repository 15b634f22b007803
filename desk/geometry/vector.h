#pragma once

#include <cmath>

namespace geometry {

/// A point or a direction in drawing units; plane geometry leaves z at 0.
struct Point3 {
    double x = 0;
    double y = 0;
    double z = 0;

    friend bool operator==(const Point3&, const Point3&) = default;
};
using Vector3 = Point3;

constexpr Point3 operator+(const Point3& a, const Point3& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
constexpr Point3 operator-(const Point3& a, const Point3& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
constexpr Point3 operator*(const Point3& a, double factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}
constexpr Point3 operator*(double factor, const Point3& a) { return a * factor; }
constexpr Point3 operator/(const Point3& a, double divisor) {
    return {a.x / divisor, a.y / divisor, a.z / divisor};
}
constexpr Point3 operator-(const Point3& a) { return {-a.x, -a.y, -a.z}; }

constexpr double dot(const Vector3& a, const Vector3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
constexpr Vector3 cross(const Vector3& a, const Vector3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
/// The Z of the cross product: twice the signed area that two plane vectors span.
constexpr double crossXY(const Vector3& a, const Vector3& b) { return a.x * b.y - a.y * b.x; }

inline double length(const Vector3& a) { return std::sqrt(dot(a, a)); }
inline double distance(const Point3& a, const Point3& b) { return length(b - a); }
inline double distanceXY(const Point3& a, const Point3& b) { return std::hypot(b.x - a.x, b.y - a.y); }
/// `a` with length 1; the null vector stays as it is.
inline Vector3 normalized(const Vector3& a) {
    const double size = length(a);
    return size > 0 ? a / size : a;
}
constexpr Point3 lerp(const Point3& a, const Point3& b, double t) { return a + (b - a) * t; }

inline constexpr double kPi = 3.14159265358979323846;
inline constexpr Vector3 kZAxis{0, 0, 1};

}  // namespace geometry
