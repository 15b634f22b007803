#pragma once

#include "desk/drawing/drawing.h"

#include <vector>

namespace drawing {

class Store;

/// Which definitions a drawing could do without: those that neither a space nor anything else outside of such
/// definitions needs. A name in an entity (group 2), a variable or an old dimension style needs the block; so
/// does a handle of anything that belongs to it, so that nothing is left that points to what is gone.
class BlockUses {
  public:
    explicit BlockUses(const Drawing& drawing);

    /// In the drawing's order. Spaces and external references are never among them.
    std::vector<BlockId> unused() const;

  private:
    void findHomes();
    /// The block that an object belongs to by its owner, and its owner's owner.
    BlockId homeOfObject(EntityId object);
    void readUses(EntityId id);
    void readVariables();
    void use(BlockId user, BlockId used);
    bool mayGo(BlockId block) const;

    const Drawing& drawing_;
    const Store& store_;
    std::vector<BlockId> homes_;              ///< of each record, kNoBlock for one that belongs to no block
    std::vector<std::vector<BlockId>> uses_;  ///< by the block that uses
    std::vector<BlockId> rootUses_;           ///< by what stays
};

}  // namespace drawing
