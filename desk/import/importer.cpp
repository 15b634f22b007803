#include "desk/import/importer.h"

#include "basic/text.h"
#include "desk/drawing/class_names.h"
#include "desk/drawing/inside.h"
#include "desk/drawing/savepoint.h"
#include "desk/dxf/number_text.h"
#include "desk/dxf/tag_writer.h"

#include <algorithm>

// A whole drawing becomes a block of another one, as the host's INSERT does with a file: the content of its
// model space with $INSBASE as base point; paper spaces stay behind. Where both drawings know a name the
// target's definition counts (block, layer, style), so the content may look different there; the caller is
// told of the blocks.
//
// Nothing is copied blindly, since the two files may differ in version, encoding and handles. Each entity is
// read group by group and written anew (EntityTranslator). Whatever it names is fetched when it is met:
// tables by name (ImportTables), nested blocks by a recursion that ends because a block can't contain itself,
// checked beforehand. Handles are given to all the content of a block before any of it is written: entities
// may name one another, also those behind them (a leader its text). A handle whose
// object didn't come along is left out.
//
// The new records are additions to the undo step; saving puts them at the end of their table or of BLOCKS.

namespace importing {

using drawing::isDimension;

namespace {

constexpr int kAnonymousFlag = 1;
constexpr int kAttributesFlag = 2;
/// Each level of nesting takes some stack.
constexpr int kDeepest = 500;

}  // namespace

Importer::Importer(Drawing& target, const Drawing& source)
    : target_(target),
      source_(source),
      to_(Inside::store(target)),
      from_(Inside::store(source)),
      targetBlocks_(Inside::blocks(target)),
      tables_(from_, to_, Inside::layers(target), *this),
      translator_(from_, to_, *this) {}

ImportResult Importer::import(const std::string& name) {
    // Nothing has changed when this refuses.
    checkNames(name);
    // The model space counts as the source of the new block, so that what names it by handle finds the block.
    const BlockId model = source_.modelSpace();
    const Point3 base = source_.header().point("$INSBASE").value_or(Point3{});
    BlockId block = target_.blocks().find(name);
    result_.redefined = block != kNoBlock;
    if (result_.redefined) {
        redefine(block, base);
    } else {
        Block fresh;
        fresh.name = name;
        fresh.basePoint = base;
        block = make(std::move(fresh));
    }
    // Entered first, as with nested blocks (blockFor): what is filled may name it.
    blocks_[model] = block;
    fill(block, model);
    result_.block = block;
    return result_;
}

void Importer::checkNames(const std::string& name) const {
    // A name with an asterisk in front is the host's own (spaces, dimensions, hatches of old).
    const BlockId existing = target_.blocks().find(name);
    if (name.empty() || name.starts_with('*')) raise(kInvalidInput, "block name \"" + name + "\"");
    if (existing != kNoBlock && target_.blocks()[existing].isLayout())
        raise(kInvalidInput, name + " is a space");
    if (to_.format().hasSubclasses() && !tables_.hasTable(kBlockRecord)) {
        raise(kInvalidInput, "the drawing has no table of block records");
    }
    std::unordered_set<BlockId> seen;
    if (reaches(source_, source_.modelSpace(), name, seen))
        raise(kInvalidInput, "block " + name + " references itself");
    // A nested block of which this drawing keeps its own definition may lead back here.
    std::unordered_set<BlockId> ours;
    for (BlockId nested : seen) {
        const BlockId kept = target_.blocks().find(source_.blocks()[nested].name);
        if (kept == kNoBlock || target_.blocks()[kept].isLayout()) continue;
        if (reaches(target_, kept, name, ours)) raise(kInvalidInput, "block " + name + " references itself");
    }
}

bool Importer::reaches(const Drawing& drawing, BlockId from, const std::string& name,
                       std::unordered_set<BlockId>& seen, int depth) {
    // Depth first. `seen` cuts off damaged drawings whose blocks go in circles, and work done twice.
    if (!seen.insert(from).second) return false;
    if (depth > kDeepest) raise(kInvalidInput, "blocks nested more than 500 deep");
    bool found = false;
    // Names are compared, not blocks: the source knows nothing yet of the one that is to be made.
    const Store& store = Inside::store(drawing);
    drawing.forEachEntity(from, [&](EntityId id) {
        const Record record = store.record(id);
        if (record.type != kInsert) return true;
        const BlockId nested = drawing.referencedBlock(id);
        found = basic::equalIgnoringCase(store.names.text(record.name), name) ||
                (nested != kNoBlock && reaches(drawing, nested, name, seen, depth + 1));
        return !found;
    });
    return found;
}

Handle Importer::handle(Handle source) {
    // A handle names a table entry, which comes along by its name; a block record, by the block; or an
    // entity, which is in the map if it is of the content. Dictionaries and other objects don't come along.
    const EntityId object = from_.handles.find(source);
    if (object == kNoEntity || from_.isErased(object)) return 0;
    const Record record = from_.record(object);
    if (!record.has(kTableEntry)) return given(object);
    const std::string& name = from_.names.text(record.name);
    if (record.type != kBlockRecord) return tables_.require(static_cast<TypeId>(record.type), name);
    const BlockId block = source_.blocks().find(name);
    if (block == kNoBlock || source_.blocks()[block].isLayout()) return 0;
    return target_.blocks()[blockFor(block)].handle;
}

bool Importer::use(TypeId table, const std::string& name) { return tables_.provide(table, name); }

std::string Importer::block(const std::string& name) {
    // A reference to a block that the source lacks keeps its name and shows what this drawing has of that
    // name.
    const BlockId source = source_.blocks().find(name);
    if (source == kNoBlock || source_.blocks()[source].isLayout()) return name;
    return target_.blocks()[blockFor(source)].name;
}

Handle Importer::given(EntityId id) const {
    const auto found = entityHandles_.find(id);
    return found == entityHandles_.end() ? 0 : found->second;
}

BlockId Importer::blockFor(BlockId source) {
    // Entered into the map before it is filled, so that each block is brought in once however often it is
    // named.
    const auto done = blocks_.find(source);
    if (done != blocks_.end()) return done->second;
    if (depth_ > kDeepest) raise(kInvalidInput, "blocks nested more than 500 deep");
    // Of a name that both have the definition here stays; names of the host's own making don't count as the
    // same.
    const Block& nested = source_.blocks()[source];
    const BlockId existing = target_.blocks().find(nested.name);
    if (existing != kNoBlock && !nested.isAnonymous()) {
        result_.kept.push_back(target_.blocks()[existing].name);
        return blocks_[source] = existing;
    }
    Block fresh;
    // Anonymous blocks are numbered by each drawing for itself.
    fresh.name = existing == kNoBlock ? nested.name : freeName(nested.name);
    fresh.basePoint = nested.basePoint;
    fresh.flags = nested.flags;
    fresh.xrefPath = nested.xrefPath;
    const BlockId made = make(std::move(fresh));
    blocks_[source] = made;
    ++depth_;
    fill(made, source);
    --depth_;
    return made;
}

std::string Importer::freeName(std::string_view anonymous) const {
    // "*U7" of one drawing has nothing to do with "*U7" of the other: the copy gets the first free number
    // from the count of blocks on, which other copies haven't taken most likely.
    const std::string stem(anonymous.substr(0, anonymous.find_last_not_of("0123456789") + 1));
    for (std::size_t number = target_.blocks().size();; ++number) {
        std::string name = stem + std::to_string(number);
        if (target_.blocks().find(name) == kNoBlock) return name;
    }
}

BlockId Importer::make(Block block) {
    // The groups of a block record by version: DXF Reference, "BLOCK_RECORD". R12 has none.
    block.nameKey = to_.names.key(to_.names.intern(block.name));
    if (to_.format().hasSubclasses()) {
        block.handle = to_.takeHandles(1);
        std::string bytes;
        dxf::TagWriter writer(to_.format(), bytes);
        writer.plain(0, "BLOCK_RECORD");
        writer.handle(5, block.handle);
        const dxf::Version version = to_.format().version;
        if (version >= dxf::Version::R2000) writer.handle(330, tables_.tableHandle(kBlockRecord));
        writer.subclass("AcDbSymbolTableRecord");
        writer.subclass("AcDbBlockTableRecord");
        writer.text(2, block.name);
        // 340 would name a layout: this block has none.
        if (version >= dxf::Version::R2000) writer.handle(340, 0);
        if (version >= dxf::Version::R2007) {
            writer.integer(70, source_.header().integer("$INSUNITS").value_or(0));
            writer.integer(280, 1);  // may be exploded
            writer.integer(281, 0);  // may be scaled unevenly
        }
        block.record = tables_.add(kBlockRecord, block.name, block.handle, bytes);
    }
    Inside::noteChange(target_);
    return targetBlocks_.add(std::move(block));
}

void Importer::redefine(BlockId existing, const Point3& basePoint) {
    // The block keeps its number, record, handle and references, which show the new content from now on. What
    // it held is erased like entities of a space; its frame is written anew with the new content behind that
    // of all blocks.
    Block& block = targetBlocks_[existing];
    to_.step().blocks.emplace_back(existing, block);
    for (EntityId id : block.entities) {
        if (to_.isErased(id)) continue;
        Inside::eraseOwned(target_, id);
        to_.change(id).set(kErased);
    }
    for (EntityId frame : {block.begin, block.end}) {
        if (frame != kNoEntity) to_.change(frame).set(kErased);
    }
    block.entities.clear();
    block.attributeDefinitions.clear();
    block.hasConstantAttributes = false;
    block.basePoint = basePoint;
    // An external reference becomes a block of the drawing; what attributes there are its content tells.
    block.flags &= kAnonymousFlag;
    block.xrefPath.clear();
    Inside::noteChange(target_);
}

EntityId Importer::addFrame(BlockId target, TypeId type) {
    // BLOCK and ENDBLK are entities of layer 0 that the block record owns. The name stands twice (2 and 3).
    const Block& block = target_.blocks()[target];
    const bool begins = type == kBlockBegin;
    const Handle handle = to_.takeHandles(1);
    std::string bytes;
    dxf::TagWriter writer(to_.format(), bytes);
    writer.plain(0, kTypeNames[type]);
    if (handle != 0) writer.handle(5, handle);
    if (to_.format().version >= dxf::Version::R2000) writer.handle(330, block.handle);
    writer.subclass("AcDbEntity");
    writer.plain(8, "0");
    writer.subclass(begins ? "AcDbBlockBegin" : "AcDbBlockEnd");
    if (begins) {
        writer.text(2, block.name);
        writer.integer(70, block.flags);
        writer.point(10, block.basePoint.x, block.basePoint.y, block.basePoint.z);
        writer.text(3, block.name);
        writer.text(1, block.xrefPath);
    }
    Record record;
    record.type = type;
    record.handle = handle;
    record.name = begins ? to_.names.intern(block.name) : kNoName;
    const EntityId id = to_.add(record, bytes);
    to_.additions.push_back({Place::Blocks, kNoEntity, id});
    return id;
}

void Importer::fill(BlockId target, BlockId source) {
    // Nested blocks have to be there before this one begins: a definition holds no other.
    std::vector<EntityId> content;
    source_.forEachEntity(source, [&](EntityId id) {
        const std::string obstacle = translator_.obstacle(id);
        if (!obstacle.empty()) {
            leave(id, obstacle);
            return true;
        }
        const Record record = from_.record(id);
        if (record.type == kInsert || isDimension(from_.typeName(record.type))) {
            block(from_.names.text(record.name));
        }
        content.push_back(id);
        return true;
    });
    // Parts have handles of their own, and other entities may name those too.
    for (EntityId id : content) {
        for (EntityId each = id; each <= id + from_.record(id).parts; ++each) {
            if (!from_.isErased(each)) entityHandles_[each] = to_.takeHandles(1);
        }
    }
    // Bit 2 of the flags says whether there are attribute definitions that make attributes; the BLOCK that is
    // written next must tell it.
    for (EntityId id : content) {
        if (from_.record(id).type != kAttDef) continue;
        const bool constant = source_.attribute(id).isConstant();
        Block& block = targetBlocks_[target];
        block.flags |= constant ? 0 : kAttributesFlag;
        block.hasConstantAttributes = block.hasConstantAttributes || constant;
    }
    // Written in the order in which the file will have it.
    const EntityId begin = addFrame(target, kBlockBegin);
    for (EntityId id : content) copyEntity(target, id);
    const EntityId end = addFrame(target, kBlockEnd);
    targetBlocks_[target].begin = begin;
    targetBlocks_[target].end = end;
}

void Importer::copyEntity(BlockId target, EntityId id) {
    // Parts follow their main entity. Erased ones have no place in the count by which the records hang
    // together.
    if (translator_.becomesPolyline(id)) return copyPolyline(target, id);
    const Record record = from_.record(id);
    scratch_.clear();
    translator_.translate(id, given(id), target_.blocks()[target].handle, scratch_);
    std::uint32_t parts = 0;
    for (EntityId part = id + 1; part <= id + record.parts; ++part) parts += from_.isErased(part) ? 0 : 1;
    const EntityId main = addMain(target, record.type, given(id), parts, scratch_);
    for (EntityId part = id + 1; part <= id + record.parts; ++part) {
        if (from_.isErased(part)) continue;
        std::string bytes;
        translator_.translate(part, given(part), given(id), bytes);
        addPart(main, from_.record(part).type, given(part), bytes);
    }
    if (record.type == kAttDef && !source_.attribute(id).isConstant()) {
        targetBlocks_[target].attributeDefinitions.push_back(main);
    }
}

void Importer::copyPolyline(BlockId target, EntityId id) {
    // R12 has no LWPOLYLINE; vertices become entities, for which handles are needed besides the given one.
    // One handle each for the POLYLINE, its vertices and the SEQEND that closes it.
    const std::size_t count = translator_.vertexCount(id) + 2;
    std::vector<Handle> handles(count, 0);
    for (std::size_t i = 0; i < count; ++i) handles[i] = i == 0 ? given(id) : to_.takeHandles(1);
    const std::vector<std::string> parts =
        translator_.polylineOf(id, handles, target_.blocks()[target].handle);
    const EntityId main =
        addMain(target, kPolyline, handles[0], static_cast<std::uint32_t>(parts.size() - 1), parts[0]);
    for (std::size_t i = 1; i < parts.size(); ++i) {
        addPart(main, i + 1 == parts.size() ? kSeqEnd : kVertex, handles[i], parts[i]);
    }
}

EntityId Importer::addMain(BlockId target, std::uint16_t type, Handle handle, std::uint32_t parts,
                           std::string_view bytes) {
    // What else a record says is read back from the groups just written, in the target's terms.
    Record record;
    record.type = to_.internType(from_.typeName(type));
    record.handle = handle;
    record.owner = target;
    record.parts = parts;
    const EntityId id = to_.add(record, bytes);
    Inside::refreshRecord(target_, id);
    to_.additions.push_back({Place::Blocks, kNoEntity, id});
    targetBlocks_[target].entities.push_back(id);
    return id;
}

EntityId Importer::addPart(EntityId main, std::uint16_t type, Handle handle, std::string_view bytes) {
    // A part is owned by its main entity, whose number precedes its own without a gap.
    Record record;
    record.type = to_.internType(from_.typeName(type));
    record.handle = handle;
    record.owner = main;
    record.set(kPart);
    const EntityId id = to_.add(record, bytes);
    Inside::refreshRecord(target_, id);
    return id;
}

void Importer::leave(EntityId id, const std::string& reason) {
    const Record record = from_.record(id);
    result_.leftBehind.push_back(std::string(from_.typeName(record.type)) + " " +
                                 dxf::handleText(source_.handle(id)) + " " + reason);
}

ImportResult importBlock(Drawing& target, const Drawing& source, const std::string& name) {
    // One step: undo takes back the block with all that came along, layers and styles too.
    const UndoStep step(target);
    drawing::Savepoint before(target);
    try {
        ImportResult result = Importer(target, source).import(name);
        Inside::forgetDefinitions(target);
        return result;
    } catch (...) {  // amid it: the source may be damaged anywhere, and memory run out
        before.takeBack();
        throw;
    }
}

}  // namespace importing
