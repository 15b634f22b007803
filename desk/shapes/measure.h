#pragma once

#include "desk/shapes/names.h"

#include <optional>
#include <string_view>

namespace shapes {

/// The measures that the host's automation model gives under these names.
enum class Measure { Length, Area, Circumference, Perimeter };

/// A measure of an entity in drawing units. The kinds that have one are those of the host:
///
///   Length         LINE, LWPOLYLINE, POLYLINE (plane and 3D, not meshes)
///   Area           LWPOLYLINE, plane POLYLINE, CIRCLE, ARC, ELLIPSE, SPLINE, HATCH, REGION
///   Circumference  CIRCLE
///   Perimeter      REGION
///
/// An open polyline, arc or spline has the area that a straight line from its end to its start closes. Raises
/// kNoSuchMember for the other kinds, kNotApplicable for a spline that doesn't lie in a plane and for
/// a region, whose shape stands in modeller data that isn't read.
double measure(const Drawing& drawing, EntityId id, Measure what);

/// Whether entities of the kind have the measure. `id` tells a POLYLINE from a mesh.
bool hasMeasure(const Drawing& drawing, EntityId id, Measure what);

}  // namespace shapes
