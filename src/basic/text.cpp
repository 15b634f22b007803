#include "basic/text.h"

namespace basic {

namespace {

/// An ill-formed byte travels as this much above its value: a lone surrogate, which no well-formed text
/// holds.
constexpr char32_t kByteEscape = 0xDC00;

unsigned char byteAt(std::string_view text, std::size_t position) {
    return static_cast<unsigned char>(text[position]);
}

/// How many bytes a sequence with this lead byte has; 0 for a byte that leads none.
std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

char asciiLower(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
}

}  // namespace

char32_t nextCharacter(std::string_view text, std::size_t& position) {
    const unsigned char lead = byteAt(text, position);
    if (lead < 0x80) {
        ++position;
        return lead;
    }
    const std::size_t length = sequenceLength(lead);
    const auto illFormed = [&]() -> char32_t {
        ++position;
        return kByteEscape + lead;
    };
    if (length == 0 || text.size() - position < length) return illFormed();
    char32_t character = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char byte = byteAt(text, position + i);
        if ((byte & 0xC0) != 0x80) return illFormed();
        character = (character << 6) | (byte & 0x3Fu);
    }
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (overlong || surrogate || character > 0x10FFFF) return illFormed();
    position += length;
    return character;
}

void appendCharacter(std::string& text, char32_t character) {
    const auto append = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    const auto continuation = [&](int shift) { append(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        append(character);
    } else if (character >= kByteEscape + 0x80 && character <= kByteEscape + 0xFF) {
        append(character - kByteEscape);
    } else if (character < 0x800) {
        append(0xC0 | (character >> 6));
        continuation(0);
    } else if (character < 0x10000) {
        append(0xE0 | (character >> 12));
        continuation(6);
        continuation(0);
    } else {
        append(0xF0 | (character >> 18));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

std::string_view trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::size_t NameHash::operator()(std::string_view name) const {
    std::size_t hash = 14695981039346656037ull;
    for (const char byte : name) {
        hash ^= static_cast<unsigned char>(asciiLower(byte));
        hash *= 1099511628211ull;
    }
    return hash;
}

bool NameEqual::operator()(std::string_view left, std::string_view right) const {
    if (left.size() != right.size()) return false;
    if (left == right) return true;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (left[i] != right[i] && asciiLower(left[i]) != asciiLower(right[i])) return false;
    }
    return true;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t start = 0;;) {
        const std::size_t found = text.find(from, start);
        result.append(text.substr(start, found == std::string_view::npos ? found : found - start));
        if (found == std::string_view::npos) return result;
        result.append(to);
        start = found + from.size();
    }
}

}  // namespace basic
