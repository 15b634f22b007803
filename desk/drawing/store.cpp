#include "desk/drawing/store.h"

#include <algorithm>

namespace drawing {

namespace {

/// A guess from real drawings; a vector that needs more grows.
constexpr std::size_t kBytesPerRecord = 160;

}  // namespace

Store::Store(dxf::Source source) : tagEdit_(source.format()), source_(std::move(source)) {
    records_.reserve(source_.bytes().size() / kBytesPerRecord);
    handles.reserve(source_.bytes().size() / kBytesPerRecord);
    for (std::uint16_t type = 1; type < kKnownTypes; ++type) types_.intern(kTypeNames[type]);
}

EntityId Store::addFromFile(const Record& record) {
    records_.push_back(record);
    highestHandle_ = std::max(highestHandle_, record.handle);
    return count() - 1;
}

FileRange Store::fileRange(EntityId id) const {
    const auto original = originals_.find(id);
    if (records_[id].has(kChanged) && original != originals_.end()) return original->second;
    const auto begin = static_cast<std::size_t>(records_[id].bytes - source_.bytes().data());
    return {begin, begin + records_[id].size};
}

Record& Store::change(EntityId id) {
    journal.note(id);
    Record& record = records_[id];
    StepLog& log = step();
    if (id < log.firstNew && !record.has(kLogged)) {
        log.records.emplace_back(id, record);
        record.set(kLogged);
    }
    return record;
}

void Store::setBytes(EntityId id, std::string_view bytes) {
    Record& record = change(id);
    if (record.has(kFresh)) {
        record.bytes = arena_.replace(record.bytes, record.size, bytes);
    } else {
        if (id < fileCount_ && !record.has(kChanged)) originals_.insert_or_assign(id, fileRange(id));
        record.bytes = arena_.store(bytes);
    }
    record.size = static_cast<std::uint32_t>(bytes.size());
    record.set(kFresh);
    if (id < fileCount_) record.set(kChanged);
}

void Store::dropBytes(EntityId id) {
    Record& record = records_[id];
    arena_.release(record.bytes, record.size);
    record.bytes = nullptr;
    record.size = 0;
}

EntityId Store::add(Record record, std::string_view bytes) {
    record.bytes = arena_.store(bytes);
    record.size = static_cast<std::uint32_t>(bytes.size());
    record.set(kFresh);
    records_.push_back(record);
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
    std::erase_if(list.ids, [&](EntityId id) { return names.key(records_[id].name) != name; });
    if (!std::is_sorted(list.ids.begin(), list.ids.end())) std::sort(list.ids.begin(), list.ids.end());
    list.ids.erase(std::unique(list.ids.begin(), list.ids.end()), list.ids.end());
    list.isTidy = true;
}

void Store::indexName(EntityId id) {
    const std::size_t name = indexOf(names.key(records_[id].name));
    if (name == kNoName) return;
    if (name >= named_.size()) named_.resize(std::max(names.size(), name + 1));
    NamedList& list = named_[name];
    if (!list.ids.empty() && list.ids.back() >= id) list.isTidy = false;
    list.ids.push_back(id);
}

void Store::unindexNewest(EntityId id) {
    const std::size_t name = indexOf(names.key(records_[id].name));
    if (name == kNoName || name >= named_.size()) return;
    std::vector<EntityId>& list = named_[name].ids;
    if (!list.empty() && list.back() == id) list.pop_back();
}

void Store::unindexName(EntityId id) {
    unindexNewest(id);
    const std::size_t name = indexOf(names.key(records_[id].name));
    if (name != kNoName && name < named_.size()) named_[name].isTidy = false;
}

}  // namespace drawing
