#include "desk/dxf/tag_writer.h"

#include "desk/dxf/number_text.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace dxf {

namespace {

template <typename Value>
void appendBytes(std::string& bytes, Value value) {
    static_assert(std::endian::native == std::endian::little, "binary drawings are little-endian");
    char buffer[sizeof value];
    std::memcpy(buffer, &value, sizeof value);
    bytes.append(buffer, sizeof value);
}

/// A whole number of `Value`'s width, signed or unsigned: ASCII drawings have flags and colors either way.
template <typename Value>
void appendInteger(std::string& bytes, std::int64_t value) {
    if (value < std::numeric_limits<Value>::min() ||
        value > std::numeric_limits<std::make_unsigned_t<Value>>::max())
        throw basic::Error(basic::kOverflow);
    appendBytes(bytes, static_cast<Value>(value));
}

void appendAligned(std::string& bytes, std::int64_t value, std::size_t width) {
    char digits[24];
    const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value);
    const std::size_t length = static_cast<std::size_t>(end - digits);
    if (length < width) bytes.append(width - length, ' ');
    bytes.append(digits, length);
}

char* writeNewline(char* to, const Format& format) {
    if (format.carriageReturns) *to++ = '\r';
    *to = '\n';
    return to + 1;
}

constexpr std::size_t kLongestCode = 16;
/// The line of a group code.
char* writeCode(char* to, int code, const Format& format) {
    if (code < 0 || code > 999) {
        if (format.paddedCodes && code < 0 && code > -10) *to++ = ' ';
        to = std::to_chars(to, to + kLongestCode, code).ptr;
    } else {
        if (code > 99 || format.paddedCodes) *to++ = code > 99 ? static_cast<char>('0' + code / 100) : ' ';
        if (code > 9 || format.paddedCodes) *to++ = code > 9 ? static_cast<char>('0' + code / 10 % 10) : ' ';
        *to++ = static_cast<char>('0' + code % 10);
    }
    return writeNewline(to, format);
}

std::string bytesFromHex(std::string_view hex) {
    std::string bytes;
    for (std::size_t at = 0; at + 2 <= hex.size(); at += 2) {
        unsigned value = 0;
        if (std::from_chars(hex.data() + at, hex.data() + at + 2, value, 16).ptr != hex.data() + at + 2)
            throw basic::Error(basic::kTypeMismatch);
        bytes.push_back(static_cast<char>(value));
    }
    return bytes;
}

}  // namespace

void TagWriter::code(int code) {
    if (!format_.binary) {
        char line[kLongestCode];
        bytes_.append(line, static_cast<std::size_t>(writeCode(line, code, format_) - line));
    } else if (format_.wideCodes) {
        appendBytes(bytes_, static_cast<std::int16_t>(code));
    } else if (code >= 0 && code < 255) {
        bytes_.push_back(static_cast<char>(code));
    } else {
        bytes_.push_back('\xFF');
        appendBytes(bytes_, static_cast<std::int16_t>(code));
    }
}

void TagWriter::text(int code, std::string_view utf8) {
    const bool isPlain = std::all_of(utf8.begin(), utf8.end(), [](char character) {
        return character >= 0x20 && character < 0x7F && character != '^';
    });
    if (isPlain) return rawText(code, utf8);
    this->code(code);
    format_.encoding.encode(utf8, bytes_);
    endText();
}

void TagWriter::rawText(int code, std::string_view raw) {
    constexpr std::size_t kShort = 100;
    if (!format_.binary && raw.size() <= kShort) {
        char group[kLongestCode + kShort + 2];
        char* end = writeCode(group, code, format_);
        end = std::copy(raw.begin(), raw.end(), end);
        bytes_.append(group, static_cast<std::size_t>(writeNewline(end, format_) - group));
        return;
    }
    this->code(code);
    bytes_ += raw;
    endText();
}

void TagWriter::endText() {
    if (format_.binary)
        bytes_.push_back('\0');
    else
        bytes_ += format_.newline();
}

void TagWriter::number(int code, double value) {
    const ValueType type = valueType(code);
    if (type != ValueType::Double && type != ValueType::String)
        return integer(code, static_cast<std::int64_t>(value));
    if (!std::isfinite(value)) throw basic::Error(basic::kOverflow);
    if (format_.binary && type == ValueType::Double) {
        this->code(code);
        appendBytes(bytes_, value);
        return;
    }
    char text[kLongestNumber];
    rawText(code, {text, static_cast<std::size_t>(writeNumber(text, value) - text)});
}

void TagWriter::integer(int code, std::int64_t value) {
    const ValueType type = valueType(code);
    if (type == ValueType::Double) return number(code, static_cast<double>(value));
    const std::size_t before = bytes_.size();
    this->code(code);
    if (!format_.binary || type == ValueType::String || type == ValueType::HandleText ||
        type == ValueType::Chunk) {
        const bool padded = format_.paddedIntegers && !format_.binary;
        appendAligned(bytes_, value, !padded ? 0 : type == ValueType::Int32 ? 9 : 6);
        endText();
        return;
    }
    try {
        if (type == ValueType::Int16)
            appendInteger<std::int16_t>(bytes_, value);
        else if (type == ValueType::Int32)
            appendInteger<std::int32_t>(bytes_, value);
        else if (type == ValueType::Bool)
            appendInteger<std::uint8_t>(bytes_, value);
        else
            appendBytes(bytes_, value);
    } catch (const basic::Error&) {
        bytes_.resize(before);
        throw;
    }
}

void TagWriter::handle(int code, Handle value) {
    char text[16];
    rawText(code, {text, static_cast<std::size_t>(writeHandle(text, value) - text)});
}

void TagWriter::point(int code, double x, double y) {
    number(code, x);
    number(code + 10, y);
}

void TagWriter::point(int code, double x, double y, double z) {
    point(code, x, y);
    number(code + 20, z);
}

void TagWriter::subclass(std::string_view marker) {
    if (format_.hasSubclasses()) plain(100, marker);
}

void TagWriter::chunk(int code, std::string_view data) {
    // A binary chunk's length is one byte; longer data goes on in further groups of the same code.
    constexpr std::size_t kLongest = 127;
    do {
        const std::string_view part = data.substr(0, kLongest);
        this->code(code);
        bytes_.push_back(static_cast<char>(part.size()));
        bytes_ += part;
        data.remove_prefix(part.size());
    } while (!data.empty());
}

void TagWriter::copy(const Tag& tag) {
    const ValueType type = valueType(tag.code);
    switch (type) {
        case ValueType::String:
            if (format_.encoding.sameAs(tag.format->encoding)) return rawText(tag.code, tag.raw);
            return text(tag.code, tag.text());
        case ValueType::HandleText:
            return rawText(tag.code, tag.raw);
        case ValueType::Double:
            if (!format_.binary && !tag.format->binary) return rawText(tag.code, tag.raw);
            return number(tag.code, tag.number());
        case ValueType::Chunk:
            if (!format_.binary) return rawText(tag.code, tag.text());
            return chunk(tag.code, tag.format->binary ? std::string(tag.raw) : bytesFromHex(tag.raw));
        default:
            return integer(tag.code, tag.integer());
    }
}

}  // namespace dxf
