#include "desk/picture/dashes.h"

#include <cmath>

namespace picture {

namespace {

Point2 between(const Point2& a, const Point2& b, double t) {
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

/// Liang and Barsky's clipping, as parameters along the line.
bool clipRange(const Frame& frame, const Point2& from, const Point2& to, double& begin, double& end) {
    begin = 0;
    end = 1;
    const auto side = [&](double start, double step, double low, double high) {
        if (step == 0) return start >= low && start <= high;
        const double a = (low - start) / step;
        const double b = (high - start) / step;
        begin = std::max(begin, std::min(a, b));
        end = std::min(end, std::max(a, b));
        return begin <= end;
    };
    return side(from.x, to.x - from.x, frame.left, frame.right) &&
           side(from.y, to.y - from.y, frame.top, frame.bottom);
}

/// Walks along a polyline and gives out its dashes.
class DashWalk {
  public:
    DashWalk(const LineType& type, double scale, double length,
             const std::function<void(std::span<const Point2>)>& emit)
        : type_(type), scale_(scale), emit_(emit) {
        const double period = type.length * scale;
        const double first = std::max(type.elements.front(), 0.0) * scale;
        const double repeats = std::floor((length - first) / period);
        slack_ = (length - first - repeats * period) / 2;
        rest_ = first + slack_;
        ending_ = length - first - slack_;
    }

    /// The polyline goes on to `to`; between `begin` and `end` (of 0 to 1) it is seen.
    void line(const Point2& from, const Point2& to, double begin, double end) {
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        if (length == 0) return;
        double at = 0;
        if (begin > 0) {
            flush();
            skip(begin * length);
            at = begin * length;
        }
        const double stop = end * length;
        while (at < stop) {
            const double step = std::min(rest_, stop - at);
            if (isDash()) {
                if (run_.empty()) run_.push_back(between(from, to, at / length));
                run_.push_back(between(from, to, (at + step) / length));
            }
            at += step;
            advance(step);
        }
        if (end < 1) {
            flush();
            skip(length - at);
        }
    }
    void flush() {
        if (run_.size() > 1) emit_(run_);
        run_.clear();
    }

  private:
    bool isDash() const { return isEnding_ || type_.elements[element_] >= 0; }
    void advance(double step) {
        walked_ += step;
        rest_ -= step;
        while (rest_ <= 1e-9) {
            // The last dash reaches to the end, however long it becomes.
            isEnding_ = walked_ >= ending_ - 1e-6;
            if (isEnding_) {
                rest_ = Box::kFar;
                return;
            }
            flush();
            element_ = (element_ + 1) % type_.elements.size();
            // A dot is a dash of one device unit.
            const double size = std::abs(type_.elements[element_]) * scale_;
            rest_ = size > 0 ? size : std::min(1.0, type_.length * scale_ / 4);
        }
    }
    /// Over a stretch that isn't seen: whole periods at once.
    void skip(double length) {
        const double period = type_.length * scale_;
        const double whole = std::floor(length / period) * period;
        if (whole > 0 && walked_ + whole < ending_) {
            walked_ += whole;
            length -= whole;
        }
        while (length > 0) {
            const double step = std::min(rest_, length);
            advance(step);
            length -= step;
        }
        run_.clear();
    }

    const LineType& type_;
    double scale_;
    const std::function<void(std::span<const Point2>)>& emit_;
    double slack_ = 0;
    double ending_ = 0;
    double rest_ = 0;  ///< of the element that is being drawn
    double walked_ = 0;
    bool isEnding_ = false;
    std::size_t element_ = 0;
    std::vector<Point2> run_;
};

}  // namespace

bool clipLine(const Frame& frame, Point2& from, Point2& to) {
    double begin = 0;
    double end = 1;
    if (!clipRange(frame, from, to, begin, end)) return false;
    const Point2 start = between(from, to, begin);
    to = between(from, to, end);
    from = start;
    return true;
}

void clipPolyline(std::span<const Point2> points, const Frame& frame,
                  const std::function<void(std::span<const Point2>)>& emit) {
    std::vector<Point2> run;
    const auto flush = [&] {
        if (run.size() > 1) emit(run);
        run.clear();
    };
    for (std::size_t i = 1; i < points.size(); ++i) {
        double begin = 0;
        double end = 1;
        if (!clipRange(frame, points[i - 1], points[i], begin, end)) {
            flush();
            continue;
        }
        if (begin > 0) flush();
        if (run.empty()) run.push_back(between(points[i - 1], points[i], begin));
        run.push_back(between(points[i - 1], points[i], end));
        if (end < 1) flush();
    }
    flush();
}

void dashPolyline(std::span<const Point2> points, const LineType& type, double scale, const Frame& frame,
                  const std::function<void(std::span<const Point2>)>& emit) {
    double length = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        length += std::hypot(points[i].x - points[i - 1].x, points[i].y - points[i - 1].y);
    }
    const double first = std::max(type.elements.front(), 0.0) * scale;
    if (!(length > first + type.length * scale) || !std::isfinite(length)) {
        clipPolyline(points, frame, emit);
        return;
    }
    DashWalk walk(type, scale, length, emit);
    for (std::size_t i = 1; i < points.size(); ++i) {
        double begin = 0;
        double end = 1;
        if (!clipRange(frame, points[i - 1], points[i], begin, end)) {
            begin = 1;
            end = 1;
        }
        walk.line(points[i - 1], points[i], begin, end);
    }
    walk.flush();
}

}  // namespace picture
