#pragma once

#include "forms/lists.h"

#include <string_view>

namespace blocks {

/// Makes the entry that equals `text`, with case, the list's current one: the last of several. Without such
/// an entry none is current. Raises kOverflow for a list of more than 32,768 entries.
void SelectListEntry(forms::ListControl& list, std::string_view text);

}  // namespace blocks
