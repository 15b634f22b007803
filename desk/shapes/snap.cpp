#include "desk/shapes/snap.h"

#include "desk/shapes/geometry.h"
#include "desk/shapes/hit_test.h"
#include "desk/shapes/pick.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace shapes {

namespace {

Point3 flat(const Point3& point) { return {point.x, point.y, 0}; }

/// A round piece in the plane.
struct Arc {
    Point3 center;
    Vector3 cosine;
    Vector3 sine;
    double start = 0;
    double end = 0;

    Point3 at(double t) const { return center + cosine * std::cos(t) + sine * std::sin(t); }
    bool isCircle() const {
        const double a = length(cosine);
        const double b = length(sine);
        return std::abs(a - b) < 1e-9 * (a + b) && std::abs(dot(cosine, sine)) < 1e-9 * a * b;
    }
    double radius() const { return length(cosine); }
    /// Whether a direction from the centre leads onto the arc; `t` is its parameter.
    bool reaches(const Point3& point, double& t) const {
        const double plane = crossXY(cosine, sine);
        if (plane == 0) return false;
        const Vector3 away = point - center;
        t = std::atan2(crossXY(cosine, away) / plane, crossXY(away, sine) / plane);
        const double low = std::min(start, end);
        const double turn = 2 * kPi;
        t += turn * std::ceil((low - t - 1e-9) / turn);
        return t <= std::max(start, end) + 1e-9;
    }
};

/// A straight or a round piece near the cursor.
struct Piece {
    Point3 from;
    Point3 to;
    std::optional<Arc> arc;
};

/// Foot of the perpendicular on a line, as a parameter.
double footOn(const Piece& line, const Point3& from) {
    const Vector3 along = line.to - line.from;
    const double square = dot(along, along);
    return square > 0 ? dot(from - line.from, along) / square : 0;
}

Point3 along(const Piece& line, double t) { return lerp(line.from, line.to, t); }

/// Gathers the candidates of what is drawn near the cursor.
class SnapFinder {
  public:
    SnapFinder(const Point3& cursor, double reach, const std::optional<Point3>& base,
               const std::optional<Snap>& held)
        : cursor_(flat(cursor)), reach_(reach), held_(held) {
        if (base) base_ = flat(*base);
    }

    void add(const Geometry& geometry, const Transform& place) {
        for (const Stroke& stroke : geometry.strokes) addCurve(transformed(stroke.curve, place));
        for (const EndlessLine& line : geometry.endless) {
            addLine(stretchNear(line, place, cursor_, reach_ * 4), true);
        }
        for (const Fill& fill : geometry.fills) {
            for (const Path& loop : fill.loops) addCorners(loop, place);
        }
        for (const Point3& point : geometry.points) offer(SnapKind::End, place.apply(point));
        for (const Point3& point : geometry.insertions) offer(SnapKind::Insertion, place.apply(point));
    }

    std::optional<Snap> result() {
        intersect();
        for (const Piece& piece : pieces_) offerOnPiece(piece);
        if (!best_) return std::nullopt;
        return Snap{*best_, at_};
    }

  private:
    void offer(SnapKind kind, const Point3& place) {
        const Point3 at = flat(place);
        double found = distance(at, cursor_);
        const bool isHeld = held_ && held_->kind == kind && distance(held_->at, at) < reach_ * 1e-6;
        if (found > (isHeld ? reach_ * kSnapHold : reach_)) return;
        // The one that is shown loses only to a better kind or one clearly nearer.
        if (isHeld) found /= kSnapHold;
        if (best_ && !wins(kind, found)) return;
        best_ = kind;
        at_ = at;
        distance_ = found;
    }
    bool wins(SnapKind kind, double found) const {
        if (rank(kind) != rank(*best_)) return rank(kind) < rank(*best_);
        const bool isTie = std::abs(found - distance_) < reach_ * 1e-9;
        return isTie ? kind < *best_ : found < distance_;
    }
    /// Ends, crossings and insertion points vie by distance, as do middles, centres and quadrants.
    static int rank(SnapKind kind) {
        switch (kind) {
            case SnapKind::End:
            case SnapKind::Intersection:
            case SnapKind::Insertion:
                return 0;
            case SnapKind::Middle:
            case SnapKind::Centre:
            case SnapKind::Quadrant:
                return 1;
            case SnapKind::Perpendicular:
                return 2;
            default:
                return 3;
        }
    }
    bool isNear(const Point3& from, const Point3& to) const {
        Box box;
        box.add(from);
        box.add(to);
        return box.distanceXY(cursor_) <= reach_ * kSnapHold;
    }
    void addCurve(const Curve& curve) {
        if (const auto* line = std::get_if<LineCurve>(&curve)) {
            addLine(*line, false);
        } else if (const auto* arc = std::get_if<ArcCurve>(&curve)) {
            addArc(*arc);
        } else {
            // Its chords are no lines with ends of their own.
            std::vector<Point3> points;
            flatten(curve, points);
            for (std::size_t i = 1; i < points.size(); ++i) addLine({points[i - 1], points[i]}, true);
            offer(SnapKind::End, points.front());
            offer(SnapKind::End, points.back());
        }
    }
    void addLine(const LineCurve& line, bool isPartOfMore) {
        Piece piece{flat(line.start), flat(line.end), std::nullopt};
        if (!isNear(piece.from, piece.to)) return;
        if (!isPartOfMore) {
            offer(SnapKind::End, piece.from);
            offer(SnapKind::End, piece.to);
            offer(SnapKind::Middle, lerp(piece.from, piece.to, 0.5));
        }
        if (pieces_.size() < kMostPieces) pieces_.push_back(piece);
    }
    void addCorners(const Path& loop, const Transform& place) {
        // Corners of small areas; a border of many stretches is a curve.
        constexpr std::size_t kMostCorners = 8;
        if (loop.size() > kMostCorners) return;
        for (const Curve& curve : loop) offer(SnapKind::End, place.apply(startPoint(curve)));
    }
    void addArc(const ArcCurve& curve) {
        const Arc arc{flat(curve.center), flat(curve.cosine), flat(curve.sine), curve.start, curve.end};
        offer(SnapKind::Centre, arc.center);
        const double turn = 2 * kPi;
        if (std::abs(arc.end - arc.start) < turn - 1e-9) {
            offer(SnapKind::End, arc.at(arc.start));
            offer(SnapKind::End, arc.at(arc.end));
            offer(SnapKind::Middle, arc.at((arc.start + arc.end) / 2));
        }
        // Quadrants are where the curve is level or upright.
        for (const bool level : {true, false}) {
            const double extreme =
                level ? std::atan2(arc.sine.y, arc.cosine.y) : std::atan2(arc.sine.x, arc.cosine.x);
            for (const double t : {extreme, extreme + kPi}) {
                double found = 0;
                if (arc.reaches(arc.at(t), found)) offer(SnapKind::Quadrant, arc.at(t));
            }
        }
        if (pieces_.size() < kMostPieces) pieces_.push_back({{}, {}, arc});
    }
    void intersect() {
        for (std::size_t i = 0; i < pieces_.size(); ++i) {
            for (std::size_t j = i + 1; j < pieces_.size(); ++j) intersect(pieces_[i], pieces_[j]);
        }
    }
    void intersect(const Piece& a, const Piece& b) {
        if (a.arc && !b.arc) return intersect(b, a);
        if (!b.arc) return intersectLines(a, b);
        if (!b.arc->isCircle()) return;
        if (!a.arc) return intersectCircle(a, *b.arc);
        if (a.arc->isCircle()) intersectCircles(*a.arc, *b.arc);
    }
    void intersectCircles(const Arc& a, const Arc& b) {
        // Two circles meet on their radical line.
        const double apart = distance(a.center, b.center);
        if (!(apart > 0)) return;
        const double r = a.radius();
        const double s = b.radius();
        const double d = (r * r - s * s + apart * apart) / (2 * apart);
        const Vector3 unit = (b.center - a.center) / apart;
        const Point3 foot = a.center + unit * d;
        const Vector3 side{-unit.y * r, unit.x * r, 0};
        double t = 0;
        for (const Point3& point : onCircle({foot + side, foot - side, std::nullopt}, a)) {
            if (a.reaches(point, t) && b.reaches(point, t)) offer(SnapKind::Intersection, point);
        }
    }
    void intersectLines(const Piece& a, const Piece& b) {
        const Vector3 u = a.to - a.from;
        const Vector3 v = b.to - b.from;
        const double plane = crossXY(u, v);
        if (std::abs(plane) < 1e-12 * length(u) * length(v)) return;
        const double t = crossXY(b.from - a.from, v) / plane;
        const double s = crossXY(b.from - a.from, u) / plane;
        constexpr double kEdge = 1e-9;
        if (t < -kEdge || t > 1 + kEdge || s < -kEdge || s > 1 + kEdge) return;
        // Where two lines end in each other, that is an end.
        const bool isEnd = (t < kEdge || t > 1 - kEdge) && (s < kEdge || s > 1 - kEdge);
        if (!isEnd) offer(SnapKind::Intersection, along(a, t));
    }
    static std::vector<Point3> onCircle(const Piece& line, const Arc& circle) {
        const Point3 foot = along(line, footOn(line, circle.center));
        const double r = circle.radius();
        const double d = distance(foot, circle.center);
        const double size = distance(line.from, line.to);
        if (d > r || !(size > 0)) return {};
        const double half = std::sqrt(r * r - d * d) / size;
        const Vector3 chord = (line.to - line.from) * half;
        return {foot - chord, foot + chord};
    }
    void intersectCircle(const Piece& line, const Arc& circle) {
        for (const Point3& point : onCircle(line, circle)) {
            const double t = footOn(line, point);
            double turn = 0;
            if (t >= -1e-9 && t <= 1 + 1e-9 && circle.reaches(point, turn))
                offer(SnapKind::Intersection, point);
        }
    }
    /// What lies on a line at the cursor: offered last.
    void offerOnPiece(const Piece& piece) {
        if (!piece.arc) {
            if (base_) {
                const double t = footOn(piece, *base_);
                if (t >= 0 && t <= 1) offer(SnapKind::Perpendicular, along(piece, t));
            }
            offer(SnapKind::Nearest, along(piece, std::clamp(footOn(piece, cursor_), 0.0, 1.0)));
            return;
        }
        double t = 0;
        const Arc& arc = *piece.arc;
        if (base_ && arc.isCircle() && arc.reaches(*base_, t)) offer(SnapKind::Perpendicular, arc.at(t));
        if (arc.reaches(cursor_, t)) offer(SnapKind::Nearest, arc.at(t));
    }

    static constexpr std::size_t kMostPieces = 200;
    Point3 cursor_;
    double reach_;
    std::optional<Point3> base_;
    std::optional<Snap> held_;
    std::vector<Piece> pieces_;
    std::optional<SnapKind> best_;
    Point3 at_;
    double distance_ = 0;
};

}  // namespace

std::optional<Snap> findSnap(const Drawing& drawing, BlockId space, const Point3& cursor, double reach,
                             const std::optional<Point3>& base, const std::optional<Snap>& held) {
    SnapFinder finder(cursor, reach, base, held);
    const Vector3 far{reach * kSnapHold, reach * kSnapHold, 0};
    forEachGeometryNear(drawing, space, {cursor - far, cursor + far},
                        [&](EntityId, const Geometry& geometry, const Transform& place) {
                            finder.add(geometry, place);
                            return true;
                        });
    return finder.result();
}

}  // namespace shapes
