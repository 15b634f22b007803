#pragma once

#include "desk/painter/qt_canvas.h"
#include "desk/picture/renderer.h"
#include "desk/window/canvas_view.h"

#include <QColor>
#include <QPainter>
#include <QString>
#include <utility>
#include <vector>

namespace window {

/// How things are lit over the picture. Widths in logical pixels.
struct Light {
    QColor color;    ///< invalid: their own colours, mixed with `mixWith`
    QColor mixWith;  ///< a quarter of it
    double width = 2;
    double halo = 0;  ///< width of a halo around the lines
    double haloOpacity = 0.3;
    bool dotted = false;
    bool dashed = false;
    double grip = 0;   ///< side of a square at the insertion point
    int longest = 60;  ///< ms that lines and halo may take each; of what takes longer a part is lit
};

/// Draws entities of a space over its picture, in device pixels.
class CanvasLights {
  public:
    CanvasLights(picture::Picture& picture, drawing::BlockId space, const CanvasView& view,
                 const painter::Inks& inks, painter::Glyphs& glyphs, double ratio)
        : picture_(picture), space_(space), view_(view), inks_(inks), glyphs_(glyphs), ratio_(ratio) {}

    void draw(QPainter& painter, const std::vector<drawing::EntityId>& entities, const Light& light);
    /// Entities that the picture hides.
    void drawHidden(QPainter& painter, const std::vector<drawing::EntityId>& entities, const Light& light);
    /// A block in the place of each reference, which keep scale, rotation and place.
    void drawInPlaceOf(QPainter& painter, const std::vector<drawing::EntityId>& references,
                       drawing::BlockId block, const Light& light);
    void drawAt(QPainter& painter, const std::vector<drawing::Placement>& places, drawing::BlockId block,
                const Light& light);
    /// A block by itself, with values for its attributes by tag.
    void drawBlock(QPainter& painter, drawing::BlockId block, const drawing::Placement& placement,
                   const std::vector<std::pair<QString, QString>>& values, const Light& light);
    /// The base point's mark: a cross in a circle.
    void drawBasePoint(QPainter& painter, const picture::Point2& at, const QColor& color) const;
    /// What an entity covers on the canvas; empty where it isn't shown.
    picture::Frame frameOf(drawing::EntityId entity) const;
    /// Where a reference stands; nothing for other entities.
    std::optional<picture::Point2> insertionOf(drawing::EntityId entity) const;

  private:
    template <typename Draw>
    void drawWith(QPainter& painter, const picture::Frame& frame, const Light& light, Draw&& draw);
    void drawGrip(QPainter& painter, const picture::Point2& at, const Light& light) const;

    picture::Picture& picture_;
    drawing::BlockId space_;
    const CanvasView& view_;
    const painter::Inks& inks_;
    painter::Glyphs& glyphs_;
    double ratio_;
};

}  // namespace window
