#include "desk/shapes/pick.h"

#include "desk/shapes/hit_test.h"
#include "desk/shapes/scene.h"
#include "desk/shapes/shape_walk.h"

#include <algorithm>

namespace shapes {

namespace {

/// One entity of a space with all that it draws.
class Candidate {
  public:
    Candidate(BlockShapes& shapes, EntityId id, WalkBudget& budget) : shapes_(shapes), budget_(budget) {
        budget_.addEntity();
        const Drawing& drawing = shapes.drawing();
        placed_ = readPlaced(drawing, id);
        showsZero_ = !drawing.layer(id).off;
        if (!placed_) large_ = shapes.large(id);
        if (!placed_ && large_ == nullptr) own_ = readGeometry(drawing, id, shapes.textStyles());
        addInsertions(shapes, id, placed_, own_);
        forEachShownAttribute(drawing, id,
                              [&](EntityId attribute) { addAttribute(shapes, attribute, own_); });
    }

    /// Visits all geometries that may meet the area until `visit` returns false.
    template <typename Visit>
    void walk(const Rectangle& area, ShapeWalk::Copies copies, const Visit& visit) {
        if (!visit(own_, Transform{})) return;
        if (large_ != nullptr) ShapeWalk(shapes_, area, copies, budget_, visit).walk(*large_);
        if (placed_) ShapeWalk(shapes_, area, copies, budget_, visit).walk(*placed_, showsZero_);
    }

  private:
    BlockShapes& shapes_;
    WalkBudget& budget_;
    Geometry own_;
    const BlockShape* large_ = nullptr;
    std::optional<Placed> placed_;
    bool showsZero_ = true;
};

bool reachesInto(Candidate& candidate, const Rectangle& area) {
    bool found = false;
    candidate.walk(area, ShapeWalk::Copies::Near, [&](const Geometry& geometry, const Transform& transform) {
        found = touches(geometry, transform, area);
        return !found;
    });
    return found;
}

bool liesWithin(Candidate& candidate, const Rectangle& bounds, const Rectangle& area) {
    bool any = false;
    bool inside = true;
    candidate.walk(bounds, ShapeWalk::Copies::Corners,
                   [&](const Geometry& geometry, const Transform& transform) {
                       any = any || !geometry.empty();
                       inside = liesInside(geometry, transform, area);
                       return inside;
                   });
    return any && inside;
}

/// How far a hit counts for the choice among entities; kFar where it is beyond the tolerance.
double rankOf(const Hit& hit, double tolerance) {
    // A fill stands back by a trace, so that the line along its border comes first.
    const double trace = tolerance / 1000;
    double rank = hit.distance;
    if (hit.border <= tolerance) rank = std::min(rank, hit.border + trace);
    if (hit.filled) rank = std::min(rank, tolerance / 2 + trace);
    return rank <= tolerance + trace ? rank : Box::kFar;
}

}  // namespace

std::vector<EntityId> entitiesAt(const Drawing& drawing, BlockId space, const Point3& point,
                                 double tolerance) {
    struct Found {
        EntityId id;
        double rank;
    };
    std::vector<Found> found;
    Scene& scene = sceneOf(drawing);
    BlockShapes& shapes = scene.blocks();
    WalkBudget budget;
    const Vector3 reach{tolerance, tolerance, 0};
    const Rectangle area(point - reach, point + reach);
    scene.space(space).forEachNear(area, [&](EntityId id, const Rectangle&) {
        double rank = Box::kFar;
        Candidate(shapes, id, budget)
            .walk(area, ShapeWalk::Copies::Near, [&](const Geometry& geometry, const Transform& transform) {
                rank = std::min(rank, rankOf(hitTest(geometry, transform, point), tolerance));
                return true;
            });
        if (rank < Box::kFar) found.push_back({id, rank});
        return true;
    });
    std::sort(found.begin(), found.end(), [](const Found& left, const Found& right) {
        return left.rank != right.rank ? left.rank < right.rank : left.id > right.id;
    });
    std::vector<EntityId> result;
    result.reserve(found.size());
    for (const Found& each : found) result.push_back(each.id);
    return result;
}

std::vector<EntityId> entitiesIn(const Drawing& drawing, BlockId space, const Rectangle& area,
                                 bool crossing) {
    std::vector<EntityId> result;
    Scene& scene = sceneOf(drawing);
    BlockShapes& shapes = scene.blocks();
    WalkBudget budget;
    scene.space(space).forEachNear(area, [&](EntityId id, const Rectangle& bounds) {
        // A reference on a layer that is off needn't draw all that its box is about.
        const bool boxInside = area.contains(bounds.low) && area.contains(bounds.high);
        if (boxInside && !drawing.layer(id).off) {
            result.push_back(id);
            return true;
        }
        Candidate candidate(shapes, id, budget);
        const bool chosen = crossing ? reachesInto(candidate, area) : liesWithin(candidate, bounds, area);
        if (chosen) result.push_back(id);
        return true;
    });
    return result;
}

void forEachGeometryNear(const Drawing& drawing, BlockId space, const Rectangle& area,
                         const VisitGeometry& visit) {
    Scene& scene = sceneOf(drawing);
    BlockShapes& shapes = scene.blocks();
    WalkBudget budget;
    scene.space(space).forEachNear(area, [&](EntityId id, const Rectangle&) {
        bool goesOn = true;
        Candidate(shapes, id, budget)
            .walk(area, ShapeWalk::Copies::Near, [&](const Geometry& geometry, const Transform& transform) {
                return goesOn = visit(id, geometry, transform);
            });
        return goesOn;
    });
}

std::optional<EntityId> pickEntity(const Drawing& drawing, const Point3& point, double tolerance) {
    const std::vector<EntityId> found = entitiesAt(drawing, drawing.modelSpace(), point, tolerance);
    return found.empty() ? std::nullopt : std::optional(found.front());
}

std::vector<EntityId> selectWindow(const Drawing& drawing, const Point3& corner, const Point3& opposite,
                                   bool crossing) {
    return entitiesIn(drawing, drawing.modelSpace(), Rectangle(corner, opposite), crossing);
}

Box extentsOf(const Drawing& drawing, BlockId space) { return sceneOf(drawing).space(space).extents(); }

}  // namespace shapes
