#pragma once

#include "blocks/block_names.h"
#include "forms/lists.h"

#include <string>
#include <string_view>

namespace replace {

/// Replaces the entries of a list by `names` in text order and selects again what was selected, if it is
/// still there, which raises the list's Click.
void FillBlockList(forms::ListBox& list, const blocks::BlockNames& names);

/// The same for a combo, whose text counts as selected, with the two command entries before the names.
void FillBlockList(forms::ComboBox& combo, const blocks::BlockNames& names, const std::string& firstCommand,
                   const std::string& secondCommand);

/// Inserts `name` before the first entry that comes after it in text order, without regard to case; at the
/// end if there is none. The entries are in that order already.
void AddItemSorted(forms::ListControl& list, std::string_view name);

}  // namespace replace
