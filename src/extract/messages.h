#pragma once

#include <cstdint>

namespace extract {

/// Messages of the extraction and the re-insertion by their numbers in the language files.
enum Message : std::int32_t {
    kBoxTitle = 101,
    kPickModel = 108,
    kPicked = 109,
    kNotSaved = 110,
    kSaveNow = 111,
    kSelect = 114,
    kBrowse = 115,
    kInserted = 120,
    kRowFailed = 121,
    kNotInserted = 122,
    kPickBlock = 124,
    kBlockFileTitle = 125,
};

}  // namespace extract
