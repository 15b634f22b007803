#pragma once

#include "desk/shapes/geometry.h"
#include "desk/shapes/names.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace shapes {

/// One thing that a block draws: a geometry of its own, a part of a large one, or another block.
struct ShapeItem {
    Geometry geometry;
    std::optional<Placed> placed;
    Box bounds;              ///< in the block's coordinates
    bool isEndless = false;  ///< something in it reaches beyond all bounds
    /// On layer 0, so it is shown where the reference's layer is on. A nested reference on another layer
    /// that is off hides only what its block has on layer 0, see `hidesZero`.
    bool onLayerZero = false;
    bool hidesZero = false;
};

/// What a block draws, in its own coordinates.
struct BlockShape {
    /// In no order where there are many: what lies near each other stands together.
    std::vector<ShapeItem> items;
    /// About each kStretch of them that follow one another, without what is endless.
    std::vector<Box> stretches;
    Box bounds;
    bool isEndless = false;

    static constexpr std::size_t kStretch = 32;

    /// Adds an item, one of many strokes in parts; `arrange` is to follow the last one.
    void add(ShapeItem item);
    void arrange();
};

/// The shapes of a drawing's blocks, each read when it is first asked for. They stand for the drawing as it
/// is then: after a change, `forget` what is out of date (shapes::sceneOf does).
class BlockShapes {
  public:
    explicit BlockShapes(const Drawing& drawing);
    /// A block that stands in itself, or nests too deeply, is empty there.
    const BlockShape& of(BlockId block);
    const Drawing& drawing() const { return drawing_; }
    const TextStyles& textStyles() const { return textStyles_; }

    /// What an entity of a space draws by itself where that is so much that it is kept, up to the next change
    /// of the entity; null for others.
    const BlockShape* large(EntityId id);
    /// Reads those of a space that are kept, which a first pick would wait for.
    void prepareLarge(BlockId space);
    void forgetLarge(const std::vector<EntityId>& changed);

    /// The block that an entity shows, see `readPlaced`.
    std::optional<Placed> placed(EntityId id);
    /// Whether a reference was met whose block the drawing lacks.
    bool lackedBlock() const { return lackedBlock_; }
    /// Gives up the shapes of these blocks and of all in which they stand, at any depth. Tells by number of
    /// the block which ones; empty where none.
    std::vector<bool> forget(const std::vector<BlockId>& changed);
    void clear();

  private:
    BlockShape read(BlockId block);
    void addEntity(BlockShape& shape, EntityId id);

    const Drawing& drawing_;
    TextStyles textStyles_;
    std::vector<std::unique_ptr<BlockShape>> shapes_;
    std::vector<std::pair<EntityId, std::unique_ptr<BlockShape>>> large_;  ///< the latest last
    std::vector<bool> open_;                                               ///< being read
    int depth_ = 0;
    bool lackedBlock_ = false;
};

/// Adds an attribute of a reference to what the reference draws by itself.
void addAttribute(const BlockShapes& shapes, EntityId attribute, Geometry& geometry);
/// Adds the point that a text or a placed block hangs on.
void addInsertions(const BlockShapes& shapes, EntityId id, const std::optional<Placed>& placed,
                   Geometry& geometry);

/// The attributes of a reference that are drawn.
template <typename Visit>
void forEachShownAttribute(const Drawing& drawing, EntityId id, const Visit& visit) {
    if (drawing.type(id) != "INSERT") return;
    for (const EntityId attribute : drawing.attributes(id)) {
        if (drawing.isDisplayed(attribute)) visit(attribute);
    }
}

/// The box about all copies of a placed block, in the coordinates of where it is placed.
Box placedBounds(BlockShapes& shapes, const Placed& placed);
/// The transform of one copy.
Transform placedTransform(const BlockShapes& shapes, const Placed& placed, int column, int row);

}  // namespace shapes
