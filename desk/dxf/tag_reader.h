#pragma once

#include "desk/dxf/tag.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

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
    Step advance(Tag& tag) {
        if (binary_) return advanceBinary(tag);
        return advanceNear(tag) ? Step::Group : advanceText(tag);
    }
    /// Raises the ReadError that belongs to a step.
    [[noreturn]] void fail(Step step) const;

    /// Offset of the next group.
    std::size_t position() const { return static_cast<std::size_t>(position_ - source_.bytes.data()); }
    /// Goes to the group that begins at `offset`.
    void seek(std::size_t offset) { position_ = source_.bytes.data() + offset; }

    const TagSource& source() const { return source_; }

  private:
    /// Reads a group as nearly all are in ASCII drawings: a code of three places and a short value. False for
    /// any other, and near the end of the range.
    bool advanceNear(Tag& tag);
    Step advanceText(Tag& tag);
    Step advanceBinary(Tag& tag);
    /// Hands out the group from the reader's place to `end`.
    void take(Tag& tag, int code, const char* value, const char* valueEnd, const char* end);

    TagSource source_;
    const char* position_;
    const char* end_;
    bool binary_;
};

inline void TagReader::take(Tag& tag, int code, const char* value, const char* valueEnd, const char* end) {
    tag.code = code;
    tag.raw = std::string_view(value, static_cast<std::size_t>(valueEnd - value));
    tag.begin = position();
    position_ = end;
    tag.end = position();
    tag.format = source_.format;
}

/// The lines of group codes as drawings have them, three characters wide, by their code; the first byte
/// lowest. The places behind 999 are those of lines that are none.
inline constexpr auto kCodeLines = [] {
    std::array<std::uint32_t, 15 * 111 + 1> lines{};
    for (std::uint32_t code = 0; code < 1000; ++code) {
        const std::uint32_t hundreds = code > 99 ? '0' + code / 100 : ' ';
        const std::uint32_t tens = code > 9 ? '0' + code / 10 % 10 : ' ';
        lines[code] = hundreds | tens << 8 | ('0' + code % 10) << 16;
    }
    return lines;
}();

inline bool TagReader::advanceNear([[maybe_unused]] Tag& tag) {
#ifdef __SSE2__
    constexpr int kLook = 16;  // how much of the value is looked at in one go
    const char* const from = position_;
    if (end_ - from < 5 + 2 * kLook) return false;
    std::uint32_t line;
    std::memcpy(&line, from, sizeof line);
    // The low halves of digits are what they count, that of a blank is 0.
    const std::uint32_t code = (line & 15) * 100 + (line >> 8 & 15) * 10 + (line >> 16 & 15);
    if ((line & 0xFFFFFF) != kCodeLines[code]) return false;
    const char* const value = from + (from[3] == '\r' ? 5 : 4);
    if (value[-1] != '\n') return false;
    const auto feedsOf = [](const char* at) {
        const __m128i look = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(look, _mm_set1_epi8('\n'))));
    };
    unsigned feeds = feedsOf(value);
    if (feeds == 0) feeds = feedsOf(value + kLook) << kLook;
    if (feeds == 0) return false;
    const char* const feed = value + std::countr_zero(feeds);
    const bool valueReturn = feed != value && feed[-1] == '\r';
    take(tag, static_cast<int>(code), value, feed - (valueReturn ? 1 : 0), feed + 1);
    return true;
#else
    return false;
#endif
}

}  // namespace dxf
