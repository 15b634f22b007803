#pragma once

#include "desk/drawing/entity_data.h"
#include "desk/drawing/placement.h"

namespace drawing {

/// Puts an attribute through a map of world coordinates: position, alignment point, height, width factor,
/// rotation, obliquing angle and extrusion. `extrusion` is the one of the block reference, on whose side the
/// text stays; a map that mirrors turns the text backward, or upside down where `upsideDown` says so.
void transformAttribute(AttribData& attribute, const Transform& map, const Vector3& extrusion,
                        bool upsideDown);

/// An attribute as the definition `attribute` gives it for a reference at `placement`; `map` is the
/// placement's, from the block to the world.
void placeAttribute(AttribData& attribute, const Placement& placement, const Transform& map);

/// Moves an attribute along when its reference goes from one placement to another.
void moveAttribute(AttribData& attribute, const Placement& from, const Placement& to);

}  // namespace drawing
