#include "desk/import/import_tables.h"

#include "basic/text.h"
#include "desk/dxf/tag_writer.h"

namespace importing {

namespace {

using dxf::Version;

constexpr TypeId kEntryTypes[] = {kBlockRecord,   kLayerEntry,    kStyleEntry,
                                  kLineTypeEntry, kDimStyleEntry, kAppEntry};

bool isEntryType(std::uint16_t type) {
    for (TypeId each : kEntryTypes) {
        if (each == type) return true;
    }
    return false;
}

std::string_view markerOf(TypeId table) {
    switch (table) {
        case kLayerEntry:
            return "AcDbLayerTableRecord";
        case kStyleEntry:
            return "AcDbTextStyleTableRecord";
        case kLineTypeEntry:
            return "AcDbLinetypeTableRecord";
        case kDimStyleEntry:
            return "AcDbDimStyleTableRecord";
        case kAppEntry:
            return "AcDbRegAppTableRecord";
        default:
            return "AcDbBlockTableRecord";
    }
}

}  // namespace

ImportTables::ImportTables(const Store& from, Store& to, LayerTable& layers, ImportLinks& links)
    : from_(from), to_(to), layers_(layers), links_(links) {
    for (EntityId id = 0; id < from_.count(); ++id) {
        const Record record = from_.record(id);
        if (!record.has(kTableEntry) || record.has(kErased) || !isEntryType(record.type)) continue;
        source_.try_emplace(key(static_cast<TypeId>(record.type), from_.names.key(record.name)), id);
    }
    TypeId open = kNoType;
    for (EntityId id = 0; id < to_.count(); ++id) {
        const Record record = to_.record(id);
        if (!record.has(kTableEntry) || record.has(kErased)) continue;
        if (record.type == kTable) {
            open = static_cast<TypeId>(to_.findType(to_.names.text(record.name)));
            handles_[open] = record.handle;
        } else if (record.type == kTableEnd) {
            ends_.try_emplace(open, id);
        } else if (isEntryType(record.type)) {
            known_.try_emplace(key(static_cast<TypeId>(record.type), to_.names.key(record.name)),
                               record.handle);
        }
    }
}

Handle ImportTables::tableHandle(TypeId entries) const {
    const auto found = handles_.find(entries);
    return found == handles_.end() ? 0 : found->second;
}

Handle ImportTables::require(TypeId table, const std::string& name) {
    if (name.empty()) return 0;
    const NameKey here = to_.names.key(to_.names.intern(name));
    const auto known = known_.find(key(table, here));
    if (known != known_.end()) return known->second;
    const auto source = source_.find(key(table, from_.names.find(name)));
    if (source == source_.end()) return 0;
    if (!hasTable(table)) makeTable(table);
    const Handle handle = to_.takeHandles(1);
    // Known before it is copied, so that entries which name each other come to an end.
    known_[key(table, here)] = handle;
    std::string bytes;
    copy(source->second, table, handle, bytes);
    add(table, name, handle, bytes);
    return handle;
}

bool ImportTables::provide(TypeId table, const std::string& name) {
    if (name.empty()) return false;
    require(table, name);
    const NameKey here = to_.names.key(to_.names.intern(name));
    return known_.contains(key(table, here));
}

void ImportTables::makeTable(TypeId entries) {
    const bool marked = to_.format().hasSubclasses();
    const Handle handle = to_.takeHandles(1);
    std::string bytes;
    dxf::TagWriter writer(to_.format(), bytes);
    writer.plain(0, "TABLE");
    writer.plain(2, kTypeNames[entries]);
    if (marked) writer.handle(5, handle);
    if (to_.format().version >= Version::R2000) writer.handle(330, 0);
    writer.subclass("AcDbSymbolTable");
    writer.integer(70, 0);  // how many entries; nobody goes by it
    if (entries == kDimStyleEntry) writer.subclass("AcDbDimStyleTable");
    Record head;
    head.type = kTable;
    head.handle = marked ? handle : 0;
    head.name = to_.names.intern(kTypeNames[entries]);
    head.set(kTableEntry);
    const EntityId id = to_.add(head, bytes);
    bytes.clear();
    writer.plain(0, "ENDTAB");
    Record tail;
    tail.type = kTableEnd;
    tail.set(kTableEntry);
    ends_[entries] = to_.add(tail, bytes);
    handles_[entries] = head.handle;
    to_.additions.push_back({Place::Tables, ends_[entries], id});
}

EntityId ImportTables::add(TypeId type, const std::string& name, Handle handle, std::string_view bytes) {
    Record record;
    record.type = type;
    record.handle = handle;
    record.name = to_.names.intern(name);
    record.set(kTableEntry);
    const EntityId id = to_.add(record, bytes);
    to_.additions.push_back({Place::BeforeRecord, ends_.at(type), id});
    known_[key(type, to_.names.key(record.name))] = handle;
    if (type == kLayerEntry) enterLayer(id, name);
    return id;
}

void ImportTables::enterLayer(EntityId id, const std::string& name) {
    Layer layer;
    layer.name = name;
    layer.record = id;
    layer.readState(to_.reader(id));
    const NameKey nameKey = to_.names.key(to_.record(id).name);
    layers_.add(nameKey, std::move(layer));
    to_.step().layers.push_back(nameKey);
}

bool ImportTables::keeps(TypeId table, const dxf::Tag& tag) const {
    const Version version = to_.format().version;
    if (table == kLayerEntry) {
        if (tag.code == 370 || tag.code == 290) return version >= Version::R2000;
        return tag.code < 100 || ((tag.code == 420 || tag.code == 430) && version >= Version::R2004);
    }
    if (to_.format().hasSubclasses()) {
        // Names of arrow blocks in a dimension style of R12; later ones have handles.
        const bool arrowName =
            table == kDimStyleEntry && !from_.format().hasSubclasses() && tag.code >= 5 && tag.code <= 7;
        return !arrowName;
    }
    if (table == kLineTypeEntry)
        return tag.code <= 3 || tag.code == 70 || tag.code == 72 || tag.code == 73 || tag.code == 40 ||
               tag.code == 49;
    if (table == kDimStyleEntry) {
        return tag.code < 5 || (tag.code >= 40 && tag.code <= 78) || (tag.code >= 140 && tag.code <= 147) ||
               (tag.code >= 170 && tag.code <= 178);
    }
    return tag.code < 100;
}

void ImportTables::copy(EntityId entry, TypeId table, Handle handle, std::string& bytes) {
    dxf::TagWriter writer(to_.format(), bytes);
    writer.plain(0, kTypeNames[table]);
    if (handle != 0) writer.handle(table == kDimStyleEntry ? 105 : 5, handle);
    if (to_.format().version >= Version::R2000) writer.handle(330, tableHandle(table));
    writer.subclass("AcDbSymbolTableRecord");
    writer.subclass(markerOf(table));
    bool inBraces = false;
    bool inside = !from_.format().hasSubclasses();
    dxf::TagReader reader = from_.reader(entry);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 102) inBraces = tag.raw.starts_with('{');
        if (tag.code == 100) inside = tag.raw == markerOf(table);
        const bool isFrame = tag.code == 0 || tag.code == 100 || tag.code == 102 || tag.code == 105 ||
                             tag.code == dxf::kComment;
        if (isFrame || inBraces || !inside || !keeps(table, tag)) continue;
        const dxf::HandleRole role = dxf::handleRole(tag.code);
        // Code 5 of a dimension style isn't a handle.
        if (role == dxf::HandleRole::Own && table != kDimStyleEntry) continue;
        if (role != dxf::HandleRole::None && role != dxf::HandleRole::Own) {
            const Handle translated = links_.handle(tag.handle());
            if (translated != 0) writer.handle(tag.code, translated);
            continue;
        }
        if (tag.code == 6 && table == kLayerEntry) links_.use(kLineTypeEntry, tag.text());
        writer.copy(tag);
    }
    if (table == kLayerEntry) writeLayerDefaults(writer);
}

void ImportTables::writeLayerDefaults(dxf::TagWriter& writer) const {
    // Plot style and material are objects of this drawing; layer 0 has those of an ordinary layer.
    const EntityId record = layers_[to_.names.find("0")].record;
    if (record == kNoEntity || to_.format().version < Version::R2000) return;
    dxf::TagReader reader = to_.reader(record);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 390 || tag.code == 347) writer.handle(tag.code, tag.handle());
    }
}

}  // namespace importing
