#include "desk/drawing/save_plan.h"

#include "desk/dxf/file.h"
#include "desk/dxf/tag_writer.h"

#include <algorithm>

namespace drawing {

SavePlan::SavePlan(const Drawing& drawing) : drawing_(drawing), store_(drawing.store()) {
    patchSeed();
    patchRecords();
    addOthers();
    addEntities();
    const auto inOrder = [](const Patch& left, const Patch& right) { return left.begin < right.begin; };
    if (!std::is_sorted(patches_.begin(), patches_.end(), inOrder)) {
        std::stable_sort(patches_.begin(), patches_.end(), inOrder);
    }
    joinPieces();
}

void SavePlan::beginPatch(std::size_t begin, std::size_t end) {
    // Erased neighbours make one gap.
    const bool extends = !patches_.empty() && patches_.back().pieceCount == 0 && patches_.back().end == begin;
    if (extends) {
        patches_.back().end = end;
    } else {
        patches_.push_back({begin, end, newPieces_.size(), 0});
    }
}

void SavePlan::addPiece(std::string_view bytes) {
    newPieces_.push_back(bytes);
    ++patches_.back().pieceCount;
}

void SavePlan::patchSeed() {
    const FileRange& value = store_.seedValue;
    if (value.begin == value.end || store_.nextHandle() == store_.firstHandle()) return;
    dxf::TagWriter(store_.format(), own()).handle(5, store_.nextHandle());
    beginPatch(value.begin, value.end);
    addPiece(owned_.back());
}

void SavePlan::patchRecords() {
    bool anyErased = false;
    for (EntityId id = 0; id < store_.fileCount(); ++id) {
        const Record& record = store_.record(id);
        const bool erased = store_.isErased(id);
        anyErased = anyErased || erased;
        if (!erased && !record.has(kChanged)) continue;
        const FileRange range = store_.fileRange(id);
        beginPatch(range.begin, range.end);
        if (!erased) addPiece(record.view());
    }
    if (!anyErased) return;
    for (EntityId id = 0; id < store_.fileCount(); ++id) {
        if (store_.record(id).type == kGroup && !store_.isErased(id)) patchGroup(id);
    }
}

void SavePlan::patchGroup(EntityId id) {
    // The host drops a deleted entity from its groups; other programs take a handle of nothing for damage.
    constexpr int kMember = 340;
    std::string kept;
    bool lost = false;
    const std::string_view bytes = store_.record(id).view();
    dxf::TagReader reader = store_.reader(id);
    for (dxf::Tag tag; reader.next(tag);) {
        const EntityId member = tag.code == kMember ? store_.handles.find(tag.handle()) : kNoEntity;
        if (member != kNoEntity && store_.isErased(member)) {
            lost = true;
        } else {
            kept += bytes.substr(tag.begin, tag.end - tag.begin);
        }
    }
    if (!lost) return;
    const FileRange range = store_.fileRange(id);
    own() = std::move(kept);
    beginPatch(range.begin, range.end);
    addPiece(owned_.back());
}

void SavePlan::addRecord(EntityId id) {
    for (EntityId each = id; each <= id + store_.record(id).parts; ++each) {
        if (!store_.isErased(each)) addPiece(store_.record(each).view());
    }
}

void SavePlan::addOthers() {
    bool hasBlocks = false;
    for (const Addition& addition : store_.additions) {
        hasBlocks = hasBlocks || addition.place == Place::Blocks;
        if (addition.place != Place::BeforeRecord) continue;
        const std::size_t offset = store_.fileRange(addition.before).begin;
        beginPatch(offset, offset);
        addRecord(addition.id);
    }
    if (!hasBlocks) return;
    const bool isNew = beginAddition(dxf::SectionKind::Blocks, "BLOCKS");
    for (const Addition& addition : store_.additions) {
        if (addition.place == Place::Blocks) addRecord(addition.id);
    }
    if (isNew) endSection();
}

bool SavePlan::beginAddition(dxf::SectionKind kind, std::string_view name) {
    // The order of sections is that of the format: BLOCKS, ENTITIES, OBJECTS.
    const dxf::Section* section = store_.outline.find(kind);
    const dxf::Section* next = nullptr;
    if (kind == dxf::SectionKind::Blocks) next = store_.outline.find(dxf::SectionKind::Entities);
    if (next == nullptr) next = store_.outline.find(dxf::SectionKind::Objects);
    const std::size_t offset = section != nullptr ? section->bodyEnd
                               : next != nullptr  ? next->begin
                                                  : store_.outline.eof;
    beginPatch(offset, offset);
    const std::string_view file = store_.source().bytes();
    const bool lineIsOpen = !store_.format().binary && offset > 0 && file[offset - 1] != '\n';
    if (lineIsOpen) addPiece(store_.format().newline());
    if (section != nullptr) return false;
    dxf::TagWriter opening(store_.format(), own());
    opening.plain(0, "SECTION");
    opening.plain(2, name);
    addPiece(owned_.back());
    return true;
}

void SavePlan::endSection() {
    dxf::TagWriter(store_.format(), own()).plain(0, "ENDSEC");
    addPiece(owned_.back());
}

void SavePlan::addEntities() {
    const std::vector<EntityId>& entities = drawing_.blocks()[drawing_.modelSpace()].entities;
    const auto first = std::find_if(std::lower_bound(entities.begin(), entities.end(), store_.fileCount()),
                                    entities.end(), [this](EntityId id) { return !store_.isErased(id); });
    if (first == entities.end()) return;
    const bool isNew = beginAddition(dxf::SectionKind::Entities, "ENTITIES");
    newPieces_.reserve(newPieces_.size() + (store_.count() - store_.fileCount()));
    for (auto id = first; id != entities.end(); ++id) addRecord(*id);
    if (isNew) endSection();
}

void SavePlan::joinPieces() {
    pieces_.reserve(newPieces_.size() + patches_.size() + 1);
    const std::string_view file = store_.source().bytes();
    std::size_t position = 0;
    const auto copyUpTo = [&](std::size_t end) {
        if (end > position) pieces_.push_back(file.substr(position, end - position));
        position = std::max(position, end);
    };
    for (const Patch& patch : patches_) {
        copyUpTo(patch.begin);
        for (std::size_t i = 0; i < patch.pieceCount; ++i)
            pieces_.push_back(newPieces_[patch.firstPiece + i]);
        position = std::max(position, patch.end);
    }
    copyUpTo(file.size());
}

void Drawing::save(const std::string& path) {
    const SavePlan plan(*this);
    dxf::saveAtomically(path, plan.pieces());
    path_ = path;
    savedState_ = state_;
}

std::string Drawing::savedBytes() const {
    std::string bytes;
    const SavePlan plan(*this);
    for (std::string_view piece : plan.pieces()) bytes += piece;
    return bytes;
}

}  // namespace drawing
