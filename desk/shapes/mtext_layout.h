#pragma once

#include "desk/shapes/text_piece.h"

#include <string_view>
#include <vector>

namespace shapes {

/// What lays an MTEXT out.
struct MTextFormat {
    double height = 1;       ///< of capitals, in drawing units
    double width = 0;        ///< lines break beyond it; 0 for never
    double widthFactor = 1;  ///< of its style
    double oblique = 0;      ///< of its style, radians
    double spacing = 1;      ///< of lines, as a factor of 5/3 of the height
    bool exactSpacing = false;
    int column = 0;  ///< 0 left, 1 centre, 2 right
    TextFont font;
};

/// An MTEXT as laid out: the pieces stand in a box from (0, 0), its upper left corner, to (width, -height).
struct MTextLayout {
    std::vector<TextPiece> pieces;
    double width = 0;
    double height = 0;
    double left = 0;  ///< where the lines really begin and end
    double right = 0;
};

/// Lays out the text with those of its codes that change what is seen: paragraphs, wrapping, height, width,
/// slant, spacing, colour, font, lines, stacked fractions, paragraph alignment and indents.
MTextLayout layOutMText(std::string_view content, const MTextFormat& format);

}  // namespace shapes
