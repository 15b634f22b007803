#pragma once

#include "basic/text.h"
#include "desk/drawing/ids.h"
#include "desk/drawing/placement.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace drawing {

/// A block definition, the spaces among them.
struct Block {
    std::string name;        ///< as the drawing spells it
    std::string layoutName;  ///< name of the layout that stands behind a space; empty for other blocks
    std::string xrefPath;    ///< group 1 of BLOCK
    NameKey nameKey = NameKey::None;
    Handle handle = 0;  ///< of the block record, the owner of the block's entities; 0 in R12
    Point3 basePoint;   ///< groups 10, 20, 30 of BLOCK
    int flags = 0;      ///< group 70 of BLOCK
    bool isModelSpace = false;
    bool isPaperSpace = false;   ///< any layout's space
    bool isActiveSpace = false;  ///< its entities stand in the ENTITIES section
    bool isErased = false;       ///< purged, or brought in by a step that was undone

    EntityId record = kNoEntity;  ///< its BLOCK_RECORD; R12 has none
    EntityId begin = kNoEntity;   ///< its BLOCK; a space of R12 may have none
    EntityId end = kNoEntity;     ///< its ENDBLK

    /// The main entities in drawing order, erased ones among them. Parts of an entity (attributes, vertices)
    /// are not listed.
    std::vector<EntityId> entities;
    /// Attribute definitions that aren't constant, in their order.
    std::vector<EntityId> attributeDefinitions;
    bool hasConstantAttributes = false;

    /// The layout's name of group 410; "Model" for model space whatever the file says.
    std::string_view shownLayoutName() const { return isModelSpace ? "Model" : std::string_view(layoutName); }
    bool isLayout() const { return isModelSpace || isPaperSpace; }
    /// External reference, attached or overlaid, or a block that depends on one.
    bool isXRef() const { return (flags & (4 | 8 | 16)) != 0; }
    bool isAnonymous() const { return (flags & 1) != 0 || name.starts_with('*'); }
    bool hasAttributes() const { return hasConstantAttributes || !attributeDefinitions.empty(); }
};

/// The block definitions in the drawing's order: that of the block record table, in R12 that of the BLOCKS
/// section, the two spaces first where an R12 file has none.
class BlockTable {
  public:
    /// All definitions by number, in the table's order; those with `isErased` are to be passed over.
    const std::vector<Block>& all() const { return blocks_; }
    const Block& operator[](BlockId id) const { return blocks_[id]; }
    Block& operator[](BlockId id) { return blocks_[id]; }
    std::size_t size() const { return blocks_.size(); }

    /// A definition by name without regard to case, kNoBlock if there is none.
    BlockId find(std::string_view name) const;
    /// The same by the key of an interned name, for the many references.
    BlockId ofName(NameKey key) const {
        return indexOf(key) < ofName_.size() ? ofName_[indexOf(key)] : kNoBlock;
    }
    BlockId modelSpace() const { return modelSpace_; }
    /// The paper space whose entities stand in the ENTITIES section.
    BlockId paperSpace() const { return paperSpace_; }

    /// Adds a definition at the end; the first of a name is the one that `find` gives.
    BlockId add(Block block);
    void setSpaces(BlockId model, BlockId paper);
    /// Takes a definition out of the names or puts it back.
    void setErased(BlockId id, bool erased);
    /// Gives a definition an earlier or later state of its own back.
    void restore(BlockId id, Block state);

  private:
    void enterName(NameKey name, BlockId id);

    std::vector<Block> blocks_;
    std::unordered_map<std::string, BlockId, basic::NameHash, basic::NameEqual> byName_;
    std::vector<BlockId> ofName_;
    BlockId modelSpace_ = kNoBlock;
    BlockId paperSpace_ = kNoBlock;
};

}  // namespace drawing
