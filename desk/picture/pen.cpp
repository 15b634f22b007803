#include "desk/picture/pen.h"

#include <bit>

namespace picture {

Look Context::resolve(const Pen& pen) const {
    const auto of = [&](From from) -> const Look& {
        return from == From::Own ? pen.look : from == From::Reference ? reference : referenceLayer;
    };
    return {of(pen.colorFrom).color, of(pen.lineTypeFrom).lineType, of(pen.weightFrom).weight,
            of(pen.opacityFrom).opacity};
}

std::size_t PenTable::Hash::operator()(const Pen& pen) const {
    std::size_t hash = 0;
    const auto mix = [&](std::size_t value) { hash = (hash ^ value) * 0x9E3779B97F4A7C15u + (hash >> 29); };
    const Color& color = pen.look.color;
    mix(static_cast<std::size_t>(color.red << 16 | color.green << 8 | color.blue |
                                 (color.isForeground ? 1 << 24 : 0)));
    mix(pen.look.lineType);
    mix(static_cast<std::size_t>(static_cast<std::uint16_t>(pen.look.weight)) << 8 | pen.look.opacity);
    mix(std::bit_cast<std::uint32_t>(pen.lineTypeScale));
    mix(static_cast<std::size_t>(pen.opacityFrom) << 6 | static_cast<std::size_t>(pen.colorFrom) << 4 |
        static_cast<std::size_t>(pen.lineTypeFrom) << 2 | static_cast<std::size_t>(pen.weightFrom));
    return hash;
}

PenId PenTable::intern(const Pen& pen) {
    if (last_ < pens_.size() && pens_[last_] == pen) return last_;
    const auto [found, isNew] = ids_.emplace(pen, static_cast<PenId>(pens_.size()));
    if (isNew) pens_.push_back(pen);
    return last_ = found->second;
}

}  // namespace picture
