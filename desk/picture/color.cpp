#include "desk/picture/color.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace picture {

namespace {

constexpr Color kBasic[] = {{0, 0, 0},   {255, 0, 0},   {255, 255, 0},   {0, 255, 0},  {0, 255, 255},
                            {0, 0, 255}, {255, 0, 255}, {255, 255, 255}, {65, 65, 65}, {128, 128, 128}};
constexpr std::uint8_t kGrays[] = {51, 80, 105, 130, 190, 255};

/// Colours 10 to 249: the tens are 24 hues of 15 degrees from red on, the units go from bright to dark, odd
/// ones are pale.
Color wheelColor(int number) {
    static constexpr int kValues[] = {255, 189, 129, 104, 79};
    const int hue = number / 10 - 1;
    const int high = kValues[number % 10 / 2];
    const int low = number % 2 == 1 ? high * 2 / 3 : 0;
    // Within a sixth of the wheel one part stays high, one low, the third runs between them in four steps.
    const int step = hue % 4;
    const int rising = low + (high - low) * step / 4;
    const int falling = low + (high - low) * (4 - step) / 4;
    const auto color = [](int r, int g, int b) {
        return Color{static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(g),
                     static_cast<std::uint8_t>(b)};
    };
    switch (hue / 4) {
        case 0:
            return color(high, rising, low);
        case 1:
            return color(falling, high, low);
        case 2:
            return color(low, high, rising);
        case 3:
            return color(low, falling, high);
        case 4:
            return color(rising, low, high);
        default:
            return color(high, low, falling);
    }
}

}  // namespace

Color paletteColor(int number) {
    number = std::abs(number);
    if (number < 1 || number > 255 || number == 7) return {255, 255, 255, true};
    if (number < 10) return kBasic[number];
    if (number < 250) return wheelColor(number);
    const std::uint8_t gray = kGrays[number - 250];
    return {gray, gray, gray};
}

Color trueColor(std::int64_t value) {
    return {static_cast<std::uint8_t>(value >> 16 & 255), static_cast<std::uint8_t>(value >> 8 & 255),
            static_cast<std::uint8_t>(value & 255)};
}

Color mean(const Color& a, const Color& b) {
    const auto middle = [](std::uint8_t x, std::uint8_t y) { return static_cast<std::uint8_t>((x + y) / 2); };
    return {middle(a.red, b.red), middle(a.green, b.green), middle(a.blue, b.blue)};
}

}  // namespace picture
