#include "desk/drawing/drawing.h"

#include "desk/drawing/class_names.h"
#include "desk/drawing/creator.h"
#include "desk/drawing/store.h"

#include <algorithm>
#include <span>

namespace drawing {

Drawing::Drawing(dxf::Source source)
    : store_(std::make_unique<Store>(std::move(source))), creator_(std::make_unique<Creator>(*this)) {}
Drawing::~Drawing() = default;

const std::vector<dxf::Finding>& Drawing::findings() const { return store_->findings.list(); }
const dxf::Format& Drawing::format() const { return store_->format(); }

std::size_t Drawing::entityCount(BlockId block) const {
    const std::vector<EntityId>& all = blocks_[block].entities;
    return static_cast<std::size_t>(
        std::count_if(all.begin(), all.end(), [this](EntityId id) { return !isErased(id); }));
}

std::vector<EntityId> Drawing::tableEntries(std::string_view type) const {
    std::vector<EntityId> result;
    const std::uint16_t wanted = store_->findType(type);
    for (EntityId id = 0; wanted != kNoType && id < store_->count(); ++id) {
        const Record record = store_->record(id);
        if (record.type == wanted && record.has(kTableEntry) && !isErased(id)) result.push_back(id);
    }
    return result;
}

bool Drawing::isErased(EntityId id) const { return store_->isErased(id); }

void Drawing::requireAlive(EntityId id) const {
    if (id >= store_->count() || isErased(id)) raise(kObjectErased);
}

std::string_view Drawing::type(EntityId id) const {
    requireAlive(id);
    return store_->typeName(store_->record(id).type);
}

std::string_view Drawing::typeEvenErased(EntityId id) const {
    return store_->typeName(store_->record(id).type);
}

std::string Drawing::objectName(EntityId id) const {
    requireAlive(id);
    const Record record = store_->record(id);
    const std::string_view type = store_->typeName(record.type);
    int flags = 0;
    int columns = 1;
    std::string marker = "AcDbEntity";
    dxf::TagReader reader = tags(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 70 && flags == 0) flags = static_cast<int>(tag.integerOr(0));
        if (tag.code == 71) columns = static_cast<int>(tag.integerOr(1));
        if (tag.code == 100) marker = tag.text();
    }
    if (record.type == kInsert) return flags > 1 || columns > 1 ? "AcDbMInsertBlock" : "AcDbBlockReference";
    if (record.type == kPolyline) return std::string(polylineClass(flags));
    if (type == "DIMENSION") return std::string(dimensionClass(flags));
    const EntityClass* known = entityClass(type);
    return known != nullptr ? std::string(known->className) : marker;
}

Handle Drawing::handle(EntityId id) const {
    requireAlive(id);
    const Handle own = store_->record(id).handle;
    return own != 0 ? own : standInBase() + id + 1;
}

Handle Drawing::standInBase() const {
    // Where some objects have handles, those of the others stay clear of all that will ever be given.
    constexpr Handle kBeyond = Handle{0xF} << 60;
    return store_->usesHandles() ? kBeyond : 0;
}

EntityId Drawing::byHandle(Handle handle) const {
    EntityId id = store_->handles.find(handle);
    const Handle base = standInBase();
    if (id == kNoEntity && handle > base && handle - base <= store_->count()) {
        const auto standIn = static_cast<EntityId>(handle - base - 1);
        if (store_->record(standIn).handle == 0) id = standIn;
    }
    return id == kNoEntity || isErased(id) ? kNoEntity : id;
}

BlockId Drawing::owner(EntityId id) const {
    const Record record = store_->record(mainEntity(id));
    return record.owner;
}

EntityId Drawing::mainEntity(EntityId id) const {
    requireAlive(id);
    const Record record = store_->record(id);
    return record.has(kPart) ? record.owner : id;
}

PartRange Drawing::parts(EntityId id) const {
    requireAlive(id);
    return {id + 1, store_->record(id).parts};
}

bool Drawing::isAttribute(EntityId id) const { return store_->record(id).type == kAttrib; }

std::vector<EntityId> Drawing::attributes(EntityId id) const {
    std::vector<EntityId> found;
    found.reserve(parts(id).count);
    forEachAttribute(id, [&](EntityId part) { found.push_back(part); });
    return found;
}

std::string_view Drawing::bytes(EntityId id) const {
    requireAlive(id);
    return store_->view(id);
}

BlockId Drawing::referencedBlock(EntityId id) const {
    requireAlive(id);
    return blocks_.ofName(store_->names.key(store_->record(id).name));
}

dxf::TagReader Drawing::tags(EntityId id) const { return store_->reader(bytes(id)); }

const Layer& Drawing::layer(EntityId id) const {
    requireAlive(id);
    return layers_[store_->names.key(store_->record(id).layer)];
}

std::string_view Drawing::layerName(EntityId id) const {
    const Layer& known = layer(id);
    const NameId name = store_->record(id).layer;
    if (known.name.empty()) return name == kNoName ? "0" : std::string_view(store_->names.text(name));
    return known.name;
}

bool Drawing::isOnLockedLayer(EntityId id) const { return layer(id).locked; }

bool Drawing::isInvisible(EntityId id) const { return store_->record(id).has(kInvisible); }

bool Drawing::isDisplayed(EntityId id) const {
    const Layer& known = layer(id);
    return !known.off && !known.frozen && !isInvisible(id);
}

}  // namespace drawing
