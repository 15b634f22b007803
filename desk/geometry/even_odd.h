#pragma once

#include "desk/geometry/curve.h"

#include <vector>

namespace geometry {

/// The area of what lies inside an odd number of closed loops of the XY plane, which may cut one another and
/// themselves: to about eight digits where they have curves, else exact.
double evenOddArea(const std::vector<Path>& loops);

}  // namespace geometry
