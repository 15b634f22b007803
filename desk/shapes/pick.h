#pragma once

#include "desk/shapes/geometry.h"

#include <functional>
#include <optional>
#include <vector>

namespace shapes {

// Entities of a space by where they are, as seen from above. Only what is drawn can be picked: invisible
// entities and those on layers off or frozen can't, those on locked layers can. A reference is found by all
// that its block draws, nested blocks and arrays included, and by its attributes. The first look at a drawing
// reads all its entities, the next ones those that were touched since (see Scene).

/// The entities at most `tolerance` away from a point, the nearest first; of equals the one drawn last, and
/// strokes before the fills that they go round. A filled area or a text that covers the point counts as half
/// the tolerance away, so that a line drawn over it can be picked.
std::vector<EntityId> entitiesAt(const Drawing& drawing, BlockId space, const Point3& point,
                                 double tolerance);
/// The first of them in model space.
std::optional<EntityId> pickEntity(const Drawing& drawing, const Point3& point, double tolerance);

/// The entities that lie wholly in the rectangle between two corners, in drawing order; with `crossing` those
/// that reach into it too.
std::vector<EntityId> entitiesIn(const Drawing& drawing, BlockId space, const Rectangle& area, bool crossing);
/// The same in model space.
std::vector<EntityId> selectWindow(const Drawing& drawing, const Point3& corner, const Point3& opposite,
                                   bool crossing);

/// Hands over what the entities draw that may meet an area, a geometry and its place in the world at a time,
/// in drawing order, until `visit` returns false.
using VisitGeometry = std::function<bool(EntityId, const Geometry&, const Transform&)>;
void forEachGeometryNear(const Drawing& drawing, BlockId space, const Rectangle& area,
                         const VisitGeometry& visit);

/// The box about all that a space draws, at height 0; empty where nothing is drawn.
Box extentsOf(const Drawing& drawing, BlockId space);

}  // namespace shapes
