#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace drawing {

/// Room for the bytes of new and changed entities. Pieces never move; released ones are given out again.
class ByteArena {
  public:
    /// A copy of `bytes` that stays where it is.
    const char* store(std::string_view bytes);
    /// Overwrites a piece of `oldSize` bytes where the new ones fit into its room, else releases it and
    /// stores anew.
    const char* replace(const char* old, std::size_t oldSize, std::string_view bytes);
    /// Gives the room of a piece of `size` bytes back.
    void release(const char* bytes, std::size_t size);
    /// Bytes taken from the system.
    std::size_t capacity() const { return capacity_; }

  private:
    static constexpr std::size_t kGrain = 16;
    static constexpr std::size_t kClasses = 256;  ///< rooms of up to 4 KB are given out again
    static constexpr std::size_t kChunk = std::size_t{1} << 18;

    static std::size_t room(std::size_t size) { return (size + kGrain - 1) / kGrain * kGrain; }
    char* allocate(std::size_t size);

    std::vector<std::unique_ptr<char[]>> chunks_;
    char* free_ = nullptr;  ///< what is left of the last chunk
    std::size_t left_ = 0;
    std::size_t capacity_ = 0;
    std::array<std::vector<char*>, kClasses> released_;  ///< rooms by size in grains
};

}  // namespace drawing
