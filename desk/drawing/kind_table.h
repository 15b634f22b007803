#pragma once

#include "desk/drawing/ids.h"

#include <cstdint>
#include <vector>

namespace drawing {

/// What many records of a drawing have in common.
struct RecordKind {
    NameId layer = kNoName;
    NameId name = kNoName;
    std::uint16_t type = 0;
    bool operator==(const RecordKind&) const = default;
};

/// The kinds of a drawing's records as numbers; they stay valid.
class KindTable {
  public:
    KindTable() { grow(); }
    std::uint32_t intern(const RecordKind& kind) {
        for (std::size_t at = mix(kind) & mask_;; at = (at + 1) & mask_) {
            if (slots_[at] == kFree) return add(kind, at);
            if (kinds_[slots_[at]] == kind) return slots_[at];
        }
    }
    const RecordKind& operator[](std::uint32_t number) const { return kinds_[number]; }

  private:
    static constexpr std::uint32_t kFree = 0xFFFFFFFF;
    static std::size_t mix(const RecordKind& kind) {
        const std::uint64_t words = std::uint64_t{kind.name} << 32 | kind.layer;
        const std::uint64_t scattered = (words + kind.type * 0x632BE59BD9B4E019u) * 0x9E3779B97F4A7C15u;
        return static_cast<std::size_t>(scattered >> 32);
    }
    std::uint32_t add(const RecordKind& kind, std::size_t slot);
    void grow();

    std::vector<RecordKind> kinds_;
    std::vector<std::uint32_t> slots_;  ///< numbers by what `mix` gives, with open addressing
    std::size_t mask_ = 0;
};

}  // namespace drawing
