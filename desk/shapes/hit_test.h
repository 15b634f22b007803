#pragma once

#include "desk/shapes/geometry.h"
#include "desk/shapes/names.h"

namespace shapes {

// All of this is as seen from above: Z doesn't count.

/// How near a point is to what is drawn.
struct Hit {
    double distance = Box::kFar;  ///< from the nearest stroke or point; 0 on the band of a wide polyline
    double border = Box::kFar;    ///< from the border of the nearest filled area or text
    bool filled = false;          ///< whether a filled area or a text's box covers the point
};
/// Of the geometry placed by `transform`.
Hit hitTest(const Geometry& geometry, const Transform& transform, const Point3& point);

/// Whether anything drawn lies in the rectangle, on its border or about it.
bool touches(const Geometry& geometry, const Transform& transform, const Rectangle& rectangle);

/// Whether all that is drawn lies in the rectangle.
bool liesInside(const Geometry& geometry, const Transform& transform, const Rectangle& rectangle);

/// The stretch of an endless line, placed by `transform`, that holds all of it within `reach` of a place.
LineCurve stretchNear(const EndlessLine& line, const Transform& transform, const Point3& place, double reach);

}  // namespace shapes
