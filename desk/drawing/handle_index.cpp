#include "desk/drawing/handle_index.h"

#include <algorithm>
#include <cstdint>

namespace drawing {

bool HandleIndex::isNear(Handle handle) const {
    // The directory stays smaller than what it leads to, however sparse the handles are.
    constexpr Handle kRowsAPage = 16;
    constexpr Handle kFirstRows = 4096;
    return handle / kPage < kFirstRows + kRowsAPage * pages_.size();
}

EntityId& HandleIndex::place(Handle handle) {
    const auto row = static_cast<std::size_t>(handle / kPage);
    if (row >= directory_.size()) directory_.resize(std::max(row + 1, directory_.size() * 5 / 4));
    if (directory_[row] == 0) {
        pages_.emplace_back().fill(kNoEntity);
        directory_[row] = static_cast<std::uint32_t>(pages_.size());
    }
    return pages_[directory_[row] - 1][handle % kPage];
}

bool HandleIndex::add(Handle handle, EntityId id) {
    // What was far when it came stays in the table, also when the directory has grown beyond it.
    if (!isNear(handle)) return addFar(handle, id);
    if (farCount_ != 0 && keys_[slot(handle)] == handle) return false;
    EntityId& known = place(handle);
    if (known != kNoEntity) return false;
    known = id;
    return true;
}

bool HandleIndex::addFar(Handle handle, EntityId id) {
    if ((farCount_ + 1) * 3 > keys_.size() * 2) grow(keys_.empty() ? 64 : keys_.size() * 2);
    const std::size_t at = slot(handle);
    if (keys_[at] == handle) return false;
    keys_[at] = handle;
    ids_[at] = id;
    ++farCount_;
    return true;
}

void HandleIndex::put(Handle handle, EntityId id) {
    if (add(handle, id)) return;
    const std::size_t at = farCount_ != 0 ? slot(handle) : 0;
    if (farCount_ != 0 && keys_[at] == handle) {
        ids_[at] = id;
    } else {
        place(handle) = id;
    }
}

EntityId HandleIndex::find(Handle handle) const {
    const Handle row = handle / kPage;
    if (row < directory_.size() && directory_[row] != 0) {
        const EntityId known = pages_[directory_[row] - 1][handle % kPage];
        if (known != kNoEntity) return known;
    }
    if (farCount_ == 0 || handle == 0) return kNoEntity;
    const std::size_t at = slot(handle);
    return keys_[at] == handle ? ids_[at] : kNoEntity;
}

void HandleIndex::reserve(std::size_t count) {
    // Room that nobody touches costs nothing, while growing costs a copy.
    pages_.reserve(count / kPage + count / kPage / 4 + 1);
    directory_.reserve(count / kPage + count / kPage / 4 + 1);
}

std::size_t HandleIndex::slot(Handle handle) const {
    const std::size_t mask = keys_.size() - 1;
    // Handles run in rows, so eight neighbours get neighbouring slots. Longer rows must not: where two of
    // them fell on one place, the second would be walked through from its start for each handle.
    const std::uint64_t scattered = (std::uint64_t{handle} >> 3) * 0x9E3779B97F4A7C15u;
    std::size_t at = ((scattered >> 32) * 8 + (handle & 7)) & mask;
    while (keys_[at] != 0 && keys_[at] != handle) at = (at + 1) & mask;
    return at;
}

void HandleIndex::grow(std::size_t capacity) {
    std::vector<Handle> keys(capacity, 0);
    std::vector<EntityId> ids(capacity, kNoEntity);
    keys.swap(keys_);
    ids.swap(ids_);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] == 0) continue;
        const std::size_t at = slot(keys[i]);
        keys_[at] = keys[i];
        ids_[at] = ids[i];
    }
}

}  // namespace drawing
