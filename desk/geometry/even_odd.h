#pragma once

#include "desk/geometry/curve.h"
#include "desk/geometry/effort.h"

#include <vector>

namespace geometry {

/// The area of what lies inside an odd number of closed loops of the XY plane, which may cut one another and
/// themselves: to about eight digits where they have curves, else exact. Raises TooMuchWork.
double evenOddArea(const std::vector<Path>& loops, Effort& effort);

}  // namespace geometry
