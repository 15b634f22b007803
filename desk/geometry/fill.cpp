#include "desk/geometry/fill.h"

#include <algorithm>

namespace geometry {

namespace {

bool overlap(const Box& a, const Box& b) {
    return a.low.x <= b.high.x && a.high.x >= b.low.x && a.low.y <= b.high.y && a.high.y >= b.low.y;
}

/// So many places of a loop tell whether it lies partly in another.
constexpr std::size_t kPlaces = 16;

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
    const std::size_t count = points_.size();
    const std::size_t places = std::min(count, kPlaces);
    std::size_t inside = 0;
    for (std::size_t i = 0; i < places; ++i) {
        const std::size_t at = i * count / places;
        if (other.contains(lerp(points_[at], points_[(at + 1) % count], 0.5))) ++inside;
    }
    return inside > 0 && inside < places;
}

bool FlatLoop::cuts(const FlatLoop& other, Effort& effort) const {
    if (points_.size() < 3 || other.points_.size() < 3 || !overlap(bounds_, other.bounds_)) return false;
    effort.spend(std::min(size(), kPlaces) * other.size() + std::min(other.size(), kPlaces) * size());
    if (straddles(other) || other.straddles(*this)) return true;
    for (std::size_t i = 0; i < points_.size(); ++i) {
        const Point3& from = points_[i];
        const Point3& to = points_[(i + 1) % points_.size()];
        Box edge;
        edge.add(from);
        edge.add(to);
        if (!overlap(edge, other.bounds_)) continue;
        effort.spend(other.size());
        for (std::size_t j = 0; j < other.points_.size(); ++j) {
            if (cross(from, to, other.points_[j], other.points_[(j + 1) % other.points_.size()])) return true;
        }
    }
    return false;
}

void forEachMeeting(const std::vector<FlatLoop>& loops, Effort& effort,
                    const std::function<void(std::size_t, std::size_t)>& visit) {
    // Along the direction in which the boxes are shorter against the whole, fewer stand side by side.
    Box whole;
    Vector3 sum;
    for (const FlatLoop& loop : loops) {
        if (loop.bounds().empty()) continue;
        whole.add(loop.bounds());
        sum = sum + (loop.bounds().high - loop.bounds().low);
    }
    const bool byX = sum.x * (whole.high.y - whole.low.y) <= sum.y * (whole.high.x - whole.low.x);
    const auto along = [byX](const Point3& point) { return byX ? point.x : point.y; };
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < loops.size(); ++i) {
        if (!loops[i].bounds().empty()) order.push_back(i);
    }
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return along(loops[a].bounds().low) < along(loops[b].bounds().low);
    });
    for (std::size_t i = 0; i < order.size(); ++i) {
        const Box& box = loops[order[i]].bounds();
        for (std::size_t j = i + 1;
             j < order.size() && along(loops[order[j]].bounds().low) <= along(box.high); ++j) {
            effort.spend(1);
            if (overlap(box, loops[order[j]].bounds())) visit(order[i], order[j]);
        }
    }
}

bool Fill::contains(const Point3& point, const Transform& transform) const {
    const auto hits = std::count_if(loops.begin(), loops.end(), [&](const Path& loop) {
        return FlatLoop(loop, transform).contains(point);
    });
    return hits % 2 == 1;
}

}  // namespace geometry
