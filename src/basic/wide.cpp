#include "basic/wide.h"

#include "basic/text.h"

namespace basic {

namespace {

constexpr char32_t kHigh = 0xD800;
constexpr char32_t kLow = 0xDC00;
constexpr char32_t kSurrogates = 0x400;  ///< so many of each kind
constexpr char32_t kFirstPair = 0x10000;

bool isHigh(char32_t unit) { return unit >= kHigh && unit < kHigh + kSurrogates; }
bool isLow(char32_t unit) { return unit >= kLow && unit < kLow + kSurrogates; }

}  // namespace

std::wstring toWide(std::string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        char32_t character = nextCharacter(text, at);
        if (character >= kFirstPair) {
            character -= kFirstPair;
            wide += static_cast<wchar_t>(kHigh + character / kSurrogates);
            character = kLow + character % kSurrogates;
        }
        wide += static_cast<wchar_t>(character);
    }
    return wide;
}

std::string fromWide(std::wstring_view wide) {
    std::string text;
    text.reserve(wide.size());
    for (std::size_t at = 0; at < wide.size(); ++at) {
        char32_t character = static_cast<char32_t>(wide[at]);
        if (isHigh(character) && at + 1 < wide.size() && isLow(static_cast<char32_t>(wide[at + 1]))) {
            const auto low = static_cast<char32_t>(wide[++at]);
            character = kFirstPair + (character - kHigh) * kSurrogates + (low - kLow);
        }
        appendCharacter(text, character);
    }
    return text;
}

}  // namespace basic
