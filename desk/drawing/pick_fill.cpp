#include "desk/drawing/pick_fill.h"

#include <algorithm>

namespace drawing {

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

bool Fill::contains(const Point3& point, const Transform& transform) const {
    const auto hits = std::count_if(loops.begin(), loops.end(), [&](const Path& loop) {
        return FlatLoop(loop, transform).contains(point);
    });
    return hits % 2 == 1;
}

}  // namespace drawing
