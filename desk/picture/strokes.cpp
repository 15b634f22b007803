#include "desk/picture/strokes.h"

#include "desk/geometry/spline.h"

#include <cmath>
#include <variant>

namespace picture {

namespace {

/// A longer line goes on as a stroke of its own, so that a picture can be drawn in portions.
constexpr std::uint32_t kLongest = 2048;

void startStroke(DisplayList& list, PenId pen, Stroke::Kind kind, float startWidth, float endWidth) {
    Stroke stroke;
    stroke.first = static_cast<std::uint32_t>(list.points.size());
    stroke.pen = pen;
    stroke.kind = kind;
    stroke.startWidth = startWidth;
    stroke.endWidth = endWidth;
    list.strokes.push_back(stroke);
}

void addPoint(DisplayList& list, const Point3& point) {
    list.points.push_back(point);
    ++list.strokes.back().count;
}

}  // namespace

void addStroke(const geometry::Curve& curve, PenId pen, float startWidth, float endWidth, DisplayList& list) {
    if (const auto* line = std::get_if<geometry::LineCurve>(&curve)) {
        startStroke(list, pen, Stroke::Kind::Polyline, startWidth, endWidth);
        addPoint(list, line->start);
        addPoint(list, line->end);
    } else if (const auto* arc = std::get_if<geometry::ArcCurve>(&curve)) {
        startStroke(list, pen, Stroke::Kind::Arc, startWidth, endWidth);
        addPoint(list, arc->center);
        addPoint(list, arc->cosine);
        addPoint(list, arc->sine);
        addPoint(list, {arc->start, arc->end, 0});
    } else {
        startStroke(list, pen, Stroke::Kind::Polyline, startWidth, endWidth);
        std::vector<Point3> points;
        geometry::flatten(curve, points);
        for (const Point3& point : points) {
            addPoint(list, point);
            if (list.strokes.back().count < kLongest || &point == &points.back()) continue;
            startStroke(list, pen, Stroke::Kind::Polyline, startWidth, endWidth);
            addPoint(list, point);
        }
    }
}

void addStrokes(const std::vector<shapes::Stroke>& strokes, PenId pen, bool dashesEach, DisplayList& list) {
    const shapes::Stroke* before = nullptr;
    for (const shapes::Stroke& stroke : strokes) {
        const auto* line = std::get_if<geometry::LineCurve>(&stroke.curve);
        const auto* lineBefore =
            before != nullptr ? std::get_if<geometry::LineCurve>(&before->curve) : nullptr;
        // One stroke for a chain of lines of one width, so that its corners are joined.
        const bool goesOn = line != nullptr && lineBefore != nullptr &&
                            list.strokes.back().count < kLongest && lineBefore->end == line->start &&
                            before->startWidth == before->endWidth && stroke.startWidth == stroke.endWidth &&
                            before->startWidth == stroke.startWidth;
        if (goesOn) {
            addPoint(list, line->end);
        } else {
            addStroke(stroke.curve, pen, static_cast<float>(stroke.startWidth),
                      static_cast<float>(stroke.endWidth), list);
            list.strokes.back().dashesEach = dashesEach && line != nullptr;
        }
        before = &stroke;
    }
}

void addFill(const std::vector<geometry::Path>& loops, PenId pen, DisplayList& list) {
    Fill fill;
    fill.first = static_cast<std::uint32_t>(list.points.size());
    fill.firstEnd = static_cast<std::uint32_t>(list.ends.size());
    fill.pen = pen;
    std::vector<Point3> points;
    for (const geometry::Path& loop : loops) {
        points.clear();
        for (const geometry::Curve& curve : loop) {
            // A curve begins where the one before ended.
            if (!points.empty()) points.pop_back();
            geometry::flatten(curve, points);
        }
        if (points.size() > 1 && points.back() == points.front()) points.pop_back();
        list.points.insert(list.points.end(), points.begin(), points.end());
        list.ends.push_back(static_cast<std::uint32_t>(list.points.size()) - fill.first);
        ++fill.endCount;
    }
    if (fill.endCount > 0) list.fills.push_back(fill);
}

}  // namespace picture
