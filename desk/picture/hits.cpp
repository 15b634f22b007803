#include "desk/picture/hits.h"

#include "desk/picture/dashes.h"

#include <algorithm>
#include <cmath>

namespace picture {

namespace {

/// A canvas that looks at what is drawn. Bands count with their width.
class Probe : public Canvas {
  public:
    void setInk(const Ink& ink) override { width_ = ink.width; }
    void cover(std::span<const Point2> points, std::span<const std::uint32_t> ends) override {
        fill(points, ends);
    }
    void dot(const Point2& at) override {
        const Point2 points[] = {at, at};
        polyline(points);
    }
    void text(const PlacedText& text) override {
        std::vector<Point2> box;
        const auto corner = [&](double along, double up) {
            box.push_back({text.origin.x + text.along.x * along + text.up.x * up,
                           text.origin.y + text.along.y * along + text.up.y * up});
        };
        corner(0, -shapes::kDescent);
        corner(text.piece.width, -shapes::kDescent);
        corner(text.piece.width, 1);
        corner(0, 1);
        const std::uint32_t end = 4;
        fill(box, std::span(&end, 1));
    }
    void beginClip(std::span<const Point2>) override {}
    void endClip() override {}

  protected:
    double width_ = 0;
};

double distance(const Point2& from, const Point2& to, const Point2& place) {
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    const double square = x * x + y * y;
    double t = square > 0 ? ((place.x - from.x) * x + (place.y - from.y) * y) / square : 0;
    t = std::clamp(t, 0.0, 1.0);
    return std::hypot(from.x + x * t - place.x, from.y + y * t - place.y);
}

/// Even-odd, over all loops.
bool covers(std::span<const Point2> points, std::span<const std::uint32_t> ends, const Point2& place) {
    bool inside = false;
    std::uint32_t begin = 0;
    for (const std::uint32_t end : ends) {
        for (std::uint32_t i = begin; i < end; ++i) {
            const Point2& a = points[i];
            const Point2& b = points[i + 1 < end ? i + 1 : begin];
            if ((a.y > place.y) != (b.y > place.y) &&
                place.x < a.x + (b.x - a.x) * (place.y - a.y) / (b.y - a.y)) {
                inside = !inside;
            }
        }
        begin = end;
    }
    return inside;
}

/// Measures how near a place is to what is drawn.
class Distance : public Probe {
  public:
    explicit Distance(const Point2& place) : place_(place) {}

    void start() {
        nearest_ = Box::kFar;
        filled_ = false;
    }
    void polyline(std::span<const Point2> points) override {
        for (std::size_t i = 1; i < points.size(); ++i) {
            const double found = distance(points[i - 1], points[i], place_) - width_ / 2;
            nearest_ = std::min(nearest_, std::max(found, 0.0));
        }
    }
    void fill(std::span<const Point2> points, std::span<const std::uint32_t> ends) override {
        filled_ = filled_ || covers(points, ends, place_);
    }
    double nearest() const { return nearest_; }
    bool isFilled() const { return filled_; }

  private:
    Point2 place_;
    double nearest_ = Box::kFar;
    bool filled_ = false;
};

/// Tells whether what is drawn reaches into a frame, and whether all of it lies there.
class Reach : public Probe {
  public:
    explicit Reach(const Frame& frame) : frame_(frame) {}

    void start() { touches_ = leaves_ = false; }
    void polyline(std::span<const Point2> points) override {
        const Frame wide = frame_.widened(width_ / 2);
        for (const Point2& point : points) leaves_ = leaves_ || !frame_.contains(point);
        for (std::size_t i = 1; i < points.size() && !touches_; ++i) {
            Point2 from = points[i - 1];
            Point2 to = points[i];
            touches_ = clipLine(wide, from, to);
        }
    }
    void fill(std::span<const Point2> points, std::span<const std::uint32_t> ends) override {
        std::uint32_t begin = 0;
        const double width = width_;
        width_ = 0;
        for (const std::uint32_t end : ends) {
            polyline(points.subspan(begin, end - begin));
            if (end - begin > 2) polyline(std::vector<Point2>{points[end - 1], points[begin]});
            begin = end;
        }
        width_ = width;
        touches_ = touches_ || covers(points, ends, {frame_.left, frame_.top});
    }
    bool touches() const { return touches_; }
    bool leaves() const { return leaves_; }

  private:
    Frame frame_;
    bool touches_ = false;
    bool leaves_ = false;
};

RenderOptions optionsFor(const Frame& frame) {
    RenderOptions options;
    options.frame = frame;
    options.solidLines = true;
    return options;
}

}  // namespace

std::vector<Hit> HitFinder::at(BlockId space, const Projection& projection, const Point2& place,
                               double reach) {
    const Frame box = Frame{place.x, place.y, place.x, place.y}.widened(reach);
    Distance measure(place);
    Renderer renderer(picture_, measure, optionsFor(box));
    std::vector<Hit> hits;
    const DisplayList& list = picture_.list(space);
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        const Item& item = list.items[i];
        if (!item.isEndless && (item.bounds.empty() || !projection.apply(item.bounds).meets(box))) continue;
        measure.start();
        renderer.drawItem(space, i, projection);
        const bool isFill = measure.isFilled() && measure.nearest() > reach / 2;
        const double nearest = isFill ? reach / 2 : measure.nearest();
        if (nearest <= reach) hits.push_back({item.entity, nearest, isFill});
    }
    std::reverse(hits.begin(), hits.end());
    std::stable_sort(hits.begin(), hits.end(), [](const Hit& a, const Hit& b) {
        if (a.distance != b.distance) return a.distance < b.distance;
        return !a.isFill && b.isFill;
    });
    return hits;
}

std::vector<EntityId> HitFinder::within(BlockId space, const Projection& projection, const Frame& frame,
                                        bool crossing) {
    Reach reach(frame);
    std::vector<EntityId> found;
    const DisplayList& list = picture_.list(space);
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        const Item& item = list.items[i];
        const Frame where = item.bounds.empty() ? Frame{} : projection.apply(item.bounds);
        const bool inside = !where.empty() && frame.holds(where);
        if (inside && !item.isEndless) {
            found.push_back(item.entity);
            continue;
        }
        const bool meets = item.isEndless || (!where.empty() && where.meets(frame));
        if (!meets) continue;
        // For the question whether all lies within, nothing may be cut off.
        Renderer renderer(picture_, reach, optionsFor(crossing ? frame : where.widened(1)));
        reach.start();
        renderer.drawItem(space, i, projection);
        if (reach.touches() && (crossing || !reach.leaves())) found.push_back(item.entity);
    }
    return found;
}

}  // namespace picture
