#pragma once

#include <cstdint>

namespace replace {

/// Messages of the replacement by their numbers in the language files.
enum Message : std::int32_t {
    kBoxTitle = 101,
    kNoReferences = 102,
    kNotNumeric = 103,
    kPickSource = 112,
    kPickReplacement = 113,
    kSelect = 114,
    kBrowse = 115,
    kUnchanged = 116,
    kOn = 117,
    kOff = 118,
    kReplaced = 119,
};

/// Entries of the visibility list.
enum VisibilityChoice { kVisibilityOn = 0, kVisibilityOff = 1, kVisibilityUnchanged = 2 };

}  // namespace replace
