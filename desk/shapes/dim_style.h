#pragma once

#include "desk/shapes/names.h"

namespace shapes {

/// Sizes of a dimension style in drawing units, $DIMSCALE times what is stored.
struct DimStyle {
    double arrow = 0.18;  ///< $DIMASZ
    double text = 0.18;   ///< $DIMTXT
};

/// The style that a LEADER or a TOLERANCE names (3) with what the entity's extended data overrides; the
/// header's variables where the drawing lacks the style.
DimStyle readDimStyle(const Drawing& drawing, EntityId id);

}  // namespace shapes
