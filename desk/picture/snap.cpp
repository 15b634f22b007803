#include "desk/picture/snap.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace picture {

namespace {

/// A straight or round piece near the cursor, in the plane.
struct Piece {
    Point2 from;
    Point2 to;
    bool isArc = false;
    Point2 center;
    Point2 cosine;
    Point2 sine;
    double start = 0;
    double end = 0;

    Point2 at(double t) const {
        return {center.x + cosine.x * std::cos(t) + sine.x * std::sin(t),
                center.y + cosine.y * std::cos(t) + sine.y * std::sin(t)};
    }
    bool isCircle() const {
        const double a = std::hypot(cosine.x, cosine.y);
        const double b = std::hypot(sine.x, sine.y);
        return std::abs(a - b) < 1e-9 * (a + b) &&
               std::abs(cosine.x * sine.x + cosine.y * sine.y) < 1e-9 * a * b;
    }
    double radius() const { return std::hypot(cosine.x, cosine.y); }
    /// Whether a direction from the centre leads onto the arc; `t` is its parameter.
    bool reaches(const Point2& point, double& t) const {
        const double plane = cosine.x * sine.y - cosine.y * sine.x;
        if (plane == 0) return false;
        const double x = point.x - center.x;
        const double y = point.y - center.y;
        t = std::atan2((cosine.x * y - cosine.y * x) / plane, (x * sine.y - y * sine.x) / plane);
        const double low = std::min(start, end);
        const double turn = 2 * geometry::kPi;
        t += turn * std::ceil((low - t - 1e-9) / turn);
        return t <= std::max(start, end) + 1e-9;
    }
};

double distance(const Point2& a, const Point2& b) { return std::hypot(a.x - b.x, a.y - b.y); }

/// Foot of the perpendicular on a line, as a parameter.
double footOn(const Piece& line, const Point2& from) {
    const double x = line.to.x - line.from.x;
    const double y = line.to.y - line.from.y;
    const double square = x * x + y * y;
    return square > 0 ? ((from.x - line.from.x) * x + (from.y - line.from.y) * y) / square : 0;
}

Point2 along(const Piece& line, double t) {
    return {line.from.x + (line.to.x - line.from.x) * t, line.from.y + (line.to.y - line.from.y) * t};
}

/// Gathers the candidates of what is drawn near the cursor. It draws in the space's own coordinates.
class SnapCanvas : public Canvas {
  public:
    SnapCanvas(const Point3& cursor, double reach, const std::optional<Point3>& base,
               const std::optional<Snap>& held)
        : cursor_{cursor.x, cursor.y}, reach_(reach), held_(held) {
        if (base) base_ = Point2{base->x, base->y};
    }

    void setInk(const Ink&) override {}
    void polyline(std::span<const Point2>) override {}
    void fill(std::span<const Point2> points, std::span<const std::uint32_t> ends) override {
        std::uint32_t begin = 0;
        for (const std::uint32_t end : ends) {
            // Corners of small areas; chords of round ones would be no corners of anything.
            if (end - begin <= 8) {
                for (std::uint32_t i = begin; i < end; ++i) offer(SnapKind::End, points[i]);
            }
            begin = end;
        }
    }
    void cover(std::span<const Point2> points, std::span<const std::uint32_t> ends) override {
        fill(points, ends);
    }
    void dot(const Point2& at) override { offer(SnapKind::End, at); }
    void text(const PlacedText& text) override { offer(SnapKind::Insertion, text.origin); }
    void beginClip(std::span<const Point2>) override {}
    void endClip() override {}
    void insertion(const Point2& at) override { offer(SnapKind::Insertion, at); }
    void curve(const Stroke& stroke, std::span<const Point3> own, const Projection& place) override {
        if (stroke.kind == Stroke::Kind::Arc) {
            addArc(own, place);
        } else if (stroke.kind == Stroke::Kind::Polyline) {
            addPolyline(own, place);
        } else {
            const Point2 from = place.apply(own[0]);
            const Point2 direction = place.applyDirection(own[1]);
            const double far = (distance(from, cursor_) + reach_ * 4) /
                               std::max(std::hypot(direction.x, direction.y), 1e-300);
            const double back = stroke.kind == Stroke::Kind::Ray ? 0 : far;
            addLine({from.x - direction.x * back, from.y - direction.y * back},
                    {from.x + direction.x * far, from.y + direction.y * far}, true);
        }
    }

    std::optional<Snap> result() {
        intersect();
        for (const Piece& piece : pieces_) offerOnPiece(piece);
        if (!best_) return std::nullopt;
        return Snap{*best_, {at_.x, at_.y, 0}};
    }

  private:
    void offer(SnapKind kind, const Point2& at) {
        double found = distance(at, cursor_);
        const bool isHeld =
            held_ && held_->kind == kind && distance({held_->at.x, held_->at.y}, at) < reach_ * 1e-6;
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
    bool isNear(const Point2& from, const Point2& to) const {
        const Frame box = Frame{std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x),
                                std::max(from.y, to.y)}
                              .widened(reach_ * kSnapHold);
        return box.contains(cursor_);
    }
    void addLine(const Point2& from, const Point2& to, bool isEndless) {
        if (!isNear(from, to)) return;
        if (!isEndless) {
            offer(SnapKind::End, from);
            offer(SnapKind::End, to);
            offer(SnapKind::Middle, {(from.x + to.x) / 2, (from.y + to.y) / 2});
        }
        if (pieces_.size() < kMostPieces) pieces_.push_back({from, to, false, {}, {}, {}, 0, 0});
    }
    void addPolyline(std::span<const Point3> own, const Projection& place) {
        // A curve in many chords has ends of its own only at its ends.
        const bool isCurve = own.size() > 24;
        for (std::size_t i = 1; i < own.size(); ++i) {
            addLine(place.apply(own[i - 1]), place.apply(own[i]), isCurve);
        }
        if (isCurve) {
            offer(SnapKind::End, place.apply(own.front()));
            offer(SnapKind::End, place.apply(own.back()));
        }
    }
    void addArc(std::span<const Point3> own, const Projection& place) {
        Piece arc;
        arc.isArc = true;
        arc.center = place.apply(own[0]);
        arc.cosine = place.applyDirection(own[1]);
        arc.sine = place.applyDirection(own[2]);
        arc.start = own[3].x;
        arc.end = own[3].y;
        offer(SnapKind::Centre, arc.center);
        const double turn = 2 * geometry::kPi;
        if (std::abs(arc.end - arc.start) < turn - 1e-9) {
            offer(SnapKind::End, arc.at(arc.start));
            offer(SnapKind::End, arc.at(arc.end));
            offer(SnapKind::Middle, arc.at((arc.start + arc.end) / 2));
        }
        // Quadrants are where the curve is level or upright.
        for (const bool level : {true, false}) {
            const double extreme =
                level ? std::atan2(arc.sine.y, arc.cosine.y) : std::atan2(arc.sine.x, arc.cosine.x);
            for (const double t : {extreme, extreme + geometry::kPi}) {
                double found = 0;
                if (arc.reaches(arc.at(t), found)) offer(SnapKind::Quadrant, arc.at(t));
            }
        }
        if (pieces_.size() < kMostPieces) pieces_.push_back(arc);
    }
    void intersect() {
        for (std::size_t i = 0; i < pieces_.size(); ++i) {
            for (std::size_t j = i + 1; j < pieces_.size(); ++j) intersect(pieces_[i], pieces_[j]);
        }
    }
    void intersect(const Piece& a, const Piece& b) {
        if (a.isArc && !b.isArc) return intersect(b, a);
        if (!b.isArc) return intersectLines(a, b);
        if (!b.isCircle()) return;
        if (!a.isArc) return intersectCircle(a, b);
        if (!a.isCircle()) return;
        // Two circles meet on their radical line.
        const double apart = distance(a.center, b.center);
        if (!(apart > 0)) return;
        const double r = a.radius();
        const double s = b.radius();
        const double d = (r * r - s * s + apart * apart) / (2 * apart);
        const Point2 unit{(b.center.x - a.center.x) / apart, (b.center.y - a.center.y) / apart};
        const Point2 foot{a.center.x + unit.x * d, a.center.y + unit.y * d};
        const Piece line{{foot.x - unit.y * r, foot.y + unit.x * r},
                         {foot.x + unit.y * r, foot.y - unit.x * r},
                         false,
                         {},
                         {},
                         {},
                         0,
                         0};
        double t = 0;
        for (const Point2& point : onCircle(line, a)) {
            if (a.reaches(point, t) && b.reaches(point, t)) offer(SnapKind::Intersection, point);
        }
    }
    void intersectLines(const Piece& a, const Piece& b) {
        const Point2 u{a.to.x - a.from.x, a.to.y - a.from.y};
        const Point2 v{b.to.x - b.from.x, b.to.y - b.from.y};
        const double plane = u.x * v.y - u.y * v.x;
        if (std::abs(plane) < 1e-12 * std::hypot(u.x, u.y) * std::hypot(v.x, v.y)) return;
        const double x = b.from.x - a.from.x;
        const double y = b.from.y - a.from.y;
        const double t = (x * v.y - y * v.x) / plane;
        const double s = (x * u.y - y * u.x) / plane;
        constexpr double kEdge = 1e-9;
        if (t < -kEdge || t > 1 + kEdge || s < -kEdge || s > 1 + kEdge) return;
        // Where two lines end in each other, that is an end.
        const bool isEnd = (t < kEdge || t > 1 - kEdge) && (s < kEdge || s > 1 - kEdge);
        if (!isEnd) offer(SnapKind::Intersection, along(a, t));
    }
    static std::vector<Point2> onCircle(const Piece& line, const Piece& circle) {
        const Point2 foot = along(line, footOn(line, circle.center));
        const double r = circle.radius();
        const double d = distance(foot, circle.center);
        const double size = distance(line.from, line.to);
        if (d > r || !(size > 0)) return {};
        const double half = std::sqrt(r * r - d * d) / size;
        const double x = (line.to.x - line.from.x) * half;
        const double y = (line.to.y - line.from.y) * half;
        return {{foot.x - x, foot.y - y}, {foot.x + x, foot.y + y}};
    }
    void intersectCircle(const Piece& line, const Piece& circle) {
        for (const Point2& point : onCircle(line, circle)) {
            const double t = footOn(line, point);
            double turn = 0;
            if (t >= -1e-9 && t <= 1 + 1e-9 && circle.reaches(point, turn))
                offer(SnapKind::Intersection, point);
        }
    }
    /// What lies on a line at the cursor: offered last.
    void offerOnPiece(const Piece& piece) {
        if (!piece.isArc) {
            if (base_) {
                const double t = footOn(piece, *base_);
                if (t >= 0 && t <= 1) offer(SnapKind::Perpendicular, along(piece, t));
            }
            offer(SnapKind::Nearest, along(piece, std::clamp(footOn(piece, cursor_), 0.0, 1.0)));
            return;
        }
        double t = 0;
        if (base_ && piece.isCircle() && piece.reaches(*base_, t))
            offer(SnapKind::Perpendicular, piece.at(t));
        if (piece.reaches(cursor_, t)) offer(SnapKind::Nearest, piece.at(t));
    }

    static constexpr std::size_t kMostPieces = 200;
    Point2 cursor_;
    double reach_;
    std::optional<Point2> base_;
    std::optional<Snap> held_;
    std::vector<Piece> pieces_;
    std::optional<SnapKind> best_;
    Point2 at_;
    double distance_ = 0;
};

}  // namespace

std::optional<Snap> findSnap(Picture& picture, BlockId space, const Point3& cursor, double reach,
                             const std::optional<Point3>& base, const std::optional<Snap>& held) {
    Projection plain;
    plain.toY = {0, 1, 0};
    SnapCanvas canvas(cursor, reach, base, held);
    RenderOptions options;
    options.frame = Frame{cursor.x, cursor.y, cursor.x, cursor.y}.widened(reach * kSnapHold);
    options.smallest = 0;
    options.legible = 0;
    options.solidLines = true;
    Renderer renderer(picture, canvas, options);
    renderer.drawItems(space, plain, 0, [] { return false; });
    return canvas.result();
}

}  // namespace picture
