#include "desk/geometry/fill.h"

#include <algorithm>

namespace geometry {

namespace {

bool overlap(const Box& a, const Box& b) {
    return a.low.x <= b.high.x && a.high.x >= b.low.x && a.low.y <= b.high.y && a.high.y >= b.low.y;
}

/// Whether two straight lines cross between their ends.
bool cross(const Point3& a, const Point3& b, const Point3& c, const Point3& d) {
    const auto sides = [](const Point3& from, const Point3& to, const Point3& one, const Point3& other) {
        return crossXY(to - from, one - from) * crossXY(to - from, other - from);
    };
    return sides(a, b, c, d) < 0 && sides(c, d, a, b) < 0;
}

}  // namespace

FlatLoop::FlatLoop(const Path& path, const Transform& transform) {
    for (const Curve& curve : path) flatten(curve, points_);
    for (Point3& point : points_) point = transform.apply(point);
    points_.erase(std::unique(points_.begin(), points_.end()), points_.end());
    for (const Point3& point : points_) bounds_.add(point);
}

bool FlatLoop::contains(const Point3& point) const {
    if (points_.size() < 3 || bounds_.distanceXY(point) > 0) return false;
    bool inside = false;
    Point3 from = points_.back();
    for (const Point3& to : points_) {
        if ((from.y > point.y) != (to.y > point.y)) {
            const double x = from.x + (to.x - from.x) * (point.y - from.y) / (to.y - from.y);
            if (point.x < x) inside = !inside;
        }
        from = to;
    }
    return inside;
}

bool FlatLoop::holds(const FlatLoop& other) const {
    const std::size_t count = other.points_.size();
    if (count < 3) return false;
    int votes = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const std::size_t at = i * count / 3;
        const Point3 middle = lerp(other.points_[at], other.points_[(at + 1) % count], 0.5);
        if (contains(middle)) ++votes;
    }
    return votes >= 2;
}

bool FlatLoop::straddles(const FlatLoop& other) const {
    constexpr std::size_t kMost = 16;
    const std::size_t count = points_.size();
    const std::size_t places = std::min(count, kMost);
    std::size_t inside = 0;
    for (std::size_t i = 0; i < places; ++i) {
        const std::size_t at = i * count / places;
        if (other.contains(lerp(points_[at], points_[(at + 1) % count], 0.5))) ++inside;
    }
    return inside > 0 && inside < places;
}

bool FlatLoop::cuts(const FlatLoop& other) const {
    if (points_.size() < 3 || other.points_.size() < 3 || !overlap(bounds_, other.bounds_)) return false;
    if (straddles(other) || other.straddles(*this)) return true;
    for (std::size_t i = 0; i < points_.size(); ++i) {
        const Point3& from = points_[i];
        const Point3& to = points_[(i + 1) % points_.size()];
        Box edge;
        edge.add(from);
        edge.add(to);
        if (!overlap(edge, other.bounds_)) continue;
        for (std::size_t j = 0; j < other.points_.size(); ++j) {
            if (cross(from, to, other.points_[j], other.points_[(j + 1) % other.points_.size()])) return true;
        }
    }
    return false;
}

bool Fill::contains(const Point3& point, const Transform& transform) const {
    const auto hits = std::count_if(loops.begin(), loops.end(), [&](const Path& loop) {
        return FlatLoop(loop, transform).contains(point);
    });
    return hits % 2 == 1;
}

}  // namespace geometry
