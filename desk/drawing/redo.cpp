#include "desk/drawing/creator.h"
#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

#include <algorithm>

namespace drawing {

bool Drawing::canRedo() const { return store_->depth_ == 0 && !store_->undone_.empty(); }

std::string Drawing::redoName() const { return canRedo() ? store_->undone_.back().log.name : std::string(); }

UndoneStep Drawing::undoneStep(const StepLog& log) const {
    UndoneStep undone;
    for (const auto& [id, before] : log.records) {
        const PackedRecord& record = store_->records_[id];
        const bool owns = !record.sharesBytes(before);
        undone.records.push_back({id, record, owns ? std::string(store_->view(id)) : std::string(), owns});
    }
    for (EntityId id = log.firstNew; id < store_->count(); ++id) {
        undone.records.push_back({id, store_->records_[id], std::string(store_->view(id)), true});
    }
    for (const auto& [id, before] : log.blocks) undone.blocks.emplace_back(id, blocks_[id]);
    for (const NameKey name : log.layers) undone.layers.emplace_back(name, layers_[name]);
    undone.additions.assign(store_->additions.begin() + static_cast<std::ptrdiff_t>(log.additions),
                            store_->additions.end());
    for (const Block& space : blocks_.all()) {
        if (!space.isLayout()) continue;
        const auto first = std::lower_bound(space.entities.begin(), space.entities.end(), log.firstNew);
        undone.entities.insert(undone.entities.end(), first, space.entities.end());
    }
    undone.nextHandle = store_->nextHandle();
    undone.state = state_;
    return undone;
}

bool Drawing::redo() {
    if (!canRedo()) return false;
    UndoneStep undone = std::move(store_->undone_.back());
    store_->undone_.pop_back();
    redoRecords(undone);
    for (auto& [id, block] : undone.blocks) blocks_.restore(id, std::move(block));
    for (BlockId block = static_cast<BlockId>(undone.log.blockCount); block < blocks_.size(); ++block) {
        blocks_.setErased(block, false);
    }
    for (auto& [name, layer] : undone.layers) layers_.add(name, std::move(layer));
    refreshLayers(undone.log);
    for (auto value = undone.variables.rbegin(); value != undone.variables.rend(); ++value)
        header_.set(value->first, value->second);
    for (const EntityId id : undone.entities) blocks_[store_->record(id).owner].entities.push_back(id);
    store_->additions.insert(store_->additions.end(), undone.additions.begin(), undone.additions.end());
    store_->setNextHandle(undone.nextHandle);
    creator_->forget();
    creator_->forgetCurrent();
    ++revision_;
    state_ = undone.state;
    store_->steps_.push_back(std::move(undone.log));
    return true;
}

void Drawing::redoRecords(UndoneStep& undone) {
    for (UndoneStep::After& after : undone.records) {
        store_->journal.note(after.id);
        PackedRecord& record = store_->records_[after.id];
        const bool isNew = after.id >= undone.log.firstNew;
        const bool isMain = !after.record.has(kPart) && after.record.owner != kNoBlock;
        const bool renamed =
            !isNew && isMain && store_->unpack(record).name != store_->unpack(after.record).name;
        if (renamed) store_->unindexName(after.id);
        if (!isNew && isMain && record.owner != after.record.owner) changeSpace(after.id, after.record.owner);
        record = after.record;
        if (after.ownsBytes) record.setPlace(store_->arena_.store(after.bytes), true);
        const bool appears = isNew && isMain && blocks_[record.owner].isLayout() && !record.has(kErased);
        if (renamed || appears) store_->indexName(after.id);
    }
}

}  // namespace drawing
