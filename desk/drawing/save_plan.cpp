#include "desk/drawing/save_plan.h"

#include "desk/drawing/inside.h"
#include "desk/dxf/tag_writer.h"

#include <algorithm>

// A drawing is saved as a list of pieces, ranges of bytes in the order of the new file. Most are stretches of
// the old file, from the end of one change to the beginning of the next; that is what keeps what nobody
// touched to the byte and makes saving as quick as copying. The way there:
//   1. Everything that differs from the old file becomes a patch: a range of the old file, empty where
//      something comes in, and the new pieces that stand in its place, none where something goes.
//   2. The patches are brought into the order of the file. Records of the file make theirs in order already;
//      what goes to the end of a table or a section comes later and has to be sorted in. Patches at one
//      place keep the order in which they were made.
//   3. Old stretches and new pieces are joined.
// The rules of the file that this obeys are those of the DXF Reference, "DXF File Structure" and "Group
// Codes": a section's objects follow one another without gaps, so that a change touches no byte of its
// neighbours.

namespace drawing {

SavePlan::SavePlan(const Drawing& drawing) : drawing_(drawing), store_(Inside::store(drawing)) {
    patchSeed();
    patchVariables();
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
    // $HANDSEED is the next handle to give (DXF Reference, "HEADER Section"); a program that believes an old
    // one would give a handle twice. A file without handles has no seed, and an undone or unchanged drawing
    // keeps its.
    const FileRange& value = store_.seedValue;
    if (value.begin == value.end || store_.nextHandle() == store_.firstHandle()) return;
    dxf::TagWriter(store_.format(), own()).handle(5, store_.nextHandle());
    beginPatch(value.begin, value.end);
    addPiece(owned_.back());
}

void SavePlan::patchVariables() {
    const HeaderVariables& header = drawing_.header();
    const char* const file = store_.source().bytes().data();
    // A changed variable stands in its old place; one that the file lacks goes to the end of HEADER, where
    // their order is free.
    std::string& added = own();
    for (const HeaderVariables::Entry& variable : header.changes()) {
        if (const HeaderVariables::Entry* old = header.findInFile(variable.name)) {
            const auto begin = static_cast<std::size_t>(old->bytes.data() - file);
            beginPatch(begin, begin + old->bytes.size());
            addPiece(variable.bytes);
        } else {
            dxf::TagWriter(store_.format(), added).plain(9, variable.name);
            added += variable.bytes;
        }
    }
    if (added.empty()) return;
    const std::size_t end = store_.outline.find(dxf::SectionKind::Header)->bodyEnd;
    beginPatch(end, end);
    addPiece(added);
}

void SavePlan::patchRecords() {
    // Only records of the file are looked at: an erased one leaves a gap, a changed one stands in its own
    // place. Parts need no care of their own, they have records like any other.
    bool anyErased = false;
    for (EntityId id = 0; id < store_.fileCount(); ++id) {
        const bool erased = store_.isErased(id);
        anyErased = anyErased || erased;
        if (!erased && !store_.record(id).has(kOwnBytes)) continue;
        const FileRange range = store_.fileRange(id);
        beginPatch(range.begin, range.end);
        if (!erased) addPiece(store_.view(id));
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
    const std::string_view bytes = store_.view(id);
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
        if (!store_.isErased(each)) addPiece(store_.view(each));
    }
}

void SavePlan::addOthers() {
    bool hasBlocks = false;
    // New table entries go in front of the ENDTAB of their table. New definitions go to the end of the BLOCKS
    // section: BLOCK, content and ENDBLK were added in that order, nested definitions before those that name
    // them.
    for (const Addition& addition : store_.additions) {
        hasBlocks = hasBlocks || addition.place == Place::Blocks;
        if (addition.place != Place::BeforeRecord || addition.before >= store_.fileCount()) continue;
        const std::size_t offset = store_.fileRange(addition.before).begin;
        beginPatch(offset, offset);
        addRecord(addition.id);
    }
    addTables();
    if (!hasBlocks) return;
    const bool isNew = beginAddition(dxf::SectionKind::Blocks, "BLOCKS");
    for (const Addition& addition : store_.additions) {
        if (addition.place == Place::Blocks) addRecord(addition.id);
    }
    if (isNew) endSection();
}

void SavePlan::addTables() {
    // A table that the file lacks, as one of R12 may: its head, its entries, its ENDTAB, in a row.
    bool isNew = false;
    bool begun = false;
    for (const Addition& table : store_.additions) {
        if (table.place != Place::Tables) continue;
        if (!begun) isNew = beginAddition(dxf::SectionKind::Tables, "TABLES");
        begun = true;
        addRecord(table.id);
        for (const Addition& entry : store_.additions) {
            const bool isIts = entry.place == Place::BeforeRecord && entry.before == table.before;
            if (isIts) addRecord(entry.id);
        }
        addRecord(table.before);
    }
    if (isNew) endSection();
}

bool SavePlan::beginAddition(dxf::SectionKind kind, std::string_view name) {
    // A file of R12 may do without any of these sections. Then it is opened in front of the first one that
    // has to come later; behind the last it would stand behind the end of the file. The order of sections is
    // that of the format: TABLES, BLOCKS, ENTITIES, OBJECTS.
    const dxf::Section* section = store_.outline.find(kind);
    const dxf::Section* next = nullptr;
    if (kind == dxf::SectionKind::Tables) next = store_.outline.find(dxf::SectionKind::Blocks);
    const bool isEarly = kind == dxf::SectionKind::Tables || kind == dxf::SectionKind::Blocks;
    if (next == nullptr && isEarly) next = store_.outline.find(dxf::SectionKind::Entities);
    if (next == nullptr) next = store_.outline.find(dxf::SectionKind::Objects);
    const std::size_t offset = section != nullptr ? section->bodyEnd
                               : next != nullptr  ? next->begin
                                                  : store_.outline.eof;
    beginPatch(offset, offset);
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
    newPieces_.reserve(newPieces_.size() + (store_.count() - store_.fileCount()));
    const std::vector<EntityId> model = newEntities(drawing_.modelSpace());
    const std::vector<EntityId> paper = newEntities(drawing_.blocks().paperSpace());
    if (!model.empty() || !paper.empty()) {
        const bool isNew = beginAddition(dxf::SectionKind::Entities, "ENTITIES");
        for (const EntityId id : model) addRecord(id);
        for (const EntityId id : paper) addRecord(id);
        if (isNew) endSection();
    }
    // Those of the other layouts stand in BLOCKS.
    const BlockTable& blocks = drawing_.blocks();
    for (BlockId space = 0; space < blocks.size(); ++space) {
        if (!blocks[space].isLayout() || space == blocks.modelSpace() || space == blocks.paperSpace())
            continue;
        const std::vector<EntityId> added = newEntities(space);
        if (added.empty()) continue;
        const std::size_t end = store_.fileRange(blocks[space].end).begin;
        beginPatch(end, end);
        for (const EntityId id : added) addRecord(id);
    }
}

std::vector<EntityId> SavePlan::newEntities(BlockId space) const {
    // They have numbers behind the file's, which rise in drawing order.
    std::vector<EntityId> added;
    if (space == kNoBlock) return added;
    const std::vector<EntityId>& entities = drawing_.blocks()[space].entities;
    std::copy_if(std::lower_bound(entities.begin(), entities.end(), store_.fileCount()), entities.end(),
                 std::back_inserter(added), [this](EntityId id) { return !store_.isErased(id); });
    return added;
}

void SavePlan::joinPieces() {
    // Patches never overlap but at their ends: `position` is how far the old file is dealt with.
    pieces_.reserve(newPieces_.size() + patches_.size() + 1);
    const std::string_view file = store_.source().bytes();
    std::size_t position = 0;
    const auto copyUpTo = [&](std::size_t end) {
        if (end > position) pieces_.push_back(file.substr(position, end - position));
        position = std::max(position, end);
    };
    for (const Patch& patch : patches_) {
        copyUpTo(patch.begin);
        // The last line of a file that something cut off has no end of its own.
        const bool isOpen = !pieces_.empty() && !pieces_.back().empty() && pieces_.back().back() != '\n';
        if (isOpen && patch.pieceCount > 0 && !store_.format().binary)
            pieces_.push_back(store_.format().newline());
        for (std::size_t i = 0; i < patch.pieceCount; ++i)
            pieces_.push_back(newPieces_[patch.firstPiece + i]);
        position = std::max(position, patch.end);
    }
    copyUpTo(file.size());
}

}  // namespace drawing
