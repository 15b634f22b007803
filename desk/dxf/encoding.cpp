#include "desk/dxf/encoding.h"

#include "basic/text.h"
#include "desk/dxf/code_page_table.h"

#include <charconv>

namespace dxf {

namespace {

unsigned char asByte(char character) { return static_cast<unsigned char>(character); }

/// Whether the bytes may be anything else than their own text. The backslash of an escape can also be the
/// second byte of a character, which the decoding itself finds out.
bool needsDecoding(std::string_view raw, bool utf8) {
    for (const char character : raw)
        if (character == '\\' || character == '^' || (!utf8 && asByte(character) >= 0x80)) return true;
    return false;
}

/// `count` hexadecimal digits at `position`, or nothing.
bool readHex(std::string_view raw, std::size_t position, std::size_t count, std::uint32_t& value) {
    if (raw.size() < position + count) return false;
    const char* const begin = raw.data() + position;
    const auto [end, error] = std::from_chars(begin, begin + count, value, 16);
    return error == std::errc() && end == begin + count;
}

/// \U+XXXX, two of them where they are the halves of a surrogate pair. Returns the escape's length, or 0 for
/// none and for a character that would disturb its line or is half of a pair.
std::size_t unicodeEscape(std::string_view raw, std::size_t at, char32_t& character) {
    std::uint32_t unit = 0;
    if (!raw.substr(at).starts_with("\\U+") || !readHex(raw, at + 3, 4, unit) || unit < 0x20) return 0;
    character = unit;
    if (unit < 0xD800 || unit > 0xDFFF) return 7;
    std::uint32_t low = 0;
    if (unit > 0xDBFF || !raw.substr(at + 7).starts_with("\\U+") || !readHex(raw, at + 10, 4, low)) return 0;
    if (low < 0xDC00 || low > 0xDFFF) return 0;
    character = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    return 14;
}

/// \M+nXXXX: the bytes XXXX in the multi-byte page n.
std::size_t multiByteEscape(std::string_view raw, std::size_t at, char32_t& character) {
    std::uint32_t bytes = 0;
    if (!raw.substr(at).starts_with("\\M+") || raw.size() < at + 8 || !readHex(raw, at + 4, 4, bytes))
        return 0;
    character = multiByteCharacter(raw[at + 3] - '0', static_cast<std::uint16_t>(bytes));
    return character < 0x20 ? 0 : 8;
}

/// ^I and its like, and the caret itself, which is "^ ". A caret before anything else stands for itself.
std::size_t caretEscape(std::string_view raw, std::size_t at, char32_t& character) {
    const char next = at + 1 < raw.size() ? raw[at + 1] : '\0';
    if (next == ' ') {
        character = '^';
    } else if (next > '@' && next <= '_') {
        character = static_cast<char32_t>(next - '@');
    } else {
        return 0;
    }
    return 2;
}

/// One character of the file's bytes, escapes aside, appended as UTF-8. Returns how many bytes it took.
std::size_t decodeOne(const Encoding::Table* table, std::string_view raw, std::size_t at, std::string& text) {
    const unsigned char byte = asByte(raw[at]);
    if (table == nullptr || byte < 0x80) {
        text.push_back(raw[at]);
        return 1;
    }
    if (table->isLead[byte] && at + 1 < raw.size()) {
        const char16_t character = table->pairs[static_cast<std::size_t>(byte << 8 | asByte(raw[at + 1]))];
        if (character != 0) {
            basic::appendCharacter(text, character);
            return 2;
        }
    }
    if (table->single[byte] != 0)
        basic::appendCharacter(text, table->single[byte]);
    else
        text.push_back(raw[at]);  // a byte that stands for nothing is kept
    return 1;
}

void appendUnicodeEscape(std::string& bytes, char32_t character) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    if (character > 0xFFFF) {
        const char32_t offset = character - 0x10000;
        appendUnicodeEscape(bytes, 0xD800 + (offset >> 10));
        appendUnicodeEscape(bytes, 0xDC00 + (offset & 0x3FF));
        return;
    }
    bytes += "\\U+";
    for (int shift = 12; shift >= 0; shift -= 4) bytes.push_back(kDigits[(character >> shift) & 0xF]);
}

/// A character beyond ASCII in a code page.
void encodeOne(const Encoding::Table& table, char32_t character, std::string& bytes) {
    if (character >= 0xDC80 && character <= 0xDCFF) {  // an ill-formed byte of the text
        bytes.push_back(static_cast<char>(character & 0xFF));
        return;
    }
    const std::uint16_t code = character <= 0xFFFF ? table.bytesOf(static_cast<char16_t>(character)) : 0;
    if (code == 0) {
        appendUnicodeEscape(bytes, character);
    } else {
        if (code > 0xFF) bytes.push_back(static_cast<char>(code >> 8));
        bytes.push_back(static_cast<char>(code & 0xFF));
    }
}

}  // namespace

Encoding Encoding::codePage(std::string_view name) {
    const char* const known = converterName(name);
    const char* const converter = known != nullptr ? known : "CP1252";
    Encoding encoding;
    encoding.name_ = converter;
    encoding.table_ = makeTable(converter);
    return encoding;
}

bool Encoding::isKnown(std::string_view codePageName) { return converterName(codePageName) != nullptr; }

std::string_view Encoding::decode(std::string_view raw, std::string& scratch) const {
    if (!needsDecoding(raw, isUtf8())) return raw;
    scratch.clear();
    for (std::size_t at = 0; at < raw.size();) {
        char32_t character = 0;
        std::size_t length = 0;
        if (raw[at] == '\\') {
            length = unicodeEscape(raw, at, character);
            if (length == 0) length = multiByteEscape(raw, at, character);
        } else if (raw[at] == '^') {
            length = caretEscape(raw, at, character);
        }
        if (length != 0)
            basic::appendCharacter(scratch, character);
        else
            length = decodeOne(table_.get(), raw, at, scratch);
        at += length;
    }
    return scratch;
}

std::string Encoding::decode(std::string_view raw) const {
    std::string scratch;
    return std::string(decode(raw, scratch));
}

void Encoding::encode(std::string_view text, std::string& bytes) const {
    const auto isPlain = [&](char character) {
        const unsigned char byte = asByte(character);
        return byte >= 0x20 && character != '^' && (byte < 0x80 || isUtf8());
    };
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at;
        while (end < text.size() && isPlain(text[end])) ++end;
        bytes.append(text, at, end - at);
        at = end;
        if (at == text.size()) break;
        const unsigned char byte = asByte(text[at]);
        if (byte == '^') {
            bytes += "^ ";
            ++at;
        } else if (byte < 0x20) {
            bytes.push_back('^');
            bytes.push_back(static_cast<char>(byte + 0x40));
            ++at;
        } else {
            encodeOne(*table_, basic::nextCharacter(text, at), bytes);
        }
    }
}

std::string Encoding::encode(std::string_view text) const {
    std::string bytes;
    encode(text, bytes);
    return bytes;
}

}  // namespace dxf
