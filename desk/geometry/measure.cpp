#include "desk/geometry/measure.h"

#include "desk/geometry/spline.h"

#include <algorithm>
#include <array>

namespace geometry {

namespace {

double magnitude(double value) { return std::abs(value); }
double magnitude(const Vector3& value) { return length(value); }

/// Gauss and Legendre's rule with eight places: exact for polynomials up to degree 15.
template <typename Value, typename Function>
Value gauss(const Function& function, double from, double to) {
    static constexpr std::array<double, 4> kNodes{0.1834346424956498, 0.5255324099163290, 0.7966664774136267,
                                                  0.9602898564975363};
    static constexpr std::array<double, 4> kWeights{0.3626837833783620, 0.3137066458778873,
                                                    0.2223810344533745, 0.1012285362903763};
    const double middle = (from + to) / 2;
    const double half = (to - from) / 2;
    Value sum{};
    for (std::size_t i = 0; i < kNodes.size(); ++i) {
        const double step = half * kNodes[i];
        sum = sum + (function(middle - step) + function(middle + step)) * kWeights[i];
    }
    return sum * half;
}

/// Halves the range until both halves together agree with the whole.
template <typename Value, typename Function>
Value refine(const Function& function, double from, double to, const Value& whole, double slack, int depth) {
    const double middle = (from + to) / 2;
    const Value left = gauss<Value>(function, from, middle);
    const Value right = gauss<Value>(function, middle, to);
    const Value both = left + right;
    if (depth == 0 || !(magnitude(both - whole) > slack)) return both;
    return refine(function, from, middle, left, slack, depth - 1) +
           refine(function, middle, to, right, slack, depth - 1);
}

template <typename Value, typename Function>
Value integrate(const Function& function, double from, double to, double scale) {
    constexpr int kDepth = 16;
    return refine(function, from, to, gauss<Value>(function, from, to), 1e-13 * scale, kDepth);
}

double arcLength(const ArcCurve& arc) {
    const double radius = length(arc.cosine);
    const double sweep = arc.end - arc.start;
    const double slack = 1e-12 * radius * radius;
    if (std::abs(dot(arc.sine, arc.sine) - radius * radius) <= slack &&
        std::abs(dot(arc.cosine, arc.sine)) <= slack) {
        return radius * std::abs(sweep);
    }
    const auto speed = [&](double t) { return length(arc.sine * std::cos(t) - arc.cosine * std::sin(t)); };
    const double scale = (radius + length(arc.sine)) * std::abs(sweep);
    return std::abs(integrate<double>(speed, arc.start, arc.end, scale));
}

/// Length of the control polygon, by which a tolerance for the spline is set.
double polygonLength(const SplineCurve& spline) {
    double sum = 0;
    for (std::size_t i = 1; i < spline.points.size(); ++i) {
        sum += distance(spline.points[i - 1], spline.points[i]);
    }
    return sum;
}

template <typename Value, typename Function>
Value overSpans(const SplineCurve& spline, double scale, const Function& function) {
    const std::vector<double> knots = spanKnots(spline);
    Value sum{};
    for (std::size_t i = 1; i < knots.size(); ++i) {
        sum = sum + integrate<Value>(function, knots[i - 1], knots[i], scale);
    }
    return sum;
}

/// The integral of (p - origin) x dp along one curve.
Vector3 sweepOf(const Curve& curve, const Point3& origin) {
    if (const auto* line = std::get_if<LineCurve>(&curve)) {
        return cross(line->start - origin, line->end - origin);
    }
    if (const auto* arc = std::get_if<ArcCurve>(&curve)) {
        const Vector3 chord = arc->at(arc->end) - arc->at(arc->start);
        return cross(arc->center - origin, chord) + cross(arc->cosine, arc->sine) * (arc->end - arc->start);
    }
    const auto& spline = std::get<SplineCurve>(curve);
    const double extent = polygonLength(spline);
    return overSpans<Vector3>(spline, extent * extent, [&](double t) {
        const SplinePoint at = evaluate(spline, t);
        return cross(at.point - origin, at.derivative);
    });
}

}  // namespace

double curveLength(const Curve& curve) {
    if (const auto* line = std::get_if<LineCurve>(&curve)) return distance(line->start, line->end);
    if (const auto* arc = std::get_if<ArcCurve>(&curve)) return arcLength(*arc);
    const auto& spline = std::get<SplineCurve>(curve);
    return overSpans<double>(spline, polygonLength(spline),
                             [&](double t) { return length(evaluate(spline, t).derivative); });
}

double pathLength(const Path& path) {
    double sum = 0;
    for (const Curve& curve : path) sum += curveLength(curve);
    return sum;
}

Vector3 areaVector(const Path& path) {
    if (path.empty()) return {};
    // Measured from a point of the path, so that a drawing far from the origin loses no digits. The closing
    // line ends in that point and sweeps nothing.
    const Point3 origin = startPoint(path.front());
    Vector3 sum;
    for (const Curve& curve : path) sum = sum + sweepOf(curve, origin);
    return sum / 2;
}

double pathArea(const Path& path) { return length(areaVector(path)); }

bool isPlanar(const std::vector<Point3>& points) {
    if (points.size() < 4) return true;
    const Point3& origin = points.front();
    const auto farther = [&](const Point3& a, const Point3& b) {
        return distance(origin, a) < distance(origin, b);
    };
    const Vector3 axis = *std::max_element(points.begin(), points.end(), farther) - origin;
    const double extent = length(axis);
    Vector3 normal;
    for (const Point3& point : points) {
        const Vector3 candidate = cross(axis, point - origin);
        if (length(candidate) > length(normal)) normal = candidate;
    }
    if (length(normal) <= 1e-9 * extent * extent) return true;
    normal = normalized(normal);
    return std::all_of(points.begin(), points.end(), [&](const Point3& point) {
        return std::abs(dot(normal, point - origin)) <= 1e-6 * extent;
    });
}

}  // namespace geometry
