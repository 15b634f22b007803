#pragma once

#include "desk/picture/names.h"

#include <algorithm>
#include <cmath>

namespace picture {

/// A point of the picture: device units, Y downwards.
struct Point2 {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point2&, const Point2&) = default;
};

/// A part of the picture; empty at first.
struct Frame {
    double left = Box::kFar;
    double top = Box::kFar;
    double right = -Box::kFar;
    double bottom = -Box::kFar;

    bool empty() const { return left > right; }
    double width() const { return right - left; }
    double height() const { return bottom - top; }
    bool meets(const Frame& other) const {
        return left <= other.right && right >= other.left && top <= other.bottom && bottom >= other.top;
    }
    bool holds(const Frame& other) const {
        return left <= other.left && right >= other.right && top <= other.top && bottom >= other.bottom;
    }
    bool contains(const Point2& point) const {
        return point.x >= left && point.x <= right && point.y >= top && point.y <= bottom;
    }
    void add(const Point2& point) {
        left = std::min(left, point.x);
        right = std::max(right, point.x);
        top = std::min(top, point.y);
        bottom = std::max(bottom, point.y);
    }
    Frame widened(double by) const { return {left - by, top - by, right + by, bottom + by}; }
};

/// A parallel projection of drawing units onto the picture, seen from above unless a view says otherwise.
struct Projection {
    Vector3 toX{1, 0, 0};  ///< what a point's coordinates add to X
    Vector3 toY{0, -1, 0};
    Point2 origin;

    Point2 apply(const Point3& p) const {
        return {toX.x * p.x + toX.y * p.y + toX.z * p.z + origin.x,
                toY.x * p.x + toY.y * p.y + toY.z * p.z + origin.y};
    }
    Point2 applyDirection(const Vector3& v) const { return {dot(toX, v), dot(toY, v)}; }
    Frame apply(const Box& box) const {
        const Point3 middle = (box.low + box.high) / 2;
        const Vector3 half = (box.high - box.low) / 2;
        const Point2 center = apply(middle);
        const double x = std::abs(toX.x) * half.x + std::abs(toX.y) * half.y + std::abs(toX.z) * half.z;
        const double y = std::abs(toY.x) * half.x + std::abs(toY.y) * half.y + std::abs(toY.z) * half.z;
        return {center.x - x, center.y - y, center.x + x, center.y + y};
    }
    /// Device units of a drawing unit, the mean of both directions of the XY plane.
    double scale() const { return std::sqrt(std::abs(toX.x * toY.y - toX.y * toY.x)); }
    /// What shows a placed thing.
    Projection operator*(const Transform& place) const {
        const auto row = [&](const Vector3& to) {
            return Vector3{dot(to, place.xAxis), dot(to, place.yAxis), dot(to, place.zAxis)};
        };
        return {row(toX), row(toY), apply(place.origin)};
    }
    /// The point of the plane Z = 0 that is shown at a place.
    Point3 unproject(const Point2& at) const {
        const double plane = toX.x * toY.y - toX.y * toY.x;
        const double x = at.x - origin.x;
        const double y = at.y - origin.y;
        return {(x * toY.y - y * toX.y) / plane, (y * toX.x - x * toY.x) / plane, 0};
    }
};

}  // namespace picture
