#include "desk/picture/hatch_lines.h"

#include "desk/geometry/angles.h"
#include "desk/geometry/fill.h"
#include "desk/picture/strokes.h"
#include "desk/shapes/read_hatch.h"
#include "desk/shapes/read_tags.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace picture {

namespace {

/// A family of parallel lines of a pattern.
struct Family {
    double angle = 0;  ///< radians
    Point3 base;
    Vector3 offset;  ///< from a line to the next
    std::vector<double> dashes;
};

struct Filling {
    bool isSolid = true;
    std::vector<Family> families;
    std::optional<Color> gradient;
};

/// More lines or dashes than these are a tone on any screen.
constexpr double kMostLines = 5'000;
constexpr std::size_t kMostDashes = 40'000;

Filling readFilling(dxf::TagReader tags) {
    Filling filling;
    bool inPattern = false;
    bool isGradient = false;
    std::vector<Color> colors;
    shapes::forEachTag(tags, [&](const dxf::Tag& tag) {
        if (tag.code == 70) filling.isSolid = tag.integerOr(1) != 0;
        if (tag.code == 78) inPattern = true;
        if (tag.code == 98 || tag.code == 450) inPattern = false;
        if (tag.code == 450) isGradient = tag.integerOr(0) != 0;
        // a gradient gives each colour as a palette number (63) and a true colour (421)
        if (tag.code == 421) colors.push_back(trueColor(tag.integerOr(0)));
        if (!inPattern) return;
        if (tag.code == 53) filling.families.push_back({geometry::radiansOf(tag.numberOr(0)), {}, {}, {}});
        if (filling.families.empty()) return;
        Family& family = filling.families.back();
        if (tag.code == 43) family.base.x = tag.numberOr(0);
        if (tag.code == 44) family.base.y = tag.numberOr(0);
        if (tag.code == 45) family.offset.x = tag.numberOr(0);
        if (tag.code == 46) family.offset.y = tag.numberOr(0);
        if (tag.code == 49) family.dashes.push_back(tag.numberOr(0));
    });
    if (isGradient && !colors.empty()) filling.gradient = mean(colors.front(), colors.back());
    return filling;
}

/// The loops that count: with islands ignored the outermost ones, in the style "outer" those and the ones
/// directly within.
std::vector<geometry::Path> countingLoops(const shapes::HatchBoundary& boundary) {
    using Style = shapes::HatchBoundary::Style;
    constexpr std::size_t kMostLoops = 500;
    const std::size_t count = boundary.loops.size();
    if (boundary.style == Style::kNormal || count < 2 || count > kMostLoops) return boundary.loops;
    std::vector<geometry::FlatLoop> flat;
    flat.reserve(count);
    for (const geometry::Path& loop : boundary.loops) flat.emplace_back(loop);
    std::vector<geometry::Path> result;
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t depth = 0;
        for (std::size_t j = 0; j < count; ++j) {
            if (j != i && flat[j].holds(flat[i])) ++depth;
        }
        if (depth <= (boundary.style == Style::kOuter ? 1u : 0u)) result.push_back(boundary.loops[i]);
    }
    return result;
}

/// Draws the lines of one family inside a fill whose loops lie in the plane of the hatch.
class FamilyLines {
  public:
    FamilyLines(const Family& family, const Transform& toWorld, PenId pen, DisplayList& list)
        : family_(family), toWorld_(toWorld), pen_(pen), list_(list) {
        along_ = {std::cos(family.angle), std::sin(family.angle), 0};
        across_ = {-along_.y, along_.x, 0};
        step_ = dot(family.offset, across_);
        slide_ = dot(family.offset, along_);
        for (const double dash : family.dashes) period_ += std::abs(dash);
    }

    double spacing() const { return std::abs(step_); }

    /// False where there would be too many.
    bool draw(std::span<const Point3> points, std::span<const std::uint32_t> ends) {
        if (spacing() < 1e-12) return false;
        double low = Box::kFar;
        double high = -Box::kFar;
        for (const Point3& point : points) {
            const double line = lineOf(point);
            low = std::min(low, line);
            high = std::max(high, line);
        }
        if (!(high - low < kMostLines)) return false;
        first_ = static_cast<long>(std::ceil(low));
        crossings_.assign(static_cast<std::size_t>(std::max(0.0, std::floor(high) - std::ceil(low) + 1)), {});
        std::uint32_t begin = 0;
        for (const std::uint32_t end : ends) {
            for (std::uint32_t i = begin; i < end; ++i) cross(points[i], points[i + 1 < end ? i + 1 : begin]);
            begin = end;
        }
        for (std::size_t i = 0; i < crossings_.size(); ++i) {
            if (!drawLine(first_ + static_cast<long>(i), crossings_[i])) return false;
        }
        return true;
    }

  private:
    /// Number of the line that a point lies on, with a fraction between two.
    double lineOf(const Point3& point) const { return dot(point - family_.base, across_) / step_; }

    void cross(const Point3& a, const Point3& b) {
        double from = lineOf(a);
        double to = lineOf(b);
        double fromAlong = dot(a - family_.base, along_);
        double toAlong = dot(b - family_.base, along_);
        if (from > to) {
            std::swap(from, to);
            std::swap(fromAlong, toAlong);
        }
        // Each end counts to one of the two edges that meet there.
        for (double line = std::ceil(from); line < to; ++line) {
            const double t = (line - from) / (to - from);
            crossings_[static_cast<std::size_t>(static_cast<long>(line) - first_)].push_back(
                fromAlong + (toAlong - fromAlong) * t);
        }
    }

    bool drawLine(long number, std::vector<double>& at) {
        std::sort(at.begin(), at.end());
        for (std::size_t i = 0; i + 1 < at.size(); i += 2) {
            if (!drawDashes(number, at[i], at[i + 1])) return false;
        }
        return true;
    }

    bool drawDashes(long number, double begin, double end) {
        if (!(period_ > 0)) return drawDash(number, begin, end);
        const double origin = static_cast<double>(number) * slide_;
        double at = origin + std::floor((begin - origin) / period_) * period_;
        if ((end - at) / period_ * static_cast<double>(family_.dashes.size()) > kMostDashes) return false;
        while (at < end) {
            for (const double dash : family_.dashes) {
                const double next = at + std::abs(dash);
                if (dash >= 0 && next >= begin && at <= end &&
                    !drawDash(number, std::max(at, begin), std::min(next, end))) {
                    return false;
                }
                at = next;
            }
        }
        return true;
    }

    bool drawDash(long number, double begin, double end) {
        if (++dashes_ > kMostDashes) return false;
        const Point3 origin = family_.base + across_ * (static_cast<double>(number) * step_);
        const auto at = [&](double along) { return toWorld_.apply(origin + along_ * along); };
        addStroke(geometry::LineCurve{at(begin), at(end)}, pen_, 0, 0, list_);
        return true;
    }

    const Family& family_;
    const Transform& toWorld_;
    PenId pen_;
    DisplayList& list_;
    Vector3 along_;
    Vector3 across_;
    double step_ = 0;
    double slide_ = 0;
    double period_ = 0;
    long first_ = 0;
    std::vector<std::vector<double>> crossings_;  ///< by line, along it
    std::size_t dashes_ = 0;
};

/// Adds the lines of a pattern behind the strokes of the list and enters them into the fill.
void addPattern(const Filling& filling, const Transform& toWorld, std::span<const Point3> flat, PenId pen,
                DisplayList& list) {
    Fill& fill = list.fills.back();
    const std::vector<Point3> points(flat.begin(), flat.end());
    const std::vector<std::uint32_t> ends(list.endsOf(fill).begin(), list.endsOf(fill).end());
    fill.firstLine = static_cast<std::uint32_t>(list.strokes.size());
    double spacing = Box::kFar;
    bool complete = true;
    for (const Family& family : filling.families) {
        FamilyLines lines(family, toWorld, pen, list);
        complete = complete && lines.draw(points, ends);
        spacing = std::min(spacing, lines.spacing());
    }
    // What is too fine to be drawn in lines stays a tone at any scale.
    list.fills.back().lineEnd = static_cast<std::uint32_t>(complete ? list.strokes.size() : fill.firstLine);
    list.fills.back().spacing = static_cast<float>(complete ? std::max(spacing, 1e-12) : 1e-12);
    if (!complete) list.strokes.resize(fill.firstLine);
}

}  // namespace

void addHatch(dxf::TagReader tags, PenId pen, PenTable& pens, DisplayList& list) {
    const shapes::HatchBoundary boundary = shapes::readHatch(tags);
    const Filling filling = readFilling(tags);
    if (filling.gradient) {
        Pen own = pens[pen];
        own.look.color = *filling.gradient;
        own.colorFrom = From::Own;
        pen = pens.intern(own);
    }
    const std::size_t before = list.fills.size();
    addFill(countingLoops(boundary), pen, list);
    if (list.fills.size() == before) return;
    const Fill& fill = list.fills.back();
    const auto points = std::span(list.points).subspan(fill.first);
    const std::vector<Point3> flat(points.begin(), points.end());
    for (Point3& point : points) point = boundary.toWorld.apply(point);
    if (!filling.isSolid && !filling.gradient) addPattern(filling, boundary.toWorld, flat, pen, list);
}

}  // namespace picture
