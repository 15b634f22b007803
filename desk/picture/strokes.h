#pragma once

#include "desk/picture/display_list.h"

namespace picture {

// These append to a list and return nothing: the item that is being built takes what came.

/// Curves of an entity; straight stretches that follow one another become one stroke. With `dashesEach` a
/// linetype begins anew on each of them.
void addStrokes(const std::vector<shapes::Stroke>& strokes, PenId pen, bool dashesEach, DisplayList& list);
void addStroke(const geometry::Curve& curve, PenId pen, float startWidth, float endWidth, DisplayList& list);
/// A closed area, curves in chords fine enough for any print.
void addFill(const std::vector<geometry::Path>& loops, PenId pen, DisplayList& list);

}  // namespace picture
