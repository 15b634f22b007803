#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace session {

/// The lines of a key=value text file in memory, found by key. A key is what stands before a line's first
/// "=".
class EntryLines {
  public:
    /// Reads the file. Raises the file errors of basic/text_file.h, and kOverflow beyond 32,767 lines.
    explicit EntryLines(const std::string& file);

    /// Whether this finds what a pass over the lines finds: the "=" in such a key hides from it.
    static bool canFind(std::string_view key) { return key.find('=') == std::string_view::npos; }

    /// The key's first value that isn't empty, or its last one. Empty for a key that isn't there.
    std::string firstValue(std::string_view key) const;
    std::string lastValue(std::string_view key) const;
    /// Whether there are lines of the key and all of them are `entry`, or have a value where `anyValue` is
    /// enough.
    bool says(std::string_view key, std::string_view entry, bool anyValue) const;
    bool firstHasLineFeed() const { return !lines_.empty() && lines_[0].find('\n') != std::string::npos; }

  private:
    using Key = std::pair<std::string, std::uint32_t>;  ///< in capitals, and the line's number
    template <typename Visit>
    void forEachLine(std::string_view key, Visit visit) const;

    std::vector<std::string> lines_;
    std::vector<Key> keys_;  ///< in order
};

}  // namespace session
