#pragma once

#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

namespace drawing {

/// The way to a drawing's inside, for this room's own files and for desk/import, which makes records as the
/// opener does. Everyone else has the members of Drawing.
class Inside {
  public:
    static Store& store(Drawing& drawing) { return *drawing.store_; }
    static const Store& store(const Drawing& drawing) { return *drawing.store_; }
    static BlockTable& blocks(Drawing& drawing) { return drawing.blocks_; }
    static LayerTable& layers(Drawing& drawing) { return drawing.layers_; }
    /// After a change that no edit of Drawing made.
    static void noteChange(Drawing& drawing) { drawing.noteChange(); }
    /// After a change of block definitions: what new references were made from is out of date.
    static void forgetDefinitions(Drawing& drawing);
    /// Brings a record in line with its groups.
    static void refreshRecord(Drawing& drawing, EntityId id) { drawing.refreshRecord(id); }
    /// The handle of an object's owner, 0 where there is none.
    static Handle ownerHandle(const Drawing& drawing, EntityId id) { return drawing.ownerHandle(id); }
    /// Deletes what an entity hard-owns.
    static void eraseOwned(Drawing& drawing, EntityId id) { drawing.eraseOwned(id); }
};

}  // namespace drawing
