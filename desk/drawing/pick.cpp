#include "desk/drawing/pick.h"

#include "desk/drawing/pick_geometry.h"
#include "desk/drawing/pick_shape.h"
#include "desk/drawing/pick_walk.h"

#include <algorithm>

namespace drawing {

namespace {

/// The attributes of a reference that are drawn.
template <typename Visit>
void forEachAttribute(const Drawing& drawing, EntityId id, const Visit& visit) {
    if (drawing.type(id) != "INSERT") return;
    for (const EntityId attribute : drawing.attributes(id)) {
        if (drawing.isDisplayed(attribute)) visit(attribute);
    }
}

/// The box about all that an entity of the space draws.
Box boundsOf(BlockShapes& shapes, EntityId id) {
    const Drawing& drawing = shapes.drawing();
    const std::optional<Placed> placed = readPlaced(drawing, id);
    Box bounds = placed ? placedBounds(shapes, *placed) : readGeometry(drawing, id).bounds();
    forEachAttribute(drawing, id,
                     [&](EntityId attribute) { bounds.add(readTextBounds(drawing, attribute)); });
    return bounds;
}

/// One entity of the space with all that it draws.
class Candidate {
  public:
    Candidate(BlockShapes& shapes, EntityId id) : shapes_(shapes) {
        const Drawing& drawing = shapes.drawing();
        placed_ = readPlaced(drawing, id);
        showsZero_ = !drawing.layer(id).off;
        if (!placed_) own_ = readGeometry(drawing, id);
        forEachAttribute(drawing, id, [&](EntityId attribute) {
            Geometry text = readGeometry(drawing, attribute);
            std::move(text.fills.begin(), text.fills.end(), std::back_inserter(own_.fills));
        });
    }

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
};

bool overlap(const Box& box, const Rectangle& area) {
    return box.low.x <= area.high.x && box.high.x >= area.low.x && box.low.y <= area.high.y &&
           box.high.y >= area.low.y;
}

bool reachesInto(Candidate& candidate, const Rectangle& area) {
    bool found = false;
    candidate.walk(area, ShapeWalk::Copies::Near, [&](const Geometry& geometry, const Transform& transform) {
        found = touches(geometry, transform, area);
        return !found;
    });
    return found;
}

bool liesWithin(Candidate& candidate, const Box& bounds, const Rectangle& area) {
    if (area.contains(bounds.low) && area.contains(bounds.high)) return true;
    bool any = false;
    bool inside = true;
    const Rectangle whole(bounds.low, bounds.high);
    candidate.walk(whole, ShapeWalk::Copies::Corners,
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
    return layer.off && !layer.frozen && drawing.type(id) == "INSERT" && !isInvisible(drawing, id);
}

Picker::Picker(const Drawing& drawing) : drawing_(drawing) {}
Picker::~Picker() = default;

void Picker::refresh() {
    if (shapes_ && revision_ == drawing_.revision()) return;
    shapes_ = std::make_unique<BlockShapes>(drawing_);
    entries_.clear();
    drawing_.forEachEntity(drawing_.modelSpace(), [&](EntityId id) {
        if (!mayDraw(drawing_, id)) return true;
        const Box bounds = boundsOf(*shapes_, id);
        if (!bounds.empty()) entries_.push_back({id, bounds});
        return true;
    });
    revision_ = drawing_.revision();
}

std::optional<EntityId> Picker::at(const Point3& point, double tolerance) {
    refresh();
    const Vector3 reach{tolerance, tolerance, 0};
    const Rectangle area(point - reach, point + reach);
    std::optional<EntityId> found;
    double best = tolerance;
    for (const Entry& entry : entries_) {
        if (entry.bounds.distanceXY(point) > best) continue;
        double nearest = Box::kFar;
        Candidate candidate(*shapes_, entry.id);
        candidate.walk(area, ShapeWalk::Copies::Near,
                       [&](const Geometry& geometry, const Transform& transform) {
                           const Hit hit = hitTest(geometry, transform, point);
                           nearest = std::min(nearest, hit.distance);
                           if (hit.filled) nearest = std::min(nearest, tolerance / 2);
                           return true;
                       });
        if (nearest <= best) {
            best = nearest;
            found = entry.id;
        }
    }
    return found;
}

std::vector<EntityId> Picker::window(const Point3& corner, const Point3& opposite, bool crossing) {
    refresh();
    const Rectangle area(corner, opposite);
    std::vector<EntityId> result;
    for (const Entry& entry : entries_) {
        if (!overlap(entry.bounds, area)) continue;
        Candidate candidate(*shapes_, entry.id);
        const bool chosen =
            crossing ? reachesInto(candidate, area) : liesWithin(candidate, entry.bounds, area);
        if (chosen) result.push_back(entry.id);
    }
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
