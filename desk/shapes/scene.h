#pragma once

#include "desk/shapes/block_shapes.h"
#include "desk/shapes/space_index.h"

#include <cstdint>
#include <map>

namespace shapes {

/// What a drawing's blocks draw and where its entities are, kept beside the drawing and brought in line with
/// it at each look: what was touched since the last one is read again, nothing else.
class Scene : public drawing::Companion {
  public:
    explicit Scene(const Drawing& drawing) : drawing_(drawing), blocks_(drawing) {}

    BlockShapes& blocks();
    SpaceIndex& space(BlockId space);
    /// What a room above derives from the drawing and keeps with it, see picture::pictureOf.
    std::unique_ptr<drawing::Companion>& above() { return above_; }

  private:
    void follow();

    const Drawing& drawing_;
    BlockShapes blocks_;
    std::unique_ptr<drawing::Companion> above_;
    std::map<BlockId, SpaceIndex> spaces_;  ///< those looked at so far
    std::uint64_t seen_ = 0;                ///< place in the drawing's journal
};

/// The scene of a drawing, made when it is first asked for.
Scene& sceneOf(const Drawing& drawing);

}  // namespace shapes
