#include "basic/text.h"
#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"
#include "desk/drawing/tag_edit.h"

#include <algorithm>

namespace drawing {

void Drawing::moveToSpace(EntityId id, BlockId space) {
    requireEditable(id);
    if (space >= blocks_.size() || !blocks_[space].isLayout()) raise(kInvalidInput, "no space");
    const BlockId from = store_->record(id).owner;
    // What the file holds stands in the section of its space; only what is new has no place yet.
    if (id < store_->fileCount() || store_->record(id).has(kPart) || !blocks_[from].isLayout())
        raise(kNotApplicable, std::string(type(id)));
    if (from == space) return;
    constexpr std::string_view kCommonPart = "AcDbEntity";
    constexpr int kPaperSpaceGroup = 67;
    const bool paper = blocks_[space].isPaperSpace;
    const UndoStep step(*this);
    for (EntityId each = id; each <= id + store_->record(id).parts; ++each) {
        TagEdit& edit = store_->freshEdit();
        // A part's owner (330) is the entity, which stays.
        const Handle owner = each == id && format().hasSubclasses() ? blocks_[space].handle : 0;
        if (owner != 0 && ownerHandle(each) != 0) edit.handle(330, {}, owner);
        if (paper) {
            edit.integer(kPaperSpaceGroup, kCommonPart, 1);
        } else {
            edit.remove(kPaperSpaceGroup, kCommonPart);
        }
        applyEdit(each, edit);
    }
    store_->change(id).set(kPaperSpace, paper);
    changeSpace(id, space);
    noteChange();
}

void Drawing::changeSpace(EntityId id, BlockId space) {
    // New entities rise in drawing order, whichever way they came into a space.
    std::vector<EntityId>& before = blocks_[store_->record(id).owner].entities;
    const auto place = std::find(before.rbegin(), before.rend(), id);
    if (place != before.rend()) before.erase(std::next(place).base());
    std::vector<EntityId>& after = blocks_[space].entities;
    const auto behind = std::find_if(after.rbegin(), after.rend(), [&](EntityId other) {
        return other < id || other < store_->fileCount();
    });
    after.insert(behind.base(), id);
    store_->records_[id].owner = space;
}

}  // namespace drawing
