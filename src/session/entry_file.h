#pragma once

#include <cstdint>
#include <string>

namespace session {

/// What a write does with an entry that is there already.
enum class Overwrite {
    Always,     ///< every line of the key is replaced
    EmptyOnly,  ///< only lines with nothing behind the "=": a written default never displaces a text
};

/// The shared steps of the settings and the language files: reads (`mode` 0), writes (-1) or gives the last
/// value (other modes) of `key` in `file`. Keys match without regard to case and to blanks round them; the
/// first value that isn't empty is read. An empty key gives an empty text and leaves the file alone, as
/// does a write of what stands there already.
std::string entryValue(const std::string& key, const std::string& file, std::int16_t mode,
                       const std::string& value, Overwrite overwrite);

/// Whether the file was saved with line feeds alone: it then is one line, and all but its first key are lost
/// in that line's value. Raises the file errors of basic/text_file.h.
bool hasBareLineFeeds(const std::string& file);

}  // namespace session
