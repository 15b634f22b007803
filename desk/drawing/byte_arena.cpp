#include "desk/drawing/byte_arena.h"

#include <cstring>

namespace drawing {

char* ByteArena::allocate(std::size_t size) {
    const std::size_t need = room(size);
    const std::size_t kind = need / kGrain;
    if (kind < kClasses && !released_[kind].empty()) {
        char* found = released_[kind].back();
        released_[kind].pop_back();
        return found;
    }
    if (need > left_) {
        const std::size_t chunk = need > kChunk / 4 ? need : kChunk;
        chunks_.push_back(std::make_unique_for_overwrite<char[]>(chunk));
        capacity_ += chunk;
        if (chunk != kChunk) return chunks_.back().get();
        free_ = chunks_.back().get();
        left_ = chunk;
    }
    char* found = free_;
    free_ += need;
    left_ -= need;
    return found;
}

const char* ByteArena::store(std::string_view bytes) {
    if (bytes.empty()) return nullptr;
    char* place = allocate(bytes.size());
    std::memcpy(place, bytes.data(), bytes.size());
    return place;
}

const char* ByteArena::replace(const char* old, std::size_t oldSize, std::string_view bytes) {
    if (old != nullptr && room(bytes.size()) == room(oldSize)) {
        // The piece is ours; only its readers see it as constant.
        std::memcpy(const_cast<char*>(old), bytes.data(), bytes.size());
        return old;
    }
    release(old, oldSize);
    return store(bytes);
}

void ByteArena::release(const char* bytes, std::size_t size) {
    const std::size_t kind = room(size) / kGrain;
    if (bytes == nullptr || kind == 0 || kind >= kClasses) return;
    released_[kind].push_back(const_cast<char*>(bytes));
}

}  // namespace drawing
