#include "desk/dxf/tag_reader.h"

#include <bit>
#include <cstring>

namespace dxf {

namespace {

/// How many bytes a binary value of fixed length has; 0 for the others.
std::size_t fixedSize(ValueType type) {
    switch (type) {
        case ValueType::Double:
        case ValueType::Int64:
            return 8;
        case ValueType::Int32:
            return 4;
        case ValueType::Int16:
            return 2;
        case ValueType::Bool:
            return 1;
        default:
            return 0;
    }
}

int twoBytes(const char* at) {
    return static_cast<std::int16_t>(static_cast<unsigned char>(at[0]) | static_cast<unsigned char>(at[1])
                                                                             << 8);
}

const char* findNewline(const char* from, const char* end) {
    // Values are short, so eight bytes at a time beat a call of memchr.
    constexpr std::uint64_t kOnes = 0x0101010101010101u;
    constexpr std::uint64_t kHighs = 0x8080808080808080u;
    if constexpr (std::endian::native == std::endian::little) {
        while (end - from >= 8) {
            std::uint64_t word;
            std::memcpy(&word, from, 8);
            word ^= kOnes * '\n';
            const std::uint64_t hits = (word - kOnes) & ~word & kHighs;
            if (hits != 0) return from + std::countr_zero(hits) / 8;
            from += 8;
        }
    }
    while (from != end && *from != '\n') ++from;
    return from;
}

}  // namespace

void TagSource::fail(std::size_t offset, std::string_view what) const {
    std::string text(path);
    if (format != nullptr && format->binary)
        text += ": byte " + std::to_string(offset);
    else
        text += (text.empty() ? "line " : ":") + std::to_string(lineOf(bytes, offset));
    throw ReadError(kInvalidFileFormat, text + ": " + std::string(what));
}

void TagReader::fail(Step step) const {
    const std::size_t size = static_cast<std::size_t>(end_ - source_.bytes.data());
    if (step == Step::CutOff) source_.fail(position(), "the file ends in the middle of a group");
    if (binary_) source_.fail(position(), "a group code should stand here");
    const std::string_view rest = source_.bytes.substr(position(), size - position());
    std::string_view line = rest.substr(0, std::min(rest.find('\n'), rest.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    source_.fail(position(), "a group code should stand here, not " + quoted(line));
}

TagReader::Step TagReader::advanceText(Tag& tag) {
    const char* p = position_;
    if (p == end_) return Step::End;
    while (p != end_ && (*p == ' ' || *p == '\t')) ++p;
    const bool negative = p != end_ && *p == '-';
    if (negative) ++p;
    const char* const digits = p;
    int code = 0;
    while (p != end_ && static_cast<unsigned char>(*p - '0') < 10 && p - digits < 6)
        code = code * 10 + (*p++ - '0');
    if (p == digits) return p == end_ ? Step::CutOff : Step::BadCode;
    while (p != end_ && (*p == '\r' || *p == ' ' || *p == '\t')) ++p;
    if (p == end_) return Step::CutOff;
    if (*p != '\n' || code > 32767) return Step::BadCode;
    const char* const value = ++p;
    if (value == end_) return Step::CutOff;
    p = findNewline(value, end_);
    const char* const valueEnd = p != value && p[-1] == '\r' ? p - 1 : p;
    if (p != end_) ++p;
    take(tag, negative ? -code : code, value, valueEnd, p);
    return Step::Group;
}

TagReader::Step TagReader::advanceBinary(Tag& tag) {
    const char* p = position_;
    const auto left = [&] { return static_cast<std::size_t>(end_ - p); };
    if (p == end_) return Step::End;
    int code = 0;
    if (source_.format->wideCodes || *p == '\xFF') {
        if (!source_.format->wideCodes) ++p;  // the escape before a code beyond one byte
        if (left() < 2) return Step::CutOff;
        code = twoBytes(p);
        p += 2;
    } else {
        code = static_cast<unsigned char>(*p++);
    }
    // The code decides how long the value is, so an unknown one ends all reading.
    if (!isValidCode(code)) return Step::BadCode;

    const ValueType type = valueType(code);
    std::size_t size = fixedSize(type);
    std::size_t behind = 0;
    if (type == ValueType::Chunk) {
        if (p == end_) return Step::CutOff;
        size = static_cast<unsigned char>(*p++);
    } else if (size == 0) {
        const void* const zero = std::memchr(p, 0, left());
        if (zero == nullptr) return Step::CutOff;
        size = static_cast<std::size_t>(static_cast<const char*>(zero) - p);
        behind = 1;
    }
    if (left() < size + behind) return Step::CutOff;
    take(tag, code, p, p + size, p + size + behind);
    return Step::Group;
}

}  // namespace dxf
