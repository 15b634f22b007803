#pragma once

#include "desk/geometry/vector.h"

#include <cmath>
#include <initializer_list>

namespace geometry {

/// Degrees as a file has them to radians as the object model has them.
inline double radiansOf(double degrees) { return degrees * (kPi / 180); }

/// Radians to the degrees that read back as the very same radians, and of those the shortest ones: a quarter
/// turn is 90, not 90.00000000000001.
inline double degreesOf(double radians) {
    const double degrees = radians * (180 / kPi);
    for (const double scale : {1e6, 1e9, 1e12}) {
        const double rounded = std::round(degrees * scale) / scale;
        if (radiansOf(rounded) == radians) return rounded;
    }
    for (const double near : {degrees, std::nextafter(degrees, 1e308), std::nextafter(degrees, -1e308)}) {
        if (radiansOf(near) == radians) return near;
    }
    return degrees;
}

}  // namespace geometry
