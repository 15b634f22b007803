#include "desk/drawing/pick.h"

#include "desk/drawing/pick_geometry.h"
#include "desk/drawing/pick_shape.h"
#include "desk/drawing/pick_walk.h"

#include <algorithm>

namespace drawing {

namespace {

/// One entity of the space with all that it draws.
class Candidate {
  public:
    Candidate(BlockShapes& shapes, EntityId id) : shapes_(shapes) {
        const Drawing& drawing = shapes.drawing();
        placed_ = readPlaced(drawing, id);
        showsZero_ = !drawing.layer(id).off;
        if (!placed_ || showsZero_) own_ = readGeometry(drawing, id);
        for (const EntityId attribute : drawing.attributes(id)) {
            if (!isAttributeShown(drawing, attribute)) continue;
            Geometry text = readGeometry(drawing, attribute);
            std::move(text.fills.begin(), text.fills.end(), std::back_inserter(own_.fills));
        }
        bounds_ = own_.bounds();
        if (placed_) bounds_.add(placedBounds(shapes, *placed_));
    }

    const Box& bounds() const { return bounds_; }

    /// Visits all geometries that may meet the area until `visit` returns false.
    template <typename Visit>
    void walk(const Rectangle& area, ShapeWalk::Copies copies, const Visit& visit) {
        if (!own_.empty() && !visit(own_, Transform{})) return;
        if (placed_) ShapeWalk(shapes_, area, copies, visit).walk(*placed_, showsZero_);
    }

  private:
    BlockShapes& shapes_;
    Geometry own_;
    std::optional<Placed> placed_;
    bool showsZero_ = true;
    Box bounds_;
};

Rectangle around(const Box& box) { return {box.low, box.high}; }

bool reachesInto(Candidate& candidate, const Rectangle& area) {
    bool found = false;
    candidate.walk(area, ShapeWalk::Copies::Near, [&](const Geometry& geometry, const Transform& transform) {
        found = touches(geometry, transform, area);
        return !found;
    });
    return found;
}

bool liesWithin(Candidate& candidate, const Rectangle& area) {
    if (area.contains(candidate.bounds().low) && area.contains(candidate.bounds().high)) return true;
    bool any = false;
    bool inside = true;
    candidate.walk(around(candidate.bounds()), ShapeWalk::Copies::Corners,
                   [&](const Geometry& geometry, const Transform& transform) {
                       any = true;
                       inside = liesInside(geometry, transform, area);
                       return inside;
                   });
    return any && inside;
}

}  // namespace

bool mayDraw(const Drawing& drawing, EntityId id) {
    if (drawing.isDisplayed(id)) return true;
    const Layer& layer = drawing.layer(id);
    return layer.off && !layer.frozen && drawing.type(id) == "INSERT" && drawing.common(id).visible;
}

Picker::Picker(const Drawing& drawing) : drawing_(drawing) {}
Picker::~Picker() = default;

BlockShapes& Picker::shapes() {
    if (!shapes_ || revision_ != drawing_.revision()) {
        shapes_ = std::make_unique<BlockShapes>(drawing_);
        revision_ = drawing_.revision();
    }
    return *shapes_;
}

std::optional<EntityId> Picker::at(const Point3& point, double tolerance) {
    const Vector3 reach{tolerance, tolerance, 0};
    const Rectangle area(point - reach, point + reach);
    std::optional<EntityId> found;
    double best = tolerance;
    BlockShapes& blocks = shapes();
    drawing_.forEachEntity(drawing_.modelSpace(), [&](EntityId id) {
        if (!mayDraw(drawing_, id)) return true;
        Candidate candidate(blocks, id);
        if (candidate.bounds().empty() || candidate.bounds().distanceXY(point) > best) return true;
        double nearest = Box::kFar;
        candidate.walk(area, ShapeWalk::Copies::Near,
                       [&](const Geometry& geometry, const Transform& transform) {
                           const Hit hit = hitTest(geometry, transform, point);
                           nearest = std::min(nearest, hit.distance);
                           if (hit.filled) nearest = std::min(nearest, tolerance / 2);
                           return true;
                       });
        if (nearest <= best) {
            best = nearest;
            found = id;
        }
        return true;
    });
    return found;
}

std::vector<EntityId> Picker::window(const Point3& corner, const Point3& opposite, bool crossing) {
    const Rectangle area(corner, opposite);
    std::vector<EntityId> result;
    BlockShapes& blocks = shapes();
    drawing_.forEachEntity(drawing_.modelSpace(), [&](EntityId id) {
        if (!mayDraw(drawing_, id)) return true;
        Candidate candidate(blocks, id);
        const Box& box = candidate.bounds();
        const bool apart = box.empty() || box.low.x > area.high.x || box.high.x < area.low.x ||
                           box.low.y > area.high.y || box.high.y < area.low.y;
        if (apart) return true;
        if (crossing ? reachesInto(candidate, area) : liesWithin(candidate, area)) result.push_back(id);
        return true;
    });
    return result;
}

std::optional<EntityId> pickEntity(const Drawing& drawing, const Point3& point, double tolerance) {
    return Picker(drawing).at(point, tolerance);
}

std::vector<EntityId> selectWindow(const Drawing& drawing, const Point3& corner, const Point3& opposite,
                                   bool crossing) {
    return Picker(drawing).window(corner, opposite, crossing);
}

}  // namespace drawing
