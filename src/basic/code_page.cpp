#include "basic/code_page.h"

#include "basic/text.h"

#include <algorithm>
#include <iterator>

namespace basic {

namespace {

constexpr unsigned kTableStart = 0x80;

constexpr CodePage makeWindows1252() {
    constexpr char32_t kOwn[] = {
        0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
    };
    static_assert(std::size(kOwn) == 32);
    CodePage page{};
    std::copy(std::begin(kOwn), std::end(kOwn), page.begin());
    // From 0xA0 on byte and character have the same number.
    for (unsigned byte = 0xA0; byte <= 0xFF; ++byte) page[byte - kTableStart] = byte;
    return page;
}
constexpr CodePage kWindows1252 = makeWindows1252();

CodePage& inUse() {
    static CodePage page = kWindows1252;
    return page;
}

// A byte that is no UTF-8 comes out of nextCharacter as this much above its value.
constexpr char32_t kByteEscape = 0xDC00;

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

unsigned byteOf(char32_t character) {
    if (character < kTableStart) return character;
    if (character >= kByteEscape + 0x80 && character <= kByteEscape + 0xFF) return character - kByteEscape;
    const CodePage& page = inUse();
    if (character <= 0xFF && page[character - kTableStart] == character) return character;
    const auto found = std::find(page.begin(), page.end(), character);
    return found != page.end() ? kTableStart + static_cast<unsigned>(found - page.begin()) : '?';
}

}  // namespace

const CodePage& windows1252() { return kWindows1252; }

void useCodePage(const CodePage& page) { inUse() = page; }

std::string fromCodePage(std::string_view bytes) {
    if (isAscii(bytes)) return std::string(bytes);
    const CodePage& page = inUse();
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 4);
    for (const char signedByte : bytes) {
        const auto byte = static_cast<unsigned char>(signedByte);
        appendCharacter(text, byte >= kTableStart ? page[byte - kTableStart] : byte);
    }
    return text;
}

std::string toCodePage(std::string_view text) {
    if (isAscii(text)) return std::string(text);
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        bytes.push_back(static_cast<char>(byteOf(nextCharacter(text, position))));
    }
    return bytes;
}

}  // namespace basic
