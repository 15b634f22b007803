#include "desk/drawing/layer_table.h"

#include <utility>

namespace drawing {

const Layer& LayerTable::operator[](NameId name) const {
    return contains(name) ? layers_[byName_[name] - 1] : missing_;
}

bool LayerTable::contains(NameId name) const { return name < byName_.size() && byName_[name] != 0; }

void LayerTable::add(NameId name, Layer layer) {
    if (contains(name)) return;
    if (name >= byName_.size()) byName_.resize(name + 1, 0);
    layers_.push_back(std::move(layer));
    byName_[name] = static_cast<std::uint32_t>(layers_.size());
}

void LayerTable::remove(NameId name) {
    if (!contains(name)) return;
    const std::uint32_t position = byName_[name];
    layers_.erase(layers_.begin() + (position - 1));
    byName_[name] = 0;
    for (std::uint32_t& other : byName_) {
        if (other > position) --other;
    }
}

}  // namespace drawing
