#pragma once

#include "desk/shapes/block_shapes.h"

#include <algorithm>
#include <vector>

namespace shapes {

/// Where the entities of a space are, as seen from above: a box about each in drawing order, and one about
/// each stretch of them. Neighbours in a drawing are mostly neighbours in its file, so that a look at a place
/// passes over nearly all stretches by their boxes alone; and a change touches one box and one stretch.
class SpaceIndex {
  public:
    SpaceIndex(BlockShapes& shapes, BlockId space) : shapes_(shapes), space_(space) {}

    /// Reads all entities.
    void build();
    /// Reads these entities again, and those that show one of these blocks.
    void update(const std::vector<EntityId>& entities, const std::vector<bool>& blocks);

    /// Visits the entities whose boxes meet an area, in drawing order, until `visit` returns false.
    template <typename Visit>
    void forEachNear(const Rectangle& area, const Visit& visit) const {
        const Flat wanted{area.low.x, area.low.y, area.high.x, area.high.y};
        for (std::size_t stretch = 0; stretch < stretches_.size(); ++stretch) {
            if (!stretches_[stretch].meets(wanted)) continue;
            const std::size_t end = std::min((stretch + 1) * kStretch, entries_.size());
            for (std::size_t at = stretch * kStretch; at < end; ++at) {
                if (entries_[at].box.meets(wanted) && !visit(entries_[at].id, entries_[at].box.rectangle()))
                    return;
            }
        }
    }

    /// The box about all that is drawn, at height 0; empty where nothing is.
    Box extents() const;

  private:
    static constexpr std::size_t kStretch = 64;

    /// A box in X and Y; one that meets nothing at first.
    struct Flat {
        double left = Box::kFar, bottom = Box::kFar, right = -Box::kFar, top = -Box::kFar;

        bool meets(const Flat& other) const {
            return left <= other.right && right >= other.left && bottom <= other.top && top >= other.bottom;
        }
        void add(const Flat& other);
        Rectangle rectangle() const { return {{left, bottom, 0}, {right, top, 0}}; }
    };
    struct Entry {
        EntityId id;
        BlockId block;  ///< that it shows, kNoBlock for none
        Flat box;       ///< meets nothing where it draws nothing
    };

    Entry read(EntityId id);
    void sumUp(std::size_t stretch);

    BlockShapes& shapes_;
    BlockId space_;
    std::vector<Entry> entries_;  ///< by rising id, which is the drawing order; erased ones stay
    std::vector<Flat> stretches_;
};

/// Whether an entity of a space draws anything: it is visible and its layer shown. A reference on a layer
/// that is off still draws what its block has on other layers.
bool mayDraw(const Drawing& drawing, EntityId id);

/// The attributes of a reference that are drawn.
template <typename Visit>
void forEachShownAttribute(const Drawing& drawing, EntityId id, const Visit& visit) {
    if (drawing.type(id) != "INSERT") return;
    for (const EntityId attribute : drawing.attributes(id)) {
        if (drawing.isDisplayed(attribute)) visit(attribute);
    }
}

}  // namespace shapes
