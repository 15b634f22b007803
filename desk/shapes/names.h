#pragma once

#include "desk/drawing/drawing.h"
#include "desk/geometry/angles.h"
#include "desk/geometry/curve.h"
#include "desk/geometry/fill.h"

/// The room's words: what it takes from the rooms below it.
namespace shapes {

using drawing::BlockId;
using drawing::Drawing;
using drawing::EntityId;
using drawing::kNoBlock;
using drawing::kNoEntity;
using drawing::kNotApplicable;
using drawing::Layer;
using drawing::PartRange;
using drawing::Placement;
using drawing::raise;
using drawing::referenceTransform;
using geometry::ArcCurve;
using geometry::Box;
using geometry::Curve;
using geometry::Fill;
using geometry::FlatLoop;
using geometry::kPi;
using geometry::kZAxis;
using geometry::LineCurve;
using geometry::Path;
using geometry::Point3;
using geometry::radiansOf;
using geometry::Rectangle;
using geometry::SplineCurve;
using geometry::Transform;
using geometry::Vector3;

}  // namespace shapes
