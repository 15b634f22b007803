#include "desk/drawing/byte_arena.h"

#include <algorithm>
#include <cstring>

namespace drawing {

ByteArena::Place ByteArena::allocate(std::size_t size) {
    const std::size_t need = room(size);
    const std::size_t kind = need / kGrain;
    if (kind < kClasses && !released_[kind].empty()) {
        const Place found = released_[kind].back();
        released_[kind].pop_back();
        return found;
    }
    if (need > left_) {
        const std::size_t chunk = need > kChunk / 4 ? need : kChunk;
        const Place begin = Place{chunks_.size()} * kChunk;
        chunks_.push_back(std::make_unique_for_overwrite<char[]>(chunk));
        capacity_ += chunk;
        if (chunk != kChunk) return begin;
        free_ = begin;
        left_ = chunk;
    }
    const Place found = free_;
    free_ += need;
    left_ -= need;
    return found;
}

void ByteArena::write(Place place, std::string_view bytes) {
    if (bytes.empty()) return;
    std::memcpy(chunks_[place / kChunk].get() + place % kChunk, bytes.data(), bytes.size());
}

ByteArena::Place ByteArena::store(std::string_view bytes) {
    const Place place = allocate(std::max<std::size_t>(bytes.size(), 1));
    write(place, bytes);
    return place;
}

ByteArena::Place ByteArena::replace(Place old, std::size_t oldSize, std::string_view bytes) {
    if (oldSize != 0 && room(bytes.size()) == room(oldSize)) {
        write(old, bytes);
        return old;
    }
    release(old, oldSize);
    return store(bytes);
}

void ByteArena::release(Place place, std::size_t size) {
    const std::size_t kind = room(size) / kGrain;
    if (kind == 0 || kind >= kClasses) return;
    released_[kind].push_back(place);
}

}  // namespace drawing
