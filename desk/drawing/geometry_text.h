#pragma once

#include "desk/drawing/vector.h"
#include "desk/dxf/tag_reader.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace drawing {

/// The four corners about a text, counter-clockwise from the lower left one as the text is read, in world
/// coordinates. Nothing for an empty text.
using TextBox = std::optional<std::array<Point3, 4>>;

/// TEXT, ATTRIB, and ATTDEF. An attribute definition shows its tag; a constant one in a placed block, its
/// text.
TextBox readTextBox(dxf::TagReader tags, bool showsTag = true);
/// MTEXT; by the extent that its writer left in it (groups 42, 43), else by its text.
TextBox readMTextBox(dxf::TagReader tags);

/// About how wide one line is in an upright sans-serif of that capital height; %%c and its like count as the
/// one character that they draw.
double textWidth(std::string_view line, double height);

/// The text of an MTEXT without its formatting, "\n" between lines.
std::string plainMText(std::string_view content);

}  // namespace drawing
