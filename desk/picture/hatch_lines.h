#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/picture/display_list.h"

namespace picture {

/// Adds what a HATCH draws: a fill, of a gradient in the mean of its colours; of a pattern its lines as well,
/// unless there are too many of them. Islands count as the hatch says.
void addHatch(dxf::TagReader tags, PenId pen, PenTable& pens, DisplayList& list);

}  // namespace picture
