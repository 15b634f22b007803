#include "desk/drawing/kind_table.h"

namespace drawing {

std::uint32_t KindTable::add(const RecordKind& kind, std::size_t slot) {
    const auto number = static_cast<std::uint32_t>(kinds_.size());
    kinds_.push_back(kind);
    slots_[slot] = number;
    if (kinds_.size() * 2 > slots_.size()) grow();
    return number;
}

void KindTable::grow() {
    constexpr std::size_t kFirst = 128;
    slots_.assign(slots_.empty() ? kFirst : slots_.size() * 2, kFree);
    mask_ = slots_.size() - 1;
    for (std::uint32_t number = 0; number < kinds_.size(); ++number) {
        std::size_t at = mix(kinds_[number]) & mask_;
        while (slots_[at] != kFree) at = (at + 1) & mask_;
        slots_[at] = number;
    }
}

}  // namespace drawing
