#include "desk/shapes/text_codes.h"

#include "basic/text.h"

#include <charconv>
#include <cstdint>

namespace shapes {

namespace {

/// A number of exactly or up to `length` digits at the front; 0 where there is none.
std::uint32_t takeDigits(std::string_view text, std::size_t length, int base, std::size_t& taken) {
    std::uint32_t value = 0;
    const char* const begin = text.data();
    const char* const end = begin + std::min(length, text.size());
    const auto result = std::from_chars(begin, end, value, base);
    taken = static_cast<std::size_t>(result.ptr - begin);
    return value;
}

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

}  // namespace

char32_t takeCharacterCode(std::string_view content, std::size_t& at) {
    const std::string_view rest = content.substr(at);
    if (rest.starts_with("\\U+")) {
        std::size_t taken = 0;
        const std::uint32_t value = takeDigits(rest.substr(3), 4, 16, taken);
        if (taken != 4) return 0;
        at += 7;
        return value;
    }
    if (!rest.starts_with("%%") || rest.size() < 3) return 0;
    switch (lower(rest[2])) {
        case 'd':
            at += 3;
            return U'\u00B0';
        case 'p':
            at += 3;
            return U'\u00B1';
        case 'c':
            at += 3;
            return U'\u2300';
        case '%':
            at += 3;
            return U'%';
        default:
            break;
    }
    std::size_t taken = 0;
    const std::uint32_t value = takeDigits(rest.substr(2), 3, 10, taken);
    if (taken == 0 || value < 32) return 0;
    at += 2 + taken;
    return value;
}

std::vector<TextStretch> decodeLine(std::string_view content) {
    std::vector<TextStretch> result(1);
    const auto flip = [&](bool TextStretch::*line) {
        if (!result.back().text.empty()) {
            result.push_back(result.back());
            result.back().text.clear();
        }
        result.back().*line = !(result.back().*line);
    };
    for (std::size_t at = 0; at < content.size();) {
        const char c = content[at];
        if (c == '%' || c == '\\') {
            if (const char32_t character = takeCharacterCode(content, at)) {
                basic::appendCharacter(result.back().text, character);
                continue;
            }
            const char code =
                content.substr(at, 2) == "%%" && at + 2 < content.size() ? lower(content[at + 2]) : ' ';
            if (code == 'u' || code == 'o' || code == 'k') {
                flip(code == 'u'   ? &TextStretch::underlined
                     : code == 'o' ? &TextStretch::overlined
                                   : &TextStretch::struckOut);
                at += 3;
                continue;
            }
        }
        const std::size_t begin = at;
        basic::nextCharacter(content, at);
        result.back().text += content.substr(begin, at - begin);
    }
    if (result.size() > 1 && result.back().text.empty()) result.pop_back();
    return result;
}

}  // namespace shapes
