#pragma once

#include "desk/geometry/transform.h"

namespace drawing {

using geometry::kPi;
using geometry::kZAxis;
using geometry::Point3;
using geometry::Transform;
using geometry::Vector3;

/// What places a block reference. The insertion point is in object coordinates as the file stores it (group
/// 10).
struct Placement {
    Point3 insertion;
    Vector3 scale{1, 1, 1};      ///< groups 41, 42, 43
    double rotation = 0;         ///< radians (group 50 has degrees)
    Vector3 extrusion = kZAxis;  ///< groups 210, 220, 230
    int columns = 1;             ///< group 70
    int rows = 1;                ///< group 71
    double columnSpacing = 0;    ///< group 44
    double rowSpacing = 0;       ///< group 45
};

/// Block coordinates to world coordinates for the copy at `column`, `row` (from 0) of a reference. The
/// spacings turn with the rotation but aren't scaled.
Transform referenceTransform(const Placement& placement, const Point3& basePoint, int column = 0,
                             int row = 0);

}  // namespace drawing
