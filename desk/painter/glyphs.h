#pragma once

#include "desk/shapes/text_piece.h"

#include <QFont>
#include <QHash>
#include <QPainterPath>
#include <QString>

namespace painter {

/// A text as outlines, one unit a capital height, its baseline along X from the origin, Y downwards.
struct TextOutline {
    QPainterPath path;
    double width = 0;
};

/// Outlines of texts in the fonts that stand for a drawing's, each made once.
class Glyphs {
  public:
    const TextOutline& outline(const shapes::TextPiece& piece);

  private:
    struct Face {
        QFont font;
        double capital = 0;  ///< height in the font's pixels
    };
    const Face& face(const shapes::TextFont& font);

    QHash<int, Face> faces_;
    QHash<QString, TextOutline> outlines_;
};

}  // namespace painter
