#include "desk/drawing/savepoint.h"

#include "desk/drawing/inside.h"

namespace drawing {

Savepoint::Savepoint(Drawing& drawing) : drawing_(drawing) {
    Store& store = Inside::store(drawing);
    erased_.reserve(store.count());
    for (EntityId id = 0; id < store.count(); ++id) erased_.push_back(store.isErased(id));
    nextHandle_ = store.nextHandle();
    additions_ = store.additions.size();
    blocks_ = Inside::blocks(drawing).size();
    changedBlocks_ = store.step().blocks.size();
    layers_ = store.step().layers.size();
}

void Savepoint::takeBack() {
    Store& store = Inside::store(drawing_);
    BlockTable& blocks = Inside::blocks(drawing_);
    for (EntityId id = 0; id < store.count(); ++id) {
        const bool isNew = id >= erased_.size();
        const bool erased = isNew || erased_[id];
        if (store.isErased(id) != erased) store.change(id).set(kErased, erased);
        if (isNew) store.dropBytes(id);
    }
    store.additions.resize(additions_);
    store.setNextHandle(nextHandle_);
    StepLog& log = store.step();
    // New ones first: they may have the name of one that comes back.
    for (auto block = static_cast<BlockId>(blocks_); block < blocks.size(); ++block)
        blocks.setErased(block, true);
    for (; log.blocks.size() > changedBlocks_; log.blocks.pop_back())
        blocks.restore(log.blocks.back().first, log.blocks.back().second);
    for (; log.layers.size() > layers_; log.layers.pop_back())
        Inside::layers(drawing_).remove(log.layers.back());
    Inside::forgetDefinitions(drawing_);
    Inside::noteChange(drawing_);
}

}  // namespace drawing
