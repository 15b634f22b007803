#pragma once

#include "host/object.h"

#include <vector>

namespace labels {

/// Measures in drawing units, and square ones for the area.
struct PolygonMeasure {
    double length = 0;     ///< of the open line through the points
    double perimeter = 0;  ///< with the closing segment
    double area = 0;       ///< whatever the direction; the net value of a polygon that crosses itself
};

/// Measures a polygon in the XY plane; Z doesn't count. Fewer than two points give zeros.
PolygonMeasure measurePolygon(std::vector<host::Point> points);

}  // namespace labels
