#pragma once

#include "desk/dxf/tag_reader.h"

#include <bit>
#include <cstdint>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace dxf {

/// Reads the next group where its two lines end within 32 bytes and its code is plain digits, as nearly all
/// are in ASCII drawings: one look finds both ends. False for any other group, which `TagReader::advance`
/// then reads. The reader's range must reach to the end of its source.
inline bool readNear([[maybe_unused]] TagReader& reader, [[maybe_unused]] Tag& tag) {
#ifdef __SSE2__
    const TagSource& source = reader.source();
    const std::size_t begin = reader.position();
    if (source.format->binary || source.bytes.size() - begin < 32) return false;
    const char* const from = source.bytes.data() + begin;
    const auto feedsOf = [](const char* at) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n'))));
    };
    const std::uint32_t feeds = feedsOf(from) | feedsOf(from + 16) << 16;
    const std::uint32_t behindFirst = feeds & (feeds - 1);
    if (behindFirst == 0) return false;
    const auto codeEnd = static_cast<std::size_t>(std::countr_zero(feeds));
    const auto valueEnd = static_cast<std::size_t>(std::countr_zero(behindFirst));
    const std::size_t width = codeEnd != 0 && from[codeEnd - 1] == '\r' ? codeEnd - 1 : codeEnd;
    // A digit becomes its value, a blank 16, any other byte something beyond 9.
    const auto digit = [&](std::size_t at) { return static_cast<unsigned>(from[at] ^ '0'); };
    unsigned code = 0;
    if (width == 3) {
        const unsigned hundreds = digit(0), tens = digit(1), ones = digit(2);
        const bool tensAreBlank = tens == 16 && hundreds == 16;
        if (ones > 9 || (tens > 9 && !tensAreBlank) || (hundreds > 9 && hundreds != 16)) return false;
        code = (hundreds & 15) * 100 + (tens & 15) * 10 + ones;
    } else {
        if (width == 0 || width > 4) return false;
        for (std::size_t at = 0; at < width; ++at) {
            if (digit(at) > 9) return false;
            code = code * 10 + digit(at);
        }
    }
    const std::size_t value = codeEnd + 1;
    const bool hasReturn = valueEnd != value && from[valueEnd - 1] == '\r';
    tag.code = static_cast<int>(code);
    tag.raw = std::string_view(from + value, valueEnd - value - (hasReturn ? 1 : 0));
    tag.begin = begin;
    tag.end = begin + valueEnd + 1;
    tag.format = source.format;
    reader.seek(tag.end);
    return true;
#else
    return false;
#endif
}

}  // namespace dxf
