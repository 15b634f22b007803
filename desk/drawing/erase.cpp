#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

namespace drawing {

void Drawing::erase(EntityId id) {
    requireEditable(id);
    const Record record = store_->record(id);
    const bool isEntity = record.owner != kNoBlock && record.type != kSeqEnd && record.type != kVertex &&
                          record.type != kBlockBegin && record.type != kBlockEnd;
    if (!isEntity) raise(kNotApplicable, std::string(type(id)));
    const UndoStep step(*this);
    eraseOwned(id);
    for (EntityId part = id + 1; part <= id + record.parts; ++part) eraseOwned(part);
    store_->change(id).set(kErased);
    noteChange();
    if (!store_->isNewInStep(id)) return;
    // Made and erased in one step, like a trial insertion: nothing can bring it back.
    if (!record.has(kPart)) {
        store_->unindexNewest(id);
        std::vector<EntityId>& entities = blocks_[record.owner].entities;
        if (!entities.empty() && entities.back() == id) entities.pop_back();
    }
    for (EntityId part = id; part <= id + record.parts; ++part) store_->dropBytes(part);
}

void Drawing::eraseOwned(EntityId id) {
    if (!store_->record(id).has(kHasDictionary)) return;
    bool inBraces = false;
    std::vector<Handle> owned;
    dxf::TagReader reader = store_->reader(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code != 100;) {
        if (tag.code == 102) inBraces = tag.raw.starts_with("{ACAD_XDICTIONARY");
        if (inBraces && tag.code == 360) owned.push_back(tag.handle());
    }
    for (Handle handle : owned) {
        const EntityId object = byHandle(handle);
        if (object != kNoEntity && store_->record(object).has(kObject)) eraseObject(object);
    }
}

void Drawing::eraseObject(EntityId first) {
    // However long the chain of owners is, it needs no stack; one that leads back meets erased objects.
    std::vector<EntityId> open{first};
    while (!open.empty()) {
        const EntityId id = open.back();
        open.pop_back();
        if (store_->record(id).has(kErased)) continue;
        store_->change(id).set(kErased);
        const Handle self = store_->record(id).handle;
        const bool isDictionary = store_->typeName(store_->record(id).type).starts_with("DICTIONARY") ||
                                  store_->record(id).type == kDictionary;
        dxf::TagReader reader = store_->reader(id);
        for (dxf::Tag tag; reader.next(tag);) {
            const dxf::HandleRole role = dxf::handleRole(tag.code);
            const bool owns =
                role == dxf::HandleRole::HardOwner || (isDictionary && role == dxf::HandleRole::SoftOwner);
            if (!owns) continue;
            const EntityId object = byHandle(tag.handle());
            if (object == kNoEntity || !store_->record(object).has(kObject)) continue;
            if (ownerHandle(object) == self) open.push_back(object);
        }
    }
}

Handle Drawing::ownerHandle(EntityId id) const {
    bool inBraces = false;
    dxf::TagReader reader = store_->reader(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code != 100;) {
        if (tag.code == 102) inBraces = tag.raw.starts_with('{');
        if (!inBraces && tag.code == 330) return tag.handle();
    }
    return 0;
}

}  // namespace drawing
