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

/// Adds names to an empty list, each before the first entry that comes after it in text order, without regard
/// to case. All at once: one by one, 30,000 blocks in any order would move the entries 450 million times.
void AddItemSorted(forms::ListControl& list, const blocks::BlockNames& names);

}  // namespace replace
