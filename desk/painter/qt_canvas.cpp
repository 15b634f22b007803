#include "desk/painter/qt_canvas.h"

#include <cmath>

namespace painter {

namespace {

using picture::Point2;

QPointF pointF(const Point2& point) { return {point.x, point.y}; }

QPolygonF polygonOf(std::span<const Point2> points) {
    QPolygonF polygon;
    polygon.reserve(static_cast<qsizetype>(points.size()));
    for (const Point2& point : points) polygon.append(pointF(point));
    return polygon;
}

}  // namespace

QtCanvas::QtCanvas(QPainter& painter, const Inks& inks, Glyphs& glyphs, const Style& style)
    : painter_(painter), inks_(inks), glyphs_(glyphs), style_(style) {
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setBrush(Qt::NoBrush);
}

QtCanvas::~QtCanvas() { flush(); }

void QtCanvas::flush() {
    if (!lines_.isEmpty()) painter_.drawLines(lines_);
    if (!dots_.isEmpty()) painter_.drawPoints(dots_.constData(), static_cast<int>(dots_.size()));
    lines_.clear();
    dots_.clear();
}

void QtCanvas::setInk(const picture::Ink& ink) {
    flush();
    color_ = inks_.shown(ink.color);
    color_.setAlphaF(static_cast<float>(ink.opacity));
    isThin_ = ink.width <= style_.hairline;
    QPen pen(color_, isThin_ ? style_.hairline : ink.width);
    pen.setCosmetic(style_.cosmetic);
    pen.setCapStyle(ink.isBand || isThin_ ? Qt::FlatCap : Qt::RoundCap);
    pen.setJoinStyle(ink.isBand ? Qt::MiterJoin : Qt::RoundJoin);
    if (!style_.solid) pen.setDashPattern({1, 2});
    if (style_.dashed) pen.setDashPattern({5, 3});
    painter_.setPen(pen);
}

void QtCanvas::thinLine(const Point2& from, const Point2& to) {
    constexpr double kAligned = 0.02;
    QPointF a = pointF(from);
    QPointF b = pointF(to);
    if (style_.cosmetic && style_.hairline < 1.5) {
        // An upright or level line amid a row of pixels is sharp; between two it would be wide and pale.
        if (std::abs(a.x() - b.x()) < kAligned) {
            const double x = std::floor(a.x()) + 0.5;
            a.setX(x);
            b.setX(x);
        }
        if (std::abs(a.y() - b.y()) < kAligned) {
            const double y = std::floor(a.y()) + 0.5;
            a.setY(y);
            b.setY(y);
        }
    }
    lines_.append({a, b});
    // No more at once than a portion of a picture has time for.
    constexpr qsizetype kMostKept = 1024;
    if (lines_.size() >= kMostKept) flush();
}

void QtCanvas::polyline(std::span<const Point2> points) {
    if (points.size() < 2) return;
    const bool isDot = points.size() == 2 && std::abs(points[1].x - points[0].x) < 0.5 &&
                       std::abs(points[1].y - points[0].y) < 0.5;
    if (isDot) return dot(points[0]);
    const bool isPlain = isThin_ && style_.solid && !style_.dashed;
    if (isPlain && (style_.cosmetic || points.size() == 2)) {
        for (std::size_t i = 1; i < points.size(); ++i) thinLine(points[i - 1], points[i]);
        return;
    }
    const Point2& first = points.front();
    const Point2& last = points.back();
    if (first == last && points.size() > 2) {
        painter_.drawPolygon(polygonOf(points.first(points.size() - 1)));
    } else {
        painter_.drawPolyline(polygonOf(points));
    }
}

void QtCanvas::area(std::span<const Point2> points, std::span<const std::uint32_t> ends,
                    const QColor& color) {
    flush();
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    std::uint32_t begin = 0;
    for (const std::uint32_t end : ends) {
        if (end - begin >= 3) {
            path.addPolygon(polygonOf(points.subspan(begin, end - begin)));
            path.closeSubpath();
        }
        begin = end;
    }
    painter_.fillPath(path, color);
}

void QtCanvas::fill(std::span<const Point2> points, std::span<const std::uint32_t> ends) {
    if (!style_.fills) return;
    QColor color = color_;
    color.setAlphaF(static_cast<float>(color_.alphaF() * style_.fillOpacity));
    area(points, ends, color);
}

void QtCanvas::cover(std::span<const Point2> points, std::span<const std::uint32_t> ends) {
    // Over a picture a cover would hide what lies beside the lit.
    if (!style_.fills || style_.fillOpacity < 1) return;
    area(points, ends, inks_.ground());
}

void QtCanvas::dot(const Point2& at) { dots_.append(pointF(at)); }

void QtCanvas::text(const picture::PlacedText& text) {
    if (!style_.fills) return;
    const TextOutline& outline = glyphs_.outline(text.piece);
    if (!(outline.width > 0)) return;
    const double squeeze = text.piece.width / outline.width;
    const QTransform place(text.along.x * squeeze, text.along.y * squeeze, -text.up.x, -text.up.y,
                           text.origin.x, text.origin.y);
    flush();
    painter_.fillPath(place.map(outline.path), color_);
    const auto line = [&](double height) {
        const auto end = [&](double along) {
            return Point2{text.origin.x + text.along.x * along + text.up.x * height,
                          text.origin.y + text.along.y * along + text.up.y * height};
        };
        thinLine(end(0), end(text.piece.width));
    };
    if (text.piece.underlined) line(-0.2);
    if (text.piece.overlined) line(1.2);
    if (text.piece.struckOut) line(0.45);
}

void QtCanvas::beginClip(std::span<const Point2> polygon) {
    flush();
    painter_.save();
    QPainterPath path;
    path.addPolygon(polygonOf(polygon));
    path.closeSubpath();
    painter_.setClipPath(path, Qt::IntersectClip);
}

void QtCanvas::endClip() {
    flush();
    painter_.restore();
}

}  // namespace painter
