#pragma once

#include "desk/drawing/entity_data.h"
#include "desk/dxf/format.h"

#include <string_view>

namespace drawing {

/// Where an attribute's groups say its text.
struct TextPlace {
    std::size_t begin = 0;  ///< group 1 of its text part; the same as `end` where there is none
    std::size_t end = 0;
    int horizontal = 0;       ///< group 72
    bool isEmbedded = false;  ///< the whole text stands in an embedded object besides (from R2018 on)
};
TextPlace findText(const dxf::Format& format, std::string_view attribute);

/// Whether the first point (group 10) of a text justified so depends on the text's width: centre, right and
/// middle hang on the second point (11), and the first one is where the line begins.
constexpr bool beginsByWidth(int horizontal) { return horizontal == 1 || horizontal == 2 || horizontal == 4; }

/// The first point of an attribute whose text becomes `text`. How wide its font runs is told by the place
/// that the first point has now, or guessed where that tells nothing.
Point3 firstPointFor(const AttribData& attribute, std::string_view text);

}  // namespace drawing
