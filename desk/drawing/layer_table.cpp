#include "desk/drawing/layer_table.h"

#include <cstdlib>
#include <utility>

namespace drawing {

void Layer::readState(dxf::TagReader reader) {
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 62) {
            color = static_cast<int>(std::abs(tag.integerOr(7)));
            off = tag.integerOr(7) < 0;
        }
        if (tag.code == 70) {
            frozen = (tag.integerOr(0) & 1) != 0;
            locked = (tag.integerOr(0) & 4) != 0;
        }
    }
}

const Layer& LayerTable::operator[](NameKey name) const {
    return contains(name) ? layers_[byName_[indexOf(name)] - 1] : missing_;
}

bool LayerTable::contains(NameKey name) const {
    return indexOf(name) < byName_.size() && byName_[indexOf(name)] != 0;
}

void LayerTable::add(NameKey name, Layer layer) {
    if (contains(name)) return;
    if (indexOf(name) >= byName_.size()) byName_.resize(indexOf(name) + 1, 0);
    layers_.push_back(std::move(layer));
    byName_[indexOf(name)] = static_cast<std::uint32_t>(layers_.size());
}

void LayerTable::remove(NameKey name) {
    if (!contains(name)) return;
    const std::uint32_t position = byName_[indexOf(name)];
    layers_.erase(layers_.begin() + (position - 1));
    byName_[indexOf(name)] = 0;
    for (std::uint32_t& other : byName_) {
        if (other > position) --other;
    }
}

}  // namespace drawing
