#include "desk/geometry/curve.h"

#include "desk/geometry/spline.h"

#include <algorithm>

// Three kinds of curves suffice for all that a plan draws, and each maps onto its own kind under any affine
// transform: a line onto a line; an arc, kept as a centre and two radius vectors (conjugate semi-diameters),
// onto an arc, which a circle with a radius and angles wouldn't under uneven scales; a B-spline by its
// control points, weights untouched. So a block's curves are read once and placed by transforms, mirrored,
// sheared or in a slant plane. Picks look at the plan from above: distances and rectangles take X and Y
// alone.

namespace geometry {

namespace {

constexpr double kFullTurn = 2 * kPi;

// An arc's coordinate along any axis is c + a cos t + b sin t, a cosine of amplitude hypot(a, b) that peaks
// at atan2(b, a). From that come its extremes, for the box, and where it crosses an upright or level line.

/// Moves `t` by full turns into the range of the arc. Returns false where no turn does.
bool inRange(const ArcCurve& arc, double& t) {
    // An arc may run clockwise, its end below its start: a negative bulge does, and a reversed arc.
    const double low = std::min(arc.start, arc.end);
    t += kFullTurn * std::ceil((low - t) / kFullTurn);
    return t <= std::max(arc.start, arc.end);
}

void addArcBounds(const ArcCurve& arc, Box& box) {
    // The box reaches to an end or to an extreme that lies on the arc.
    box.add(arc.at(arc.start));
    box.add(arc.at(arc.end));
    const auto addExtremes = [&](double cosine, double sine) {
        const double extreme = std::atan2(sine, cosine);
        for (double t : {extreme, extreme + kPi}) {
            if (inRange(arc, t)) box.add(arc.at(t));
        }
    };
    addExtremes(arc.cosine.x, arc.sine.x);
    addExtremes(arc.cosine.y, arc.sine.y);
    addExtremes(arc.cosine.z, arc.sine.z);
}

/// Places on the arc whose coordinate, center + cosine cos t + sine sin t, is `value`.
template <typename Visit>
bool anyCrossing(const ArcCurve& arc, double center, double cosine, double sine, double value,
                 Visit&& visit) {
    // Solves radius cos(t - middle) = value - center: no place where the value is out of reach, else two
    // that lie evenly about the peak.
    const double radius = std::hypot(cosine, sine);
    if (radius == 0 || std::abs(value - center) > radius) return false;
    const double middle = std::atan2(sine, cosine);
    const double side = std::acos((value - center) / radius);
    for (double t : {middle + side, middle - side}) {
        if (inRange(arc, t) && visit(arc.at(t))) return true;
    }
    return false;
}

bool arcTouches(const ArcCurve& arc, const Rectangle& box) {
    // Either an end lies inside, or the arc comes in across one of the four sides.
    if (box.contains(arc.at(arc.start)) || box.contains(arc.at(arc.end))) return true;
    // A crossing counts where it lies on the side itself and not on what the side goes on to.
    const auto onUpright = [&](const Point3& p) { return p.y >= box.low.y && p.y <= box.high.y; };
    const auto onLevel = [&](const Point3& p) { return p.x >= box.low.x && p.x <= box.high.x; };
    const auto& [center, cosine, sine, start, end] = arc;
    return anyCrossing(arc, center.x, cosine.x, sine.x, box.low.x, onUpright) ||
           anyCrossing(arc, center.x, cosine.x, sine.x, box.high.x, onUpright) ||
           anyCrossing(arc, center.y, cosine.y, sine.y, box.low.y, onLevel) ||
           anyCrossing(arc, center.y, cosine.y, sine.y, box.high.y, onLevel);
}

/// Liang and Barsky's clipping: the part of the line that is left after the four borders isn't empty.
bool lineTouches(const LineCurve& line, const Rectangle& box) {
    double from = 0;
    double to = 1;
    // Inside of a pair of borders the line has parameters between a and b, in either order; one that runs
    // along them is inside all its way or nowhere.
    const auto clip = [&](double start, double step, double low, double high) {
        if (step == 0) return start >= low && start <= high;
        const double a = (low - start) / step;
        const double b = (high - start) / step;
        from = std::max(from, std::min(a, b));
        to = std::min(to, std::max(a, b));
        return from <= to;
    };
    const Vector3 step = line.end - line.start;
    return clip(line.start.x, step.x, box.low.x, box.high.x) &&
           clip(line.start.y, step.y, box.low.y, box.high.y);
}

double lineDistance(const LineCurve& line, const Point3& point) {
    // The foot of the perpendicular, or the nearer end where it falls beside the line.
    const Vector3 step = line.end - line.start;
    const double square = step.x * step.x + step.y * step.y;
    double t = 0;
    if (square > 0) {
        t = ((point.x - line.start.x) * step.x + (point.y - line.start.y) * step.y) / square;
        t = std::clamp(t, 0.0, 1.0);
    }
    return distanceXY(line.start + step * t, point);
}

/// Parameters in small steps along a curve, ends included.
std::vector<double> sampleParameters(const ArcCurve& arc, int fineness = 1) {
    // 64 to a turn leave a circle's chord short of it by a thousandth of the radius. Damaged angles may run
    // to any number of turns, so the count has a bound.
    const double sweep = arc.end - arc.start;
    const double turns = std::abs(sweep) / kFullTurn;
    const int count = fineness * (turns <= 16 ? std::max(2, static_cast<int>(std::ceil(turns * 64))) : 1024);
    std::vector<double> result;
    for (int i = 0; i <= count; ++i) result.push_back(arc.start + sweep * i / count);
    return result;
}

std::vector<double> sampleParameters(const SplineCurve& spline, int fineness = 1) {
    // Between two knots the curve is one polynomial, which bends no more often than its degree; knots that
    // repeat leave no span between them. Degree 1 is its own chords.
    const std::vector<double> knots = spanKnots(spline);
    const int count = spline.degree == 1 ? 1 : std::max(1, 4 * spline.degree * fineness);
    std::vector<double> result;
    if (knots.empty()) return result;
    result.push_back(knots.front());
    for (std::size_t span = 0; span + 1 < knots.size(); ++span) {
        for (int i = 1; i <= count; ++i) {
            result.push_back(knots[span] + (knots[span + 1] - knots[span]) * i / count);
        }
    }
    return result;
}

/// The least distance by samples, refined between the neighbours of the nearest one by golden section.
template <typename At>
double sampledDistance(const std::vector<double>& parameters, const Point3& point, At&& at) {
    // A damaged spline has no parameters and is far from everything.
    double best = Box::kFar;
    std::size_t nearest = 0;
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        const double found = distanceXY(at(parameters[i]), point);
        if (found < best) {
            best = found;
            nearest = i;
        }
    }
    if (parameters.size() < 2) return best;
    // The distance has one minimum between the neighbours of the best sample, if the samples are as close as
    // they are. Each step keeps 0.618 of the range; 48 of them leave 1e-10 of it.
    constexpr double kGolden = 0.61803398874989485;
    double low = parameters[nearest == 0 ? 0 : nearest - 1];
    double high = parameters[std::min(nearest + 1, parameters.size() - 1)];
    for (int step = 0; step < 48; ++step) {
        const double a = high - (high - low) * kGolden;
        const double b = low + (high - low) * kGolden;
        if (distanceXY(at(a), point) < distanceXY(at(b), point)) {
            high = b;
        } else {
            low = a;
        }
    }
    return std::min(best, distanceXY(at((low + high) / 2), point));
}

double arcDistance(const ArcCurve& arc, const Point3& point) {
    // Seen from above a circle may be an ellipse, whose distance has no closed form of use: that one is
    // sampled.
    // It is a circle if the radius vectors, without their Z, are square and of one length.
    const Vector3 u{arc.cosine.x, arc.cosine.y, 0};
    const Vector3 v{arc.sine.x, arc.sine.y, 0};
    const double radius = length(u);
    const double slack = 1e-12 * radius * radius;
    const bool circle = std::abs(dot(u, v)) <= slack && std::abs(dot(v, v) - radius * radius) <= slack;
    if (!circle) {
        return sampledDistance(sampleParameters(arc), point, [&](double t) { return arc.at(t); });
    }
    // In the angle of the point the circle is nearest; where the arc leaves that out, an end is.
    const Vector3 arm = point - arc.center;
    double t = std::atan2(dot(arm, v), dot(arm, u));
    if (inRange(arc, t)) return std::abs(distanceXY(point, arc.center) - radius);
    return std::min(distanceXY(point, arc.at(arc.start)), distanceXY(point, arc.at(arc.end)));
}

double splineDistance(const SplineCurve& spline, const Point3& point) {
    return sampledDistance(sampleParameters(spline), point,
                           [&](double t) { return evaluate(spline, t).point; });
}

}  // namespace

void Box::add(const Point3& point) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
}

void Box::add(const Box& box) {
    if (box.empty()) return;
    add(box.low);
    add(box.high);
}

Box Box::transformed(const Transform& transform) const {
    Box result;
    if (empty()) return result;
    // The box about the eight moved corners: larger than what is inside needs when it is turned, never less.
    for (int corner = 0; corner < 8; ++corner) {
        result.add(transform.apply({(corner & 1) != 0 ? high.x : low.x, (corner & 2) != 0 ? high.y : low.y,
                                    (corner & 4) != 0 ? high.z : low.z}));
    }
    return result;
}

double Box::distanceXY(const Point3& point) const {
    const double x = std::max({low.x - point.x, 0.0, point.x - high.x});
    const double y = std::max({low.y - point.y, 0.0, point.y - high.y});
    return std::hypot(x, y);
}

Rectangle::Rectangle(const Point3& corner, const Point3& opposite)
    : low{std::min(corner.x, opposite.x), std::min(corner.y, opposite.y), 0},
      high{std::max(corner.x, opposite.x), std::max(corner.y, opposite.y), 0} {}

Point3 startPoint(const Curve& curve) {
    if (const auto* line = std::get_if<LineCurve>(&curve)) return line->start;
    if (const auto* arc = std::get_if<ArcCurve>(&curve)) return arc->at(arc->start);
    // A spline that isn't clamped doesn't begin at its first control point.
    const auto& spline = std::get<SplineCurve>(curve);
    return evaluate(spline, -Box::kFar).point;
}

Point3 endPoint(const Curve& curve) {
    if (const auto* line = std::get_if<LineCurve>(&curve)) return line->end;
    if (const auto* arc = std::get_if<ArcCurve>(&curve)) return arc->at(arc->end);
    const auto& spline = std::get<SplineCurve>(curve);
    return evaluate(spline, Box::kFar).point;
}

Curve transformed(const Curve& curve, const Transform& transform) {
    Curve result = curve;
    if (auto* line = std::get_if<LineCurve>(&result)) {
        line->start = transform.apply(line->start);
        line->end = transform.apply(line->end);
    } else if (auto* arc = std::get_if<ArcCurve>(&result)) {
        arc->center = transform.apply(arc->center);
        arc->cosine = transform.applyDirection(arc->cosine);
        arc->sine = transform.applyDirection(arc->sine);
    } else {
        for (Point3& point : std::get<SplineCurve>(result).points) point = transform.apply(point);
    }
    return result;
}

Curve reversed(const Curve& curve) {
    Curve result = curve;
    if (auto* line = std::get_if<LineCurve>(&result)) {
        std::swap(line->start, line->end);
    } else if (auto* arc = std::get_if<ArcCurve>(&result)) {
        std::swap(arc->start, arc->end);
    } else {
        auto& spline = std::get<SplineCurve>(result);
        std::reverse(spline.points.begin(), spline.points.end());
        std::reverse(spline.weights.begin(), spline.weights.end());
        std::reverse(spline.knots.begin(), spline.knots.end());
        // Reversed knots would fall; negated they rise again, in the same steps.
        for (double& knot : spline.knots) knot = -knot;
    }
    return result;
}

void addBounds(const Curve& curve, Box& box) {
    if (const auto* line = std::get_if<LineCurve>(&curve)) {
        box.add(line->start);
        box.add(line->end);
    } else if (const auto* arc = std::get_if<ArcCurve>(&curve)) {
        addArcBounds(*arc, box);
    } else {
        // A spline stays inside the hull of its control points.
        for (const Point3& point : std::get<SplineCurve>(curve).points) box.add(point);
    }
}

Curve bulgeCurve(const Point3& start, const Point3& end, double bulge) {
    // DXF Reference, "LWPOLYLINE": group 42 is the tangent of a quarter of the included angle. With s the
    // chord and b the bulge the sagitta is b s/2, the radius s (1 + b^2) / 4|b|, and the centre lies s (1 -
    // b^2) / 4b to the left of the chord's middle, on the other side where it is negative.
    const Vector3 chord{end.x - start.x, end.y - start.y, 0};
    const double size = length(chord);
    // So flat an arc can't be told from its chord; its radius would only cost digits.
    if (size == 0 || std::abs(bulge) < 1e-9 || !std::isfinite(bulge)) return LineCurve{start, end};
    const Vector3 left = Vector3{-chord.y, chord.x, 0} / size;
    ArcCurve arc;
    arc.center = start + chord / 2 + left * (size * (1 - bulge * bulge) / (4 * bulge));
    const double radius = size * (1 + bulge * bulge) / (4 * std::abs(bulge));
    // A positive bulge runs anticlockwise, by four times the angle whose tangent it is; a negative one back.
    arc.cosine = {radius, 0, 0};
    arc.sine = {0, radius, 0};
    arc.start = std::atan2(start.y - arc.center.y, start.x - arc.center.x);
    arc.end = arc.start + 4 * std::atan(bulge);
    return arc;
}

void flatten(const Curve& curve, std::vector<Point3>& points, int fineness) {
    if (const auto* line = std::get_if<LineCurve>(&curve)) {
        points.push_back(line->start);
        points.push_back(line->end);
    } else if (const auto* arc = std::get_if<ArcCurve>(&curve)) {
        for (double t : sampleParameters(*arc, fineness)) points.push_back(arc->at(t));
    } else {
        const auto& spline = std::get<SplineCurve>(curve);
        for (double t : sampleParameters(spline, fineness)) points.push_back(evaluate(spline, t).point);
    }
}

double distanceXY(const Curve& curve, const Point3& point) {
    if (const auto* line = std::get_if<LineCurve>(&curve)) return lineDistance(*line, point);
    if (const auto* arc = std::get_if<ArcCurve>(&curve)) return arcDistance(*arc, point);
    return splineDistance(std::get<SplineCurve>(curve), point);
}

bool touches(const Curve& curve, const Rectangle& rectangle) {
    if (const auto* line = std::get_if<LineCurve>(&curve)) return lineTouches(*line, rectangle);
    if (const auto* arc = std::get_if<ArcCurve>(&curve)) return arcTouches(*arc, rectangle);
    // A spline by its chords: a window is drawn by hand and doesn't ask for what they miss.
    std::vector<Point3> points;
    flatten(curve, points);
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (lineTouches({points[i - 1], points[i]}, rectangle)) return true;
    }
    return false;
}

}  // namespace geometry
