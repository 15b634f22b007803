#include "desk/drawing/creator.h"
#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

namespace drawing {

void Drawing::beginStep() {
    if (store_->depth_++ > 0) return;
    StepLog log;
    log.firstNew = store_->count();
    log.nextHandle = store_->nextHandle();
    log.additions = store_->additions.size();
    log.blockCount = blocks_.size();
    log.state = state_;
    store_->steps_.push_back(std::move(log));
}

void Drawing::endStep() {
    if (store_->depth_ == 0 || --store_->depth_ > 0) return;
    const StepLog& log = store_->step();
    for (const auto& [id, before] : log.records) {
        store_->records_[id].set(kLogged, false);
        store_->records_[id].set(kFresh, false);
    }
    for (EntityId id = log.firstNew; id < store_->count(); ++id) store_->records_[id].set(kFresh, false);
    if (log.isEmpty(store_->count())) store_->steps_.pop_back();
}

bool Drawing::canUndo() const { return store_->depth_ == 0 && !store_->steps_.empty(); }

bool Drawing::undo() {
    if (!canUndo()) return false;
    const StepLog log = std::move(store_->steps_.back());
    store_->steps_.pop_back();
    undoRecords(log);
    for (auto changed = log.blocks.rbegin(); changed != log.blocks.rend(); ++changed) {
        blocks_[changed->first] = changed->second;
    }
    for (BlockId block = static_cast<BlockId>(log.blockCount); block < blocks_.size(); ++block) {
        blocks_.setErased(block, true);
    }
    for (NameId layer : log.layers) layers_.remove(layer);
    store_->additions.resize(log.additions);
    store_->setNextHandle(log.nextHandle);
    creator_->forget();
    ++revision_;
    state_ = log.state;
    return true;
}

void Drawing::undoRecords(const StepLog& log) {
    for (EntityId id = store_->count(); id-- > log.firstNew;) {
        Record& record = store_->records_[id];
        const bool inSpace =
            !record.has(kPart) && record.owner != kNoBlock && blocks_[record.owner].isLayout();
        if (inSpace && !record.has(kErased)) {
            store_->unindexName(id);
        }
        record.set(kErased);
        store_->dropBytes(id);
    }
    std::vector<EntityId>& entities = blocks_[modelSpace()].entities;
    while (!entities.empty() && entities.back() >= log.firstNew) entities.pop_back();
    for (auto changed = log.records.rbegin(); changed != log.records.rend(); ++changed) {
        const auto& [id, before] = *changed;
        Record& record = store_->records_[id];
        const bool renamed = record.name != before.name && !before.has(kPart) && before.owner != kNoBlock;
        if (renamed) store_->unindexName(id);
        if (record.bytes != before.bytes) store_->dropBytes(id);
        record = before;
        if (renamed) store_->indexName(id);
    }
}

}  // namespace drawing
