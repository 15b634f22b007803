#include "desk/dxf/number_text.h"

#include "basic/error.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace dxf {

char* writeNumber(char* to, double value) {
    if (!std::isfinite(value)) throw basic::Error(basic::kOverflow);
    if (value == 0) value = 0;  // a drawing has no negative zero
    const double size = std::fabs(value);
    // Whole numbers, like most heights and quarter turns, need no search for the shortest digits.
    if (size < 1e9 && value == static_cast<double>(static_cast<std::int64_t>(value))) {
        char* const end = std::to_chars(to, to + kLongestNumber, static_cast<std::int64_t>(value)).ptr;
        end[0] = '.';
        end[1] = '0';
        return end + 2;
    }
    const bool plain = size == 0 || (size >= 1e-5 && size < 1e16);
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    char* const end = std::to_chars(to, to + kLongestNumber, value, format).ptr;
    if (std::find(to, end, '.') != end) return end;
    char* const exponent = std::find(to, end, 'e');
    std::copy_backward(exponent, end, end + 2);
    exponent[0] = '.';
    exponent[1] = '0';
    return end + 2;
}

std::string numberText(double value) {
    char text[kLongestNumber];
    return {text, writeNumber(text, value)};
}

char* writeHandle(char* to, unsigned long long handle) {
    char* const end = to + (std::bit_width(handle | 1) + 3) / 4;
    for (char* digit = end; digit != to; handle >>= 4) *--digit = "0123456789ABCDEF"[handle & 0xF];
    return end;
}

std::string handleText(unsigned long long handle) {
    char text[16];
    return {text, writeHandle(text, handle)};
}

}  // namespace dxf
