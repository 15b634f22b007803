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

    /// Visits the entities whose boxes meet an area and those that are endless, each with its box, in drawing
    /// order from the entity `first` on, until `visit` returns false.
    template <typename Visit>
    void forEachNear(const Rectangle& area, const Visit& visit, EntityId first = 0) const {
        const Flat wanted{area.low.x, area.low.y, area.high.x, area.high.y};
        const std::size_t begin = first == 0 ? 0 : placeOf(first);
        for (std::size_t stretch = begin / kStretch; stretch < stretches_.size(); ++stretch) {
            if (!stretches_[stretch].box.meets(wanted) && !stretches_[stretch].isEndless) continue;
            const std::size_t end = std::min((stretch + 1) * kStretch, entries_.size());
            for (std::size_t at = std::max(stretch * kStretch, begin); at < end; ++at) {
                const Entry& entry = entries_[at];
                if (!entry.isEndless && !entry.box.meets(wanted)) continue;
                if (!visit(entry.id, (entry.isEndless ? kAll : entry.box).rectangle())) return;
            }
        }
    }

    /// The box about all that is drawn, without endless lines, at height 0; empty where nothing is.
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
    static constexpr Flat kAll{-Box::kFar, -Box::kFar, Box::kFar, Box::kFar};

    struct Entry {
        EntityId id;
        BlockId block;  ///< that it shows, kNoBlock for none
        bool isEndless = false;
        Flat box;  ///< meets nothing where it draws nothing
    };
    struct Stretch {
        Flat box;
        bool isEndless = false;
    };

    Entry read(EntityId id);
    void sumUp(std::size_t stretch);
    /// Of the first entry with this id or a higher one.
    std::size_t placeOf(EntityId id) const;

    BlockShapes& shapes_;
    BlockId space_;
    std::vector<Entry> entries_;  ///< by rising id, which is the drawing order; erased ones stay
    std::vector<Stretch> stretches_;
};

/// Whether an entity of a space draws anything: it is visible and its layer shown. A reference on a layer
/// that is off still draws what its block has on other layers.
bool mayDraw(const Drawing& drawing, EntityId id);

}  // namespace shapes
