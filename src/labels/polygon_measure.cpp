#include "labels/polygon_measure.h"

#include <cmath>

namespace labels {
namespace {

double distance(const host::Point& from, const host::Point& to) {
    return std::pow(std::pow(to[0] - from[0], 2) + std::pow(to[1] - from[1], 2), 0.5);
}

/// Between a segment and the X axis, signed by the segment's direction.
double trapezoid(const host::Point& from, const host::Point& to) {
    return (to[0] - from[0]) * 0.5 * (from[1] + to[1]);
}

}  // namespace

PolygonMeasure measurePolygon(std::vector<host::Point> points) {
    PolygonMeasure measure;
    const std::size_t count = points.size();
    if (count < 2) return measure;
    for (std::size_t k = 1; k < count; ++k) measure.length += distance(points[k - 1], points[k]);
    measure.perimeter = measure.length + distance(points.back(), points.front());

    points.push_back(points.front());
    for (std::size_t k = 1; k <= count; ++k) measure.area += trapezoid(points[k - 1], points[k]);
    measure.area = std::abs(measure.area);
    return measure;
}

}  // namespace labels
