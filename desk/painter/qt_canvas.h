#pragma once

#include "desk/painter/glyphs.h"
#include "desk/painter/inks.h"
#include "desk/picture/canvas.h"

#include <QLineF>
#include <QPainter>
#include <QVector>

namespace painter {

/// A picture's canvas on a QPainter, whose coordinates are the device's. What was drawn is on the device
/// after `flush`.
class QtCanvas : public picture::Canvas {
  public:
    struct Style {
        double hairline = 1;     ///< width of a thin line, device units
        bool cosmetic = true;    ///< thin lines are snapped to pixels, as on screens
        bool solid = true;       ///< false: strokes in dots of the hairline, for what is lit but hidden
        bool dashed = false;     ///< strokes in dashes of 5 and gaps of 3 hairlines
        bool fills = true;       ///< whether areas and texts are drawn
        double fillOpacity = 1;  ///< of areas
    };
    QtCanvas(QPainter& painter, const Inks& inks, Glyphs& glyphs, const Style& style);
    ~QtCanvas() override;

    void setInk(const picture::Ink& ink) override;
    void polyline(std::span<const picture::Point2> points) override;
    void fill(std::span<const picture::Point2> points, std::span<const std::uint32_t> ends) override;
    void cover(std::span<const picture::Point2> points, std::span<const std::uint32_t> ends) override;
    void dot(const picture::Point2& at) override;
    void text(const picture::PlacedText& text) override;
    void beginClip(std::span<const picture::Point2> polygon) override;
    void endClip() override;
    void flush();

  private:
    void area(std::span<const picture::Point2> points, std::span<const std::uint32_t> ends,
              const QColor& color);
    void thinLine(const picture::Point2& from, const picture::Point2& to);

    QPainter& painter_;
    const Inks& inks_;
    Glyphs& glyphs_;
    Style style_;
    QColor color_;
    bool isThin_ = true;
    QVector<QLineF> lines_;
    QVector<QPointF> dots_;
};

}  // namespace painter
