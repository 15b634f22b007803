#pragma once

#include "desk/drawing/ids.h"
#include "desk/dxf/tag_reader.h"

#include <string>
#include <string_view>
#include <vector>

namespace drawing {

/// A layer as far as picks and edits ask for it.
struct Layer {
    std::string name;             ///< as the drawing spells it
    EntityId record = kNoEntity;  ///< its LAYER; kNoEntity for a layer that only entities name
    int color = 7;                ///< absolute value of group 62
    bool frozen = false;          ///< group 70, bit 1
    bool locked = false;          ///< group 70, bit 4
    bool off = false;             ///< group 62 is negative

    /// Takes colour and state from the groups of a LAYER.
    void readState(dxf::TagReader reader);
};

/// What the user switches on a layer.
struct LayerState {
    int color = 7;  ///< 1 to 255
    bool on = true;
    bool frozen = false;
    bool locked = false;
};

/// The layers by the keys of their interned names.
class LayerTable {
  public:
    /// The layer of a name; a thawed, unlocked one that is on where the table lacks it.
    const Layer& operator[](NameKey name) const;
    const std::vector<Layer>& all() const { return layers_; }
    bool contains(NameKey name) const;
    void add(NameKey name, Layer layer);
    void remove(NameKey name);
    /// For a change of state; null for a layer that the table lacks.
    Layer* find(NameKey name) { return contains(name) ? &layers_[byName_[indexOf(name)] - 1] : nullptr; }

  private:
    std::vector<Layer> layers_;
    std::vector<std::uint32_t> byName_;  ///< index + 1 of a layer by name, 0 for none
    Layer missing_;
};

}  // namespace drawing
