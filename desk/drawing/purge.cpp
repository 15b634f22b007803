#include "desk/drawing/block_uses.h"
#include "desk/drawing/creator.h"
#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

namespace drawing {

std::vector<BlockId> Drawing::unusedBlocks() const { return BlockUses(*this).unused(); }

std::vector<std::string> Drawing::purgeBlocks() {
    const std::vector<BlockId> unused = unusedBlocks();
    std::vector<std::string> names;
    const UndoStep step(*this);
    for (const BlockId id : unused) {
        names.push_back(blocks_[id].name);
        eraseDefinition(id);
    }
    if (!names.empty()) noteChange();
    return names;
}

void Drawing::eraseDefinition(BlockId id) {
    const Block& block = blocks_[id];
    store_->step().blocks.emplace_back(id, block);
    const auto eraseRecord = [this](EntityId record) {
        if (record == kNoEntity || store_->isErased(record)) return;
        eraseOwned(record);
        store_->change(record).set(kErased);
    };
    for (const EntityId entity : block.entities) {
        if (store_->isErased(entity)) continue;
        const std::uint32_t parts = store_->record(entity).parts;
        for (EntityId part = entity + 1; part <= entity + parts; ++part) eraseOwned(part);
        eraseRecord(entity);
    }
    for (const EntityId frame : {block.begin, block.end, block.record}) eraseRecord(frame);
    blocks_.setErased(id, true);
    creator_->forget();
}

}  // namespace drawing
