#pragma once

#include "platform/platform.h"
#include "session/entry_lines.h"

#include <cstdint>
#include <map>
#include <string>

namespace session {

/// What a write does with an entry that is there already.
enum class Overwrite {
    Always,     ///< every line of the key is replaced
    EmptyOnly,  ///< only lines with nothing behind the "=": a written default never displaces a text
};

/// The settings and the language files. Each look-up gives what the file holds at that moment; the lines of a
/// file that hasn't changed since they were read are kept.
class EntryFiles {
  public:
    explicit EntryFiles(platform::Platform& platform) : platform_(platform) {}

    /// Reads (`mode` 0), writes (-1) or gives the last value (other modes) of `key` in `file`. Keys match
    /// without regard to case and to blanks round them; the first value that isn't empty is read. An empty
    /// key gives an empty text and leaves the file alone, as does a write of what stands there already.
    std::string value(const std::string& key, const std::string& file, std::int16_t mode,
                      const std::string& value, Overwrite overwrite);

    /// Whether the file was saved with line feeds alone: it then is one line, and all but its first key are
    /// lost in that line's value. Raises the file errors of basic/text_file.h.
    bool hasBareLineFeeds(const std::string& file);

  private:
    struct Known {
        platform::FileState state;
        EntryLines lines;
    };
    const EntryLines* kept(const std::string& file);

    platform::Platform& platform_;
    std::map<std::string, Known> known_;  ///< by path
};

}  // namespace session
