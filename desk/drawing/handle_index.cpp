#include "desk/drawing/handle_index.h"

#include <bit>
#include <cstdint>

namespace drawing {

std::size_t HandleIndex::slot(Handle handle) const {
    const std::size_t mask = keys_.size() - 1;
    // Handles run in rows, so eight neighbours get neighbouring slots. Longer rows must not: where two of
    // them fell on one place, the second would be walked through from its start for each handle.
    const std::uint64_t scattered = (std::uint64_t{handle} >> 3) * 0x9E3779B97F4A7C15u;
    std::size_t at = ((scattered >> 32) * 8 + (handle & 7)) & mask;
    while (keys_[at] != 0 && keys_[at] != handle) at = (at + 1) & mask;
    return at;
}

bool HandleIndex::add(Handle handle, EntityId id) {
    if ((count_ + 1) * 3 > keys_.size() * 2) grow(keys_.empty() ? 1024 : keys_.size() * 2);
    const std::size_t at = slot(handle);
    if (keys_[at] == handle) return false;
    keys_[at] = handle;
    ids_[at] = id;
    ++count_;
    return true;
}

void HandleIndex::put(Handle handle, EntityId id) {
    if (!add(handle, id)) ids_[slot(handle)] = id;
}

EntityId HandleIndex::find(Handle handle) const {
    if (keys_.empty() || handle == 0) return kNoEntity;
    const std::size_t at = slot(handle);
    return keys_[at] == handle ? ids_[at] : kNoEntity;
}

void HandleIndex::reserve(std::size_t count) {
    const std::size_t capacity = std::bit_ceil(count * 3 / 2 + 1);
    if (capacity > keys_.size()) grow(capacity);
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
