#pragma once

#include "desk/dxf/tag.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace dxf {

/// Bytes with groups in them, the format that they have, and the file's name for errors. The bytes of new
/// entities make a source too, with an empty path.
struct TagSource {
    std::string_view bytes;
    const Format* format = nullptr;
    std::string_view path;

    /// Raises a ReadError "file:line: what" about the byte at `offset`.
    [[noreturn]] void fail(std::size_t offset, std::string_view what) const;
};

/// Reads the groups of a range of bytes, in order, comments included. No allocation, one look at each byte.
class TagReader {
  public:
    /// The whole source from its first group on.
    explicit TagReader(const TagSource& source)
        : TagReader(source, source.bytes.size() < source.format->start ? 0 : source.format->start,
                    source.bytes.size()) {}
    /// A range whose ends are ends of groups.
    TagReader(const TagSource& source, std::size_t begin, std::size_t end)
        : source_(source),
          position_(source.bytes.data() + begin),
          end_(source.bytes.data() + end),
          binary_(source.format->binary) {}

    /// The next group, or false at the end of the range. Raises a ReadError where a group code should stand
    /// and doesn't, and where the range ends in the middle of a group.
    bool next(Tag& tag) {
        const Step step = advance(tag);
        if (step == Step::Group) [[likely]]
            return true;
        if (step == Step::End) return false;
        fail(step);
    }

    enum class Step { Group, End, BadCode, CutOff };
    /// As `next`, but tells of bad bytes instead of raising. The reader then stands before the bad group.
    Step advance(Tag& tag) { return binary_ ? advanceBinary(tag) : advanceText(tag); }
    /// Raises the ReadError that belongs to a step.
    [[noreturn]] void fail(Step step) const;

    /// Offset of the next group.
    std::size_t position() const { return static_cast<std::size_t>(position_ - source_.bytes.data()); }
    /// Goes to the group that begins at `offset`.
    void seek(std::size_t offset) { position_ = source_.bytes.data() + offset; }

    const TagSource& source() const { return source_; }

  private:
    Step advanceText(Tag& tag);
    Step advanceBinary(Tag& tag);
    static const char* findNewline(const char* from, const char* end);

    TagSource source_;
    const char* position_;
    const char* end_;
    bool binary_;
};

inline const char* TagReader::findNewline(const char* from, const char* end) {
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

inline TagReader::Step TagReader::advanceText(Tag& tag) {
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
    tag.code = negative ? -code : code;
    tag.raw = std::string_view(value, static_cast<std::size_t>(valueEnd - value));
    tag.begin = static_cast<std::size_t>(position_ - source_.bytes.data());
    tag.end = static_cast<std::size_t>(p - source_.bytes.data());
    tag.format = source_.format;
    position_ = p;
    return Step::Group;
}

}  // namespace dxf
