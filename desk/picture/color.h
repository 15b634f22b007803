#pragma once

#include <cstdint>

namespace picture {

/// A colour of the drawing as red, green and blue.
struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    /// Colour 7: white on a dark ground, black on a light one.
    bool isForeground = false;

    friend bool operator==(const Color&, const Color&) = default;
};

/// A colour number of the host's palette, 1 to 255; the sign, which switches a layer off, doesn't count. Any
/// other number gives the foreground.
Color paletteColor(int number);
/// A true colour as group 420 holds it, 0xRRGGBB.
Color trueColor(std::int64_t value);
/// The colour between two.
Color mean(const Color& a, const Color& b);

}  // namespace picture
