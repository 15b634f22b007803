#pragma once

#include "forms/form.h"

#include <string>
#include <string_view>
#include <vector>

namespace forms {

/// The place of an entry in a list or combo (from 0) or of a row in a list view (from 1) by its text: exactly
/// the same text comes before the first that differs in case alone. -1 for none and for other controls.
int findEntry(const Control& control, std::string_view text);

/// The texts of the entries or rows, in their order; none for other controls.
std::vector<std::string> entryTexts(const Control& control);

}  // namespace forms
