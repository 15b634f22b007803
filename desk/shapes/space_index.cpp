#include "desk/shapes/space_index.h"

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
    Entry entry{id, kNoBlock, {}};
    if (drawing.isErased(id) || !mayDraw(drawing, id)) return entry;
    const std::optional<Placed> placed = shapes_.placed(id);
    if (placed) entry.block = placed->block;
    Box box = placed ? placedBounds(shapes_, *placed) : readGeometry(drawing, id).bounds();
    forEachShownAttribute(drawing, id,
                          [&](EntityId attribute) { box.add(readTextBounds(drawing, attribute)); });
    if (!box.empty()) entry.box = {box.low.x, box.low.y, box.high.x, box.high.y};
    return entry;
}

void SpaceIndex::build() {
    entries_.clear();
    shapes_.drawing().forEachEntity(space_, [&](EntityId id) {
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
    for (const EntityId id : entities) {
        const auto found =
            std::lower_bound(entries_.begin(), entries_.end(), id,
                             [](const Entry& entry, EntityId wanted) { return entry.id < wanted; });
        const auto at = static_cast<std::size_t>(found - entries_.begin());
        if (found != entries_.end() && found->id == id) {
            renew(at);
        } else if (!drawing.isErased(id) && drawing.owner(id) == space_) {
            // New ones are the highest, those back from an erasure that the index didn't see lie between.
            entries_.insert(found, read(id));
            stretches_.resize((entries_.size() + kStretch - 1) / kStretch);
            for (std::size_t stretch = at / kStretch; stretch < stretches_.size(); ++stretch) sumUp(stretch);
        }
    }
    if (blocks.empty()) return;
    for (std::size_t at = 0; at < entries_.size(); ++at) {
        if (entries_[at].block < blocks.size() && blocks[entries_[at].block]) renew(at);
    }
}

void SpaceIndex::sumUp(std::size_t stretch) {
    Flat box;
    const std::size_t end = std::min((stretch + 1) * kStretch, entries_.size());
    for (std::size_t at = stretch * kStretch; at < end; ++at) box.add(entries_[at].box);
    stretches_[stretch] = box;
}

Box SpaceIndex::extents() const {
    Flat all;
    for (const Flat& stretch : stretches_) all.add(stretch);
    Box box;
    if (all.left > all.right) return box;
    box.add(Point3{all.left, all.bottom, 0});
    box.add(Point3{all.right, all.top, 0});
    return box;
}

}  // namespace shapes
