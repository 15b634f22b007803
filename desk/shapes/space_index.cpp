#include "desk/shapes/space_index.h"

#include "desk/drawing/work_watch.h"

namespace shapes {

bool mayDraw(const Drawing& drawing, EntityId id) {
    if (drawing.isDisplayed(id)) return true;
    const Layer& layer = drawing.layer(id);
    return layer.off && !layer.frozen && drawing.type(id) == "INSERT" && !drawing.isInvisible(id);
}

void SpaceIndex::Flat::add(const Flat& other) {
    left = std::min(left, other.left);
    bottom = std::min(bottom, other.bottom);
    right = std::max(right, other.right);
    top = std::max(top, other.top);
}

SpaceIndex::Entry SpaceIndex::read(EntityId id) {
    const Drawing& drawing = shapes_.drawing();
    Entry entry{id, kNoBlock, false, {}};
    if (drawing.isErased(id) || !mayDraw(drawing, id)) return entry;
    const std::optional<Placed> placed = shapes_.placed(id);
    Box box;
    if (placed) {
        entry.block = placed->block;
        entry.isEndless = shapes_.of(placed->block).isEndless;
        box = placedBounds(shapes_, *placed);
    } else {
        const Geometry geometry = readGeometry(drawing, id, shapes_.textStyles());
        entry.isEndless = !geometry.endless.empty();
        box = geometry.bounds();
    }
    forEachShownAttribute(drawing, id, [&](EntityId attribute) {
        box.add(readTextBounds(drawing, attribute, shapes_.textStyles()));
    });
    if (!box.empty()) entry.box = {box.low.x, box.low.y, box.high.x, box.high.y};
    return entry;
}

void SpaceIndex::build() {
    entries_.clear();
    drawing::WorkSteps steps;
    shapes_.drawing().forEachEntity(space_, [&](EntityId id) {
        steps.step(id, shapes_.drawing().firstFree());
        entries_.push_back(read(id));
        return true;
    });
    stretches_.resize((entries_.size() + kStretch - 1) / kStretch);
    for (std::size_t stretch = 0; stretch < stretches_.size(); ++stretch) sumUp(stretch);
}

void SpaceIndex::update(const std::vector<EntityId>& entities, const std::vector<bool>& blocks) {
    const Drawing& drawing = shapes_.drawing();
    const auto renew = [&](std::size_t at) {
        entries_[at] = read(entries_[at].id);
        sumUp(at / kStretch);
    };
    drawing::WorkSteps steps;
    for (const EntityId id : entities) {
        steps.step(id, drawing.firstFree());
        const std::size_t at = placeOf(id);
        if (at < entries_.size() && entries_[at].id == id) {
            renew(at);
        } else if (!drawing.isErased(id) && drawing.owner(id) == space_) {
            // New ones are the highest, those back from an erasure that the index didn't see lie between.
            entries_.insert(entries_.begin() + static_cast<std::ptrdiff_t>(at), read(id));
            stretches_.resize((entries_.size() + kStretch - 1) / kStretch);
            for (std::size_t stretch = at / kStretch; stretch < stretches_.size(); ++stretch) sumUp(stretch);
        }
    }
    if (blocks.empty()) return;
    for (std::size_t at = 0; at < entries_.size(); ++at) {
        steps.step(at, entries_.size());
        if (entries_[at].block < blocks.size() && blocks[entries_[at].block]) renew(at);
    }
}

void SpaceIndex::sumUp(std::size_t stretch) {
    Stretch sum;
    const std::size_t end = std::min((stretch + 1) * kStretch, entries_.size());
    for (std::size_t at = stretch * kStretch; at < end; ++at) {
        sum.box.add(entries_[at].box);
        sum.isEndless = sum.isEndless || entries_[at].isEndless;
    }
    stretches_[stretch] = sum;
}

std::size_t SpaceIndex::placeOf(EntityId id) const {
    const auto found =
        std::lower_bound(entries_.begin(), entries_.end(), id,
                         [](const Entry& entry, EntityId wanted) { return entry.id < wanted; });
    return static_cast<std::size_t>(found - entries_.begin());
}

Box SpaceIndex::extents() const {
    Flat all;
    for (const Stretch& stretch : stretches_) all.add(stretch.box);
    Box box;
    if (all.left > all.right) return box;
    box.add(Point3{all.left, all.bottom, 0});
    box.add(Point3{all.right, all.top, 0});
    return box;
}

}  // namespace shapes
