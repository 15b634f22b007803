#pragma once

#include "host/document.h"

#include <string_view>

namespace blocks {

/// Class markers of the filters in use. The second is written with a small r, unlike the class name that
/// `ObjectName` gives.
inline constexpr std::string_view kAnyEntity = "AcDbEntity";
inline constexpr std::string_view kAnyBlockReference = "AcDbBlockreference";

/// The filter for entities of a class (group code 100) that carry a block's name (group code 2). The name
/// goes in as it stands: wildcards in it are the host's to read.
host::SelectionFilter nameFilter(std::string_view classMarker, std::string_view blockName);

}  // namespace blocks
