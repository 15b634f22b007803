#pragma once

#include "desk/shapes/names.h"

/// The room's words: what it takes from the rooms below it.
namespace picture {

using drawing::BlockId;
using drawing::Drawing;
using drawing::EntityId;
using drawing::kNoBlock;
using drawing::kNoEntity;
using geometry::Box;
using geometry::Point3;
using geometry::Transform;
using geometry::Vector3;

}  // namespace picture
