#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/shapes/names.h"
#include "desk/shapes/text_piece.h"
#include "desk/shapes/text_style.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace shapes {

/// The four corners about a text, counter-clockwise from the lower left one as the text is read, in world
/// coordinates. Nothing for an empty text.
using TextBox = std::optional<std::array<Point3, 4>>;

/// TEXT, ATTRIB, and ATTDEF. An attribute definition shows its tag; a constant one in a placed block, its
/// text.
TextBox readTextBox(dxf::TagReader tags, const TextStyles& styles, bool showsTag = true);
/// MTEXT, about its lines as they are laid out.
TextBox readMTextBox(dxf::TagReader tags, const TextStyles& styles);
/// What an MTEXT has behind its letters: a filled area, a frame or both.
struct TextGround {
    Path border;
    bool isFilled = false;
    std::optional<std::int32_t> color;  ///< of the area as in TextPiece; without one that of the ground
    bool isFramed = false;
};
std::optional<TextGround> readMTextGround(dxf::TagReader tags, const TextStyles& styles);
/// The point that a text of either kind hangs on.
Point3 readInsertion(dxf::TagReader tags, bool isMText);

/// What a TEXT, MTEXT, ATTRIB or ATTDEF shows, in world coordinates; `showsTag` as above.
std::vector<TextPiece> readTexts(const Drawing& drawing, const TextStyles& styles, EntityId id,
                                 bool showsTag);
/// What an attribute of that definition would show with a text, in the block's coordinates.
std::vector<TextPiece> readDefinitionTexts(const Drawing& drawing, const TextStyles& styles, EntityId id,
                                           const std::string& text);

}  // namespace shapes
