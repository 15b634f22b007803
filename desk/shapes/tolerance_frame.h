#pragma once

#include "desk/shapes/geometry.h"

#include <vector>

namespace shapes {

/// What a TOLERANCE draws, in world coordinates: its cells and symbols as lines, the rest as texts.
struct ToleranceFrame {
    std::vector<Stroke> strokes;
    std::vector<TextPiece> texts;
};

/// A row of cells for each line of the text (1), its left edge at 10 and running along 11, twice as high as
/// the text of the dimension style.
ToleranceFrame readTolerance(const Drawing& drawing, EntityId id);

}  // namespace shapes
