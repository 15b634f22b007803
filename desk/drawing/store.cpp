#include "desk/drawing/store.h"

#include <algorithm>

namespace drawing {

namespace {

/// Room for the records of nearly any drawing: growing costs a copy, while room that nobody touches costs
/// nothing.
constexpr std::size_t kBytesPerRecord = 80;

}  // namespace

Store::Store(dxf::Source source) : tagEdit_(source.format()), source_(std::move(source)) {
    records_.reserve(source_.bytes().size() / kBytesPerRecord);
    handles.reserve(source_.bytes().size() / kBytesPerRecord);
    for (std::uint16_t type = 1; type < kKnownTypes; ++type) types_.intern(kTypeNames[type]);
}

EntityId Store::addFromFile(const Record& record) {
    PackedRecord packed = pack(record);
    const auto place = static_cast<std::uint64_t>(record.bytes - source_.bytes().data());
    if (place > PackedRecord::kHighestPlace) source_.tags().fail(place, "a drawing of more than 1 TB");
    packed.setPlace(place, false);
    packed.size = record.size;
    records_.push_back(packed);
    highestHandle_ = std::max(highestHandle_, record.handle);
    return count() - 1;
}

PackedRecord Store::pack(const Record& record) {
    PackedRecord packed;
    packed.flags = record.flags;
    packed.owner = record.owner;
    packed.kind = kinds_.intern({record.layer, record.name, record.type});
    if (record.handle > 0xFFFFFFFF || record.parts > kMostParts) {
        packed.set(kRare);
        packed.handle = static_cast<std::uint32_t>(rare_.size());
        rare_.push_back({record.handle, record.parts});
    } else {
        packed.handle = static_cast<std::uint32_t>(record.handle);
        packed.parts = static_cast<std::uint8_t>(record.parts);
    }
    return packed;
}

void Store::countPartWhileReading(EntityId id) {
    PackedRecord& packed = records_[id];
    if (packed.has(kRare)) {
        ++rare_[packed.handle].parts;
    } else if (packed.parts < kMostParts) {
        ++packed.parts;
    } else {
        rare_.push_back({packed.handle, kMostParts + 1});
        packed.handle = static_cast<std::uint32_t>(rare_.size() - 1);
        packed.set(kRare);
    }
}

FileRange Store::fileRange(EntityId id) const {
    const PackedRecord& record = records_[id];
    if (record.has(kOwnBytes)) return originals_.at(id);
    return {record.place(), record.place() + record.size};
}

PackedRecord& Store::change(EntityId id) {
    journal.note(id);
    PackedRecord& record = records_[id];
    StepLog& log = step();
    if (id < log.firstNew && !record.has(kLogged)) {
        log.records.emplace_back(id, record);
        record.set(kLogged);
    }
    return record;
}

void Store::setBytes(EntityId id, std::string_view bytes) {
    PackedRecord& record = change(id);
    if (record.has(kFresh)) {
        record.setPlace(arena_.replace(record.place(), record.size, bytes), true);
    } else {
        if (!record.has(kOwnBytes)) originals_.insert_or_assign(id, fileRange(id));
        record.setPlace(arena_.store(bytes), true);
    }
    record.size = static_cast<std::uint32_t>(bytes.size());
    record.set(kFresh);
}

void Store::setNames(EntityId id, NameId layer, NameId name) {
    PackedRecord& record = change(id);
    record.kind = kinds_.intern({layer, name, kinds_[record.kind].type});
}

void Store::dropBytes(EntityId id) {
    PackedRecord& record = records_[id];
    arena_.release(record.place(), record.size);
    record.size = 0;
}

EntityId Store::add(const Record& record, std::string_view bytes) {
    PackedRecord packed = pack(record);
    packed.setPlace(arena_.store(bytes), true);
    packed.size = static_cast<std::uint32_t>(bytes.size());
    packed.set(kFresh);
    records_.push_back(packed);
    const EntityId id = count() - 1;
    if (record.handle != 0) handles.put(record.handle, id);
    journal.note(id);
    return id;
}

std::uint16_t Store::findType(std::string_view name) const {
    return static_cast<std::uint16_t>(types_.find(name));
}

std::uint16_t Store::internType(std::string_view name) {
    const NameId type = types_.internRaw(name, encoding());
    if (type > 0xFFFF)
        throw dxf::ReadError(dxf::kInvalidFileFormat, source_.path() + ": too many kinds of objects");
    return static_cast<std::uint16_t>(type);
}

void Store::startHandles(Handle seed, bool use) {
    usesHandles_ = use;
    // Behind the highest handle of all there is none: the gaps have to do.
    const Handle behind = highestHandle_ <= kHighestHandle ? highestHandle_ + 1 : highestHandle_;
    firstHandle_ = nextHandle_ = std::max({seed, behind, Handle{1}});
}

Handle Store::takeFromGap(std::size_t count) {
    // Fewer objects than handles below the highest one, so there is always a gap, and soon.
    std::size_t run = 0;
    while (run < count) {
        run = handles.find(gap_) == kNoEntity ? run + 1 : 0;
        ++gap_;
    }
    return gap_ - count;
}

const std::vector<EntityId>& Store::named(NameKey name) const {
    static const std::vector<EntityId> kNone;
    if (indexOf(name) >= named_.size()) return kNone;
    NamedList& list = named_[indexOf(name)];
    if (!list.isTidy) tidy(list, name);
    return list.ids;
}

void Store::tidy(NamedList& list, NameKey name) const {
    std::erase_if(list.ids, [&](EntityId id) { return nameOf(id) != name; });
    if (!std::is_sorted(list.ids.begin(), list.ids.end())) std::sort(list.ids.begin(), list.ids.end());
    list.ids.erase(std::unique(list.ids.begin(), list.ids.end()), list.ids.end());
    list.isTidy = true;
}

void Store::indexName(EntityId id) {
    const std::size_t name = indexOf(nameOf(id));
    if (name == kNoName) return;
    if (name >= named_.size()) named_.resize(std::max(names.size(), name + 1));
    NamedList& list = named_[name];
    if (!list.ids.empty() && list.ids.back() >= id) list.isTidy = false;
    list.ids.push_back(id);
}

void Store::unindexNewest(EntityId id) {
    const std::size_t name = indexOf(nameOf(id));
    if (name == kNoName || name >= named_.size()) return;
    std::vector<EntityId>& list = named_[name].ids;
    if (!list.empty() && list.back() == id) list.pop_back();
}

void Store::unindexName(EntityId id) {
    unindexNewest(id);
    const std::size_t name = indexOf(nameOf(id));
    if (name != kNoName && name < named_.size()) named_[name].isTidy = false;
}

}  // namespace drawing
