#pragma once

#include "desk/drawing/drawing.h"
#include "desk/drawing/geometry.h"

#include <memory>
#include <optional>
#include <vector>

namespace drawing {

/// One thing that a block draws: a geometry of its own or another block.
struct ShapeItem {
    Geometry geometry;
    std::optional<Placed> placed;
    Box bounds;  ///< in the block's coordinates
    /// On layer 0, so it is shown where the reference's layer is on. A nested reference on another layer
    /// that is off hides only what its block has on layer 0, see `hidesZero`.
    bool onLayerZero = false;
    bool hidesZero = false;
};

/// What a block draws, in its own coordinates.
struct BlockShape {
    std::vector<ShapeItem> items;
    Box bounds;
};

/// The shapes of a drawing's blocks, each read when it is first asked for. They stand for the drawing as it
/// is then: after an edit, make new ones.
class BlockShapes {
  public:
    explicit BlockShapes(const Drawing& drawing);
    /// A block that stands in itself, or nests too deeply, is empty there.
    const BlockShape& of(BlockId block);
    const Drawing& drawing() const { return drawing_; }

  private:
    BlockShape read(BlockId block);
    void addEntity(BlockShape& shape, EntityId id);

    const Drawing& drawing_;
    std::vector<std::unique_ptr<BlockShape>> shapes_;
    std::vector<bool> open_;  ///< being read
    int depth_ = 0;
};

/// Whether group 60 hides the entity.
bool isInvisible(const Drawing& drawing, EntityId id);

/// The box about all copies of a placed block, in the coordinates of where it is placed.
Box placedBounds(BlockShapes& shapes, const Placed& placed);
/// The transform of one copy.
Transform placedTransform(const BlockShapes& shapes, const Placed& placed, int column, int row);

}  // namespace drawing
