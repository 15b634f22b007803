#include "desk/drawing/creator.h"
#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

#include <algorithm>
#include <set>

namespace drawing {

void Drawing::beginStep(std::string name) {
    if (store_->depth_++ > 0) return;
    StepLog log;
    log.name = std::move(name);
    log.firstNew = store_->count();
    log.nextHandle = store_->nextHandle();
    log.additions = store_->additions.size();
    log.blockCount = blocks_.size();
    log.state = state_;
    store_->steps_.push_back(std::move(log));
}

void Drawing::nameStep(std::string name) {
    if (store_->stepIsOpen()) store_->step().name = std::move(name);
}

void Drawing::endStep() {
    if (store_->depth_ == 0 || --store_->depth_ > 0) return;
    const StepLog& log = store_->step();
    for (const auto& [id, before] : log.records) {
        store_->records_[id].set(kLogged, false);
        store_->records_[id].set(kFresh, false);
    }
    for (EntityId id = log.firstNew; id < store_->count(); ++id) store_->records_[id].set(kFresh, false);
    if (log.isEmpty(store_->count())) {
        store_->steps_.pop_back();
    } else if (leavesNothing(log)) {
        UndoneStep nothing;
        unwind(nothing);
    } else {
        store_->undone_.clear();
    }
}

bool Drawing::leavesNothing(const StepLog& log) const {
    if (!log.blocks.empty() || !log.layers.empty() || !log.variables.empty()) return false;
    for (auto block = static_cast<BlockId>(log.blockCount); block < blocks_.size(); ++block) {
        if (!blocks_[block].isErased) return false;
    }
    if (store_->additions.size() != log.additions) return false;
    for (EntityId id = store_->count(); id-- > log.firstNew;) {
        if (!isErased(id)) return false;
    }
    return std::all_of(log.records.begin(), log.records.end(), [this](const auto& logged) {
        const auto& [id, before] = logged;
        return store_->records_[id].has(kErased) == before.has(kErased) &&
               store_->view(id) == store_->view(before);
    });
}

bool Drawing::canUndo() const { return store_->depth_ == 0 && !store_->steps_.empty(); }

std::string Drawing::undoName() const { return canUndo() ? store_->steps_.back().name : std::string(); }

EntityId Drawing::firstFree() const { return store_->count(); }

bool Drawing::undo() {
    if (!canUndo()) return false;
    UndoneStep undone = undoneStep(store_->steps_.back());
    unwind(undone);
    store_->undone_.push_back(std::move(undone));
    return true;
}

void Drawing::unwind(UndoneStep& undone) {
    undone.log = std::move(store_->steps_.back());
    const StepLog& log = undone.log;
    store_->steps_.pop_back();
    undoRecords(log);
    // New ones first: they may have the name of one that comes back.
    for (BlockId block = static_cast<BlockId>(log.blockCount); block < blocks_.size(); ++block) {
        blocks_.setErased(block, true);
    }
    for (auto changed = log.blocks.rbegin(); changed != log.blocks.rend(); ++changed) {
        blocks_.restore(changed->first, changed->second);
    }
    for (NameKey layer : log.layers) layers_.remove(layer);
    refreshLayers(log);
    for (auto changed = log.variables.rbegin(); changed != log.variables.rend(); ++changed)
        undone.variables.emplace_back(changed->first, header_.set(changed->first, changed->second));
    store_->additions.resize(log.additions);
    store_->setNextHandle(log.nextHandle);
    creator_->forget();
    creator_->forgetCurrent();
    ++revision_;
    state_ = log.state;
}

void Drawing::undoRecords(const StepLog& log) {
    std::set<BlockId> spaces{modelSpace()};
    for (EntityId id = store_->count(); id-- > log.firstNew;) {
        store_->journal.note(id);
        PackedRecord& record = store_->records_[id];
        const bool inSpace =
            !record.has(kPart) && record.owner != kNoBlock && blocks_[record.owner].isLayout();
        if (inSpace) spaces.insert(record.owner);
        if (inSpace && !record.has(kErased)) {
            store_->unindexName(id);
        }
        record.set(kErased);
        store_->dropBytes(id);
    }
    for (const BlockId space : spaces) {
        std::vector<EntityId>& entities = blocks_[space].entities;
        while (!entities.empty() && entities.back() >= log.firstNew) entities.pop_back();
    }
    for (auto changed = log.records.rbegin(); changed != log.records.rend(); ++changed) {
        const auto& [id, before] = *changed;
        store_->journal.note(id);
        PackedRecord& record = store_->records_[id];
        const bool renamed = store_->unpack(record).name != store_->unpack(before).name &&
                             !before.has(kPart) && before.owner != kNoBlock;
        if (renamed) store_->unindexName(id);
        if (!record.sharesBytes(before)) store_->dropBytes(id);
        if (record.owner != before.owner) changeSpace(id, before.owner);
        record = before;
        if (renamed) store_->indexName(id);
    }
}

}  // namespace drawing
