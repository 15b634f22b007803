#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

#include <algorithm>

namespace drawing {

namespace {

template <typename Id>
void sortOut(std::vector<Id>& ids) {
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
}

}  // namespace

std::uint64_t Drawing::journalEnd() const { return store_->journal.end(); }

Changes Drawing::changesSince(std::uint64_t place) const {
    Changes changes;
    const std::uint64_t count = store_->journal.end() - place;
    const EntityId* const touched = store_->journal.since(place);
    changes.everything = touched == nullptr;
    for (std::uint64_t i = 0; i < count && !changes.everything; ++i) {
        EntityId id = touched[i];
        if (store_->record(id).has(kPart)) id = store_->record(id).owner;
        const Record record = store_->record(id);
        if (record.owner != kNoBlock) {
            if (blocks_[record.owner].isLayout()) {
                changes.entities.push_back(id);
            } else {
                changes.blocks.push_back(record.owner);
            }
        } else if (record.type == kBlockBegin) {
            const BlockId block = blocks_.ofName(store_->names.key(record.name));
            if (block != kNoBlock) changes.blocks.push_back(block);
        } else if (record.type == kLayerEntry) {
            changes.everything = true;
        }
    }
    sortOut(changes.entities);
    sortOut(changes.blocks);
    return changes;
}

}  // namespace drawing
