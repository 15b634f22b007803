#include "desk/dxf/number_text.h"

#include "basic/error.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace dxf {

void appendNumber(std::string& text, double value) {
    if (!std::isfinite(value)) throw basic::Error(basic::kOverflow);
    if (value == 0) value = 0;  // a drawing has no negative zero
    char buffer[48];
    const double size = std::fabs(value);
    // Whole numbers, like most heights and quarter turns, need no search for the shortest digits.
    if (size < 1e9 && value == static_cast<double>(static_cast<std::int64_t>(value))) {
        char* const end = std::to_chars(buffer, buffer + sizeof buffer, static_cast<std::int64_t>(value)).ptr;
        end[0] = '.';
        end[1] = '0';
        text.append(buffer, static_cast<std::size_t>(end - buffer) + 2);
        return;
    }
    const bool plain = size == 0 || (size >= 1e-5 && size < 1e16);
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value, format);
    const std::string_view digits(buffer, static_cast<std::size_t>(end - buffer));
    if (digits.find('.') != std::string_view::npos) {
        text += digits;
        return;
    }
    const std::size_t exponent = std::min(digits.find('e'), digits.size());
    text += digits.substr(0, exponent);
    text += ".0";
    text += digits.substr(exponent);
}

std::string numberText(double value) {
    std::string text;
    appendNumber(text, value);
    return text;
}

std::string handleText(unsigned long long handle) {
    char buffer[16];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, handle, 16);
    for (char* digit = buffer; digit != end; ++digit)
        if (*digit >= 'a') *digit = static_cast<char>(*digit - 'a' + 'A');
    return {buffer, end};
}

}  // namespace dxf
