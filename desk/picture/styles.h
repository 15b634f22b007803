#pragma once

#include "desk/picture/pen.h"

#include <vector>

namespace picture {

/// Turns the groups of entities and layers into pens. It stands for the drawing's tables as they are when it
/// is made.
class Styles {
  public:
    explicit Styles(const Drawing& drawing);

    /// The pen of an entity and what it hands down where it is a reference.
    struct EntityStyle {
        Pen pen;
        Look layer;  ///< of its layer
        bool onLayerZero = false;
    };
    EntityStyle of(EntityId id) const;
    /// Place of the entity's layer in the layer table; behind its end for a layer that the table lacks.
    std::uint32_t layerNumber(EntityId id) const;
    const LineTypes& lineTypes() const { return lineTypes_; }

  private:
    const Look& layerLook(EntityId id) const;
    Look readLayer(EntityId record) const;

    const Drawing& drawing_;
    LineTypes lineTypes_;
    Weight defaultWeight_ = kDefaultWeight;
    Look missingLayer_;
    std::vector<Look> layers_;  ///< of the layer table, in its order
};

}  // namespace picture
