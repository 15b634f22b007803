#include "desk/geometry/spline.h"

#include <algorithm>

// Splines as SPLINE entities and hatch edges have them (DXF Reference, "SPLINE"): degree, knots, control
// points, weights where it is rational; or fit points with tangents instead, through which a curve has to be
// found. The method for the first is de Boor's, for the second the cubic spline of numerical textbooks (de
// Boor, "A Practical Guide to Splines"; Piegl and Tiller, "The NURBS Book", 2.5 and 9.2).
//
// A curve of degree p on points P0..Pn has knots u0..u(n+p+1) that don't fall, and runs from up to u(n+1).
// Clamped ends repeat their knot p + 1 times and so pass through the first and last point; files also have
// others.

namespace geometry {

namespace {

/// A control point in homogeneous coordinates, by which a rational curve is a plain one of four dimensions.
struct Homogeneous {
    Vector3 xyz;
    double w = 1;
};

Homogeneous blend(const Homogeneous& a, const Homogeneous& b, double t) {
    return {lerp(a.xyz, b.xyz, t), a.w + (b.w - a.w) * t};
}

bool isFinite(const Point3& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

/// Index of the knot at which the span of `parameter` begins; the span isn't empty.
std::size_t findSpan(const SplineCurve& spline, double parameter) {
    const auto first = spline.knots.begin() + spline.degree;
    const auto last = spline.knots.begin() + static_cast<std::ptrdiff_t>(spline.points.size());
    // The last parameter belongs to the last span that has a length.
    auto above = std::upper_bound(first, last, parameter);
    if (above == last) above = std::lower_bound(first, last, *last);
    return static_cast<std::size_t>(above - spline.knots.begin()) - 1;
}

// Continuous second derivatives give, for each inner point, an equation between its slope and those of its
// neighbours: a band of three, solved from the top and back in one go.

/// Solves rows lower[i] x[i-1] + diagonal[i] x[i] + upper[i] x[i+1] = right[i]; the result stands in `right`.
void solveTridiagonal(const std::vector<double>& lower, std::vector<double> diagonal,
                      const std::vector<double>& upper, std::vector<Vector3>& right) {
    const std::size_t count = right.size();
    for (std::size_t i = 1; i < count; ++i) {
        const double factor = lower[i] / diagonal[i - 1];
        diagonal[i] -= factor * upper[i - 1];
        right[i] = right[i] - right[i - 1] * factor;
    }
    right[count - 1] = right[count - 1] / diagonal[count - 1];
    for (std::size_t i = count - 1; i-- > 0;) right[i] = (right[i] - right[i + 1] * upper[i]) / diagonal[i];
}

/// The same with lower[0] standing in the last column and upper[count - 1] in the first (Sherman and
/// Morrison).
void solveCyclic(const std::vector<double>& lower, std::vector<double> diagonal,
                 const std::vector<double>& upper, std::vector<Vector3>& right) {
    // The corners are taken out as a product of two vectors, the band is solved twice, the correction is
    // their ratio.
    const std::size_t last = right.size() - 1;
    const double corner = -diagonal[0];
    std::vector<Vector3> unit(right.size());
    unit[0].x = corner;
    unit[last].x = upper[last];
    diagonal[last] -= upper[last] * lower[0] / corner;
    diagonal[0] -= corner;
    solveTridiagonal(lower, diagonal, upper, right);
    solveTridiagonal(lower, diagonal, upper, unit);
    const double ratio = lower[0] / corner;
    const Vector3 factor = (right[0] + right[last] * ratio) / (1 + unit[0].x + unit[last].x * ratio);
    for (std::size_t i = 0; i <= last; ++i) right[i] = right[i] - factor * unit[i].x;
}

/// First derivatives at the points that make the second ones continuous; `steps` are the parameter lengths.
std::vector<Vector3> derivatives(const std::vector<Point3>& points, const std::vector<double>& steps,
                                 const Vector3& startTangent, const Vector3& endTangent, bool closed) {
    // In the row of a point, with h the steps to either side: h(i) m(i-1) + 2 (h(i-1) + h(i)) m(i) + h(i-1)
    // m(i+1) = 3 (h(i) slope(i-1) + h(i-1) slope(i)). A closed curve names its first point again at the end;
    // that one has no row of its own.
    const std::size_t rows = closed ? points.size() - 1 : points.size();
    std::vector<double> lower(rows), diagonal(rows), upper(rows);
    std::vector<Vector3> right(rows);
    const auto slope = [&](std::size_t i) { return (points[i + 1] - points[i]) / steps[i]; };
    for (std::size_t i = closed ? 0 : 1; i < (closed ? rows : rows - 1); ++i) {
        const std::size_t before = i == 0 ? rows - 1 : i - 1;
        lower[i] = steps[i];
        diagonal[i] = 2 * (steps[before] + steps[i]);
        upper[i] = steps[before];
        right[i] = (slope(before) * steps[i] + slope(i) * steps[before]) * 3;
    }
    if (closed) {
        solveCyclic(lower, diagonal, upper, right);
        right.push_back(right.front());
        return right;
    }
    // A given tangent is the slope at that end; a free end has no curvature, 2 m(0) + m(1) = 3 slope(0).
    const auto setEnd = [&](std::size_t row, double& neighbour, const Vector3& tangent,
                            const Vector3& chord) {
        const bool isFree = tangent == Vector3{};
        diagonal[row] = isFree ? 2 : 1;
        neighbour = isFree ? 1 : 0;
        right[row] = isFree ? chord * 3 : normalized(tangent);
    };
    setEnd(0, upper[0], startTangent, slope(0));
    setEnd(rows - 1, lower[rows - 1], endTangent, slope(rows - 2));
    solveTridiagonal(lower, diagonal, upper, right);
    return right;
}

}  // namespace

bool repairSpline(SplineCurve& spline) {
    // Files damaged or written by careless programs: what can't be is replaced by what most likely was meant.
    const auto& points = spline.points;
    if (points.size() < 2 || !std::all_of(points.begin(), points.end(), isFinite)) return false;
    if (spline.degree < 1 || spline.degree > kHighestDegree) spline.degree = 3;
    spline.degree = static_cast<int>(std::min<std::size_t>(spline.degree, points.size() - 1));

    const std::size_t degree = static_cast<std::size_t>(spline.degree);
    const std::vector<double>& knots = spline.knots;
    const bool usable = knots.size() == points.size() + degree + 1 &&
                        std::is_sorted(knots.begin(), knots.end()) && std::isfinite(knots.front()) &&
                        std::isfinite(knots.back()) && knots[degree] < knots[points.size()];
    if (!usable) {
        spline.knots.assign(degree + 1, 0.0);
        for (std::size_t i = 1; i < points.size() - degree; ++i)
            spline.knots.push_back(static_cast<double>(i));
        spline.knots.insert(spline.knots.end(), degree + 1, static_cast<double>(points.size() - degree));
    }
    const bool weighted = spline.weights.size() == points.size() &&
                          std::all_of(spline.weights.begin(), spline.weights.end(),
                                      [](double weight) { return std::isfinite(weight) && weight > 0; });
    if (!weighted) spline.weights.clear();
    return true;
}

SplinePoint evaluate(const SplineCurve& spline, double parameter) {
    const std::size_t degree = static_cast<std::size_t>(spline.degree);
    const std::vector<double>& knots = spline.knots;
    parameter = std::clamp(parameter, knots[degree], knots[spline.points.size()]);
    const std::size_t span = findSpan(spline, parameter);

    // De Boor: the points that the span depends on are blended level by level, each with its neighbour by
    // where the parameter lies between two knots, until one is left, the place. The two of the level before
    // it span the tangent. Rational curves run in homogeneous coordinates and are divided at the end, by the
    // quotient rule for the tangent.
    std::array<Homogeneous, kHighestDegree + 1> work;
    for (std::size_t j = 0; j <= degree; ++j) {
        const std::size_t index = span - degree + j;
        const double weight = spline.weights.empty() ? 1.0 : spline.weights[index];
        work[j] = {spline.points[index] * weight, weight};
    }
    Homogeneous slope;
    for (std::size_t level = 1; level <= degree; ++level) {
        if (level == degree) {
            const double factor = static_cast<double>(degree) / (knots[span + 1] - knots[span]);
            slope = {(work[degree].xyz - work[degree - 1].xyz) * factor,
                     (work[degree].w - work[degree - 1].w) * factor};
        }
        for (std::size_t j = degree; j >= level; --j) {
            const double from = knots[span - degree + j];
            const double to = knots[span + 1 + j - level];
            work[j] = blend(work[j - 1], work[j], (parameter - from) / (to - from));
        }
    }
    const Homogeneous& end = work[degree];
    const Point3 point = end.xyz / end.w;
    return {point, (slope.xyz - point * slope.w) / end.w};
}

std::vector<double> spanKnots(const SplineCurve& spline) {
    std::vector<double> result(spline.knots.begin() + spline.degree,
                               spline.knots.begin() + static_cast<std::ptrdiff_t>(spline.points.size()) + 1);
    result.erase(std::unique(result.begin(), result.end()), result.end());
    return result;
}

SplineCurve interpolate(std::vector<Point3> points, const Vector3& startTangent, const Vector3& endTangent,
                        bool closed) {
    if (closed && points.size() > 2) points.push_back(points.front());
    points.erase(std::unique(points.begin(), points.end()), points.end());
    closed = closed && points.size() > 3;
    SplineCurve result;
    result.points = points;
    if (points.size() < 2) return result;

    // Parameters by chord length: the curve runs at about one unit a unit, so that unit tangents fit.
    std::vector<double> steps;
    for (std::size_t i = 1; i < points.size(); ++i) steps.push_back(distance(points[i - 1], points[i]));
    const std::vector<Vector3> slopes = derivatives(points, steps, startTangent, endTangent, closed);

    // Each stretch becomes a Bezier piece: its ends and, a third of the step from each, the inner two.
    result.points = {points.front()};
    result.knots.assign(4, 0.0);
    double knot = 0;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const double third = steps[i] / 3;
        result.points.push_back(points[i] + slopes[i] * third);
        result.points.push_back(points[i + 1] - slopes[i + 1] * third);
        result.points.push_back(points[i + 1]);
        knot += steps[i];
        result.knots.insert(result.knots.end(), 3, knot);
    }
    result.knots.push_back(knot);
    return result;
}

}  // namespace geometry
