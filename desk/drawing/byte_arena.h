#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace drawing {

/// Room for the bytes of new and changed entities. Pieces never move; released ones are given out again.
class ByteArena {
  public:
    /// Where a piece stands, below 2^40: the number of its chunk, and the place in there.
    using Place = std::uint64_t;

    /// A copy of `bytes` that stays where it is.
    Place store(std::string_view bytes);
    /// Overwrites a piece of `oldSize` bytes where the new ones fit into its room, else releases it and
    /// stores anew.
    Place replace(Place old, std::size_t oldSize, std::string_view bytes);
    /// Gives the room of a piece of `size` bytes back.
    void release(Place place, std::size_t size);
    const char* at(Place place) const { return chunks_[place / kChunk].get() + place % kChunk; }
    /// Bytes taken from the system.
    std::size_t capacity() const { return capacity_; }

  private:
    static constexpr std::size_t kGrain = 16;
    static constexpr std::size_t kClasses = 256;  ///< rooms of up to 4 KB are given out again
    static constexpr std::size_t kChunk = std::size_t{1} << 18;

    static std::size_t room(std::size_t size) { return (size + kGrain - 1) / kGrain * kGrain; }
    Place allocate(std::size_t size);
    void write(Place place, std::string_view bytes);

    std::vector<std::unique_ptr<char[]>> chunks_;
    Place free_ = 0;  ///< what is left of the chunk begun last
    std::size_t left_ = 0;
    std::size_t capacity_ = 0;
    std::array<std::vector<Place>, kClasses> released_;  ///< rooms by size in grains
};

}  // namespace drawing
