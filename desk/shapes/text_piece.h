#pragma once

#include "desk/geometry/transform.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace shapes {

/// A font of a text style or an MTEXT as far as a substitute has to be like it.
struct TextFont {
    enum class Kind : std::uint8_t { Sans, Serif, Mono };
    Kind kind = Kind::Sans;
    bool bold = false;
    bool italic = false;

    friend bool operator==(const TextFont&, const TextFont&) = default;
};
/// The font behind a file or family name: "romans.shx", "Courier New".
TextFont fontOfName(std::string_view name);

/// A stretch of text on one line with one look.
struct TextPiece {
    std::string text;  ///< UTF-8 without any codes
    /// From the origin, where the baseline begins, one capital height goes along the line, slant and width
    /// factor included, and one up.
    geometry::Transform frame;
    double width = 0;  ///< along the line, in capital heights; whatever its font, a picture fills just this
    TextFont font;
    bool underlined = false;
    bool overlined = false;
    bool struckOut = false;
    /// An MTEXT's own colour: 0xRRGGBB, or with bit 24 set a number of the palette.
    std::optional<std::int32_t> color;
    static constexpr std::int32_t kPaletteBit = 1 << 24;
};

/// How far a text reaches below its base line, in capital heights.
inline constexpr double kDescent = 0.25;

/// How wide a character is, in capital heights: that of the sans-serif that drawings use most, scaled for the
/// other kinds.
double textAdvance(char32_t character, const TextFont& font);
double textAdvance(std::string_view text, const TextFont& font);

}  // namespace shapes
