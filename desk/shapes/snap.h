#pragma once

#include "desk/shapes/names.h"

#include <optional>

namespace shapes {

/// Places of a drawing that a point snaps to, the ones that win first.
enum class SnapKind { End, Middle, Intersection, Insertion, Centre, Quadrant, Perpendicular, Nearest };

struct Snap {
    SnapKind kind = SnapKind::Nearest;
    Point3 at;  ///< in the space's coordinates, Z 0
    friend bool operator==(const Snap&, const Snap&) = default;
};

/// A snap that was found before keeps this much more reach, so that it doesn't flicker.
inline constexpr double kSnapHold = 1.5;

/// The snap for a cursor: of those within `reach` (drawing units) the first kind, of one kind the nearest; a
/// place on a line, the nearest or the foot of the perpendicular from `base`, only where there is no other.
/// `held` is the one that is shown now.
std::optional<Snap> findSnap(const Drawing& drawing, BlockId space, const Point3& cursor, double reach,
                             const std::optional<Point3>& base, const std::optional<Snap>& held);

}  // namespace shapes
