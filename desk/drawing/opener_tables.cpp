#include "basic/text.h"
#include "desk/drawing/opener.h"

#include <algorithm>

// What stands on the records, in an order in which each step finds what it needs: the handles; the spaces
// that an old file lacks; the block records and layers of TABLES; the definitions of BLOCKS, by name to their
// records; the layouts, by handle to theirs; the content of the definitions and, last, of the spaces.
//
// From R13 on a block is two things, an entry of the table of block records (handle, layout, owner of the
// entities) and a definition in the BLOCKS section (base point, flags, content); in R12 the definition alone.
// The spaces are blocks too: model space, and a paper space for each layout, of which one is active and has
// its entities in the ENTITIES section, the others in their definitions (DXF Reference, "BLOCKS Section",
// "BLOCK_RECORD").

namespace drawing {

namespace {

bool isModelName(std::string_view name) {
    return basic::NameEqual{}(name, "*Model_Space") || basic::NameEqual{}(name, "$MODEL_SPACE");
}

/// The paper space whose entities stand in the ENTITIES section.
bool isActivePaperName(std::string_view name) {
    return basic::NameEqual{}(name, "*Paper_Space") || basic::NameEqual{}(name, "$PAPER_SPACE");
}

bool isPaperName(std::string_view name) {
    return isActivePaperName(name) || basic::NameEqual{}(name.substr(0, 12), "*Paper_Space");
}

/// Marks a block as the space that its name says it is. The names of R12 become today's, as the host shows
/// them.
void classify(Block& block) {
    block.isModelSpace = isModelName(block.name);
    block.isPaperSpace = isPaperName(block.name);
    block.isActiveSpace = block.isModelSpace || isActivePaperName(block.name);
    if (block.isModelSpace) block.name = "*Model_Space";
    if (block.isPaperSpace && block.isActiveSpace) block.name = "*Paper_Space";
}

}  // namespace

void Opener::readTables() {
    // Names of blocks are compared by key: a BLOCK and its record may differ in case.
    drawing_->path_ = store_.source().path();
    drawing_->header_.setFormat(&store_.format());
    readHandles();
    addSpaces();
    for (EntityId id = 0; id < store_.count(); ++id) {
        const Record record = store_.record(id);
        if (!record.has(kTableEntry)) continue;
        if (record.type == kBlockRecord) addBlockRecord(id);
        if (record.type == kLayerEntry) addLayer(id);
    }
    for (const BlockRange& range : blockRanges_) addBlock(range);
    for (EntityId id : layouts_) readLayout(id);
    // Which spaces are active is known by their names; a layout may have made further blocks paper spaces.
    BlockTable& blocks = drawing_->blocks_;
    blocks.setSpaces(blocks.find("*Model_Space"), blocks.find("*Paper_Space"));
    for (const BlockRange& range : blockRanges_) {
        // A definition that isn't used, since another has its name, keeps its bytes and fills nothing.
        const BlockId block = blocks.ofName(nameKey(range.begin));
        if (block != kNoBlock && blocks[block].begin == range.begin) fillBlock(block, range);
    }
    fillSpaces();
}

void Opener::readHandles() {
    // R12 says in $HANDLING whether it has handles; later versions always do. Of two objects with one handle
    // the first keeps it, the second can't be found by it.
    Handle highest = 0;
    for (EntityId id = 0; id < store_.count(); ++id) {
        const Handle handle = store_.record(id).handle;
        if (handle == 0) continue;
        highest = std::max(highest, handle);
        if (store_.handles.add(handle, id)) continue;
        report(id, dxf::finding::kTakenHandle, "the handle is taken by an earlier object, which keeps it");
    }
    // In R12 without the variable the handles themselves tell.
    const bool declared = drawing_->header_.integer("$HANDLING").value_or(highest != 0 ? 1 : 0) != 0;
    store_.startHandles(store_.fileSeed, store_.format().hasSubclasses() || declared);
    if (store_.fileSeed != 0 && store_.fileSeed <= highest) {
        scanner_.report(store_.seedValue.begin, store_.fileSeed, dxf::finding::kLowSeed,
                        "$HANDSEED isn't above the highest handle");
    }
}

void Opener::addSpaces() {
    // Only R12 may lack them. They come first then, as in the tables of later versions.
    bool model = false;
    bool paper = false;
    const auto note = [&](EntityId id) {
        const std::string& name = store_.names.text(store_.record(id).name);
        model = model || isModelName(name);
        paper = paper || isActivePaperName(name);
    };
    for (EntityId id = 0; id < store_.count(); ++id) {
        const Record record = store_.record(id);
        if (record.has(kTableEntry) && record.type == kBlockRecord) note(id);
    }
    for (const BlockRange& range : blockRanges_) note(range.begin);
    for (const char* name : {"*Model_Space", "*Paper_Space"}) {
        if (isModelName(name) ? model : paper) continue;
        Block space;
        space.name = name;
        space.nameKey = store_.names.key(store_.names.intern(name));
        classify(space);
        drawing_->blocks_.add(std::move(space));
    }
}

void Opener::addBlockRecord(EntityId id) {
    Block block;
    block.nameKey = nameKey(id);
    block.handle = store_.record(id).handle;
    block.record = id;
    block.name = store_.names.text(store_.record(id).name);
    // The table's order is the one in which the host lists blocks.
    if (drawing_->blocks_.find(block.name) != kNoBlock) {
        report(id, dxf::finding::kSecondRecord, "a second block record of the name " + block.name);
        return;
    }
    classify(block);
    drawing_->blocks_.add(std::move(block));
}

void Opener::addBlock(const BlockRange& range) {
    // Group 2 is the block's name, 3 repeats it; 1 is the path of an external reference, 70 the flags (1
    // anonymous, 2 has attribute definitions, 4 and 8 an external reference, 16 depends on one).
    Block content;
    bool named = false;
    dxf::TagReader reader = store_.reader(range.begin);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        switch (tag.code) {
            case 1:
                content.xrefPath = tag.text();
                break;
            case 2:
                if (!named) content.name = tag.text();
                named = true;
                break;
            case 10:
                content.basePoint.x = tag.numberOr(0);
                break;
            case 20:
                content.basePoint.y = tag.numberOr(0);
                break;
            case 30:
                content.basePoint.z = tag.numberOr(0);
                break;
            case 70:
                content.flags = static_cast<int>(tag.integerOr(0));
                break;
            default:
                break;
        }
    }
    // The record was there first, from TABLES; the definition completes it. A file whose record is missing
    // gets a block all the same, so that its references show.
    classify(content);
    content.nameKey = nameKey(range.begin);
    BlockTable& blocks = drawing_->blocks_;
    BlockId id = blocks.find(content.name);
    if (id == kNoBlock) {
        if (store_.format().hasSubclasses())
            report(range.begin, dxf::finding::kNoBlockRecord,
                   "the block has no block record: " + content.name);
        id = blocks.add(content);
    } else if (blocks[id].begin != kNoEntity) {
        report(range.begin, dxf::finding::kSecondDefinition,
               "a second definition of the block " + content.name + ", which isn't used");
        return;
    }
    Block& block = blocks[id];
    block.xrefPath = std::move(content.xrefPath);
    block.basePoint = content.basePoint;
    block.flags = content.flags;
    block.begin = range.begin;
    block.end = range.end;
}

void Opener::addLayer(EntityId id) {
    // Colour and state alone; all else of a layer is asked of its record.
    Layer layer;
    layer.record = id;
    layer.name = store_.names.text(store_.record(id).name);
    layer.readState(store_.reader(id));
    drawing_->layers_.add(nameKey(id), std::move(layer));
}

void Opener::readLayout(EntityId id) {
    // Group 1 of AcDbLayout is the tab's name, 330 there the block record of its space; 330 in front of the
    // marker is the owner of the object (DXF Reference, "LAYOUT").
    std::string name;
    Handle space = 0;
    bool inLayout = false;
    dxf::TagReader reader = store_.reader(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 100) inLayout = tag.raw == "AcDbLayout";
        if (inLayout && tag.code == 1) name = tag.text();
        if (inLayout && tag.code == 330) space = tag.handle();
    }
    for (BlockId block = 0; space != 0 && block < drawing_->blocks_.size(); ++block) {
        Block& candidate = drawing_->blocks_[block];
        if (candidate.handle != space) continue;
        candidate.layoutName = name;
        // The name alone doesn't tell: other programs call the spaces of further layouts as they like.
        if (!candidate.isModelSpace) candidate.isPaperSpace = true;
    }
}

void Opener::fillBlock(BlockId block, const BlockRange& range) {
    // What stands between BLOCK and ENDBLK, parts passed over: the content in drawing order.
    for (EntityId id = range.begin + 1; id < range.last; ++id) addToBlock(block, id);
}

void Opener::fillSpaces() {
    // There may be several ENTITIES sections in files that programs joined.
    const BlockTable& blocks = drawing_->blocks_;
    for (const EntityRange& range : entityRanges_) {
        for (EntityId id = range.first; id < range.last; ++id) {
            addToBlock(store_.record(id).has(kPaperSpace) ? blocks.paperSpace() : blocks.modelSpace(), id);
        }
    }
}

void Opener::addToBlock(BlockId id, EntityId entity) {
    // A stray attribute or vertex is kept in the file, but belongs to nothing that could show it.
    const Record record = store_.record(entity);
    if (record.has(kPart) || record.has(kStray)) return;
    Block& block = drawing_->blocks_[id];
    store_.setOwnerWhileReading(entity, id);
    block.entities.push_back(entity);
    // Only references that a space shows are selected by name and counted; those inside of definitions come
    // along with them.
    if (block.isLayout()) {
        store_.indexName(entity);
        if (record.type == kInsert && drawing_->blocks_.ofName(nameKey(entity)) == kNoBlock) {
            report(entity, dxf::finding::kMissingBlock,
                   "a reference of a block that the drawing lacks: " + store_.names.text(record.name));
        }
    } else if (record.type == kAttDef) {
        // A constant attribute is text of the block and makes no attribute of its references.
        if (drawing_->attribute(entity).isConstant()) {
            block.hasConstantAttributes = true;
        } else {
            block.attributeDefinitions.push_back(entity);
        }
    }
}

}  // namespace drawing
