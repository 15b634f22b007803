#include "replace/block_list.h"

#include "basic/text.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace replace {
namespace {

void refill(forms::ListControl& list, const blocks::BlockNames& names) {
    list.clear();
    AddItemSorted(list, names);
}

/// Calls `select` with the index of each entry that was remembered. What was remembered is looked up without
/// regard to case, and the empty text counts as nothing.
template <typename Select>
void RestoreListSelection(const forms::ListControl& list, std::string_view remembered, Select select) {
    if (remembered.empty()) return;
    for (int i = 0; i < list.listCount(); ++i)
        if (basic::equalIgnoringCase(list.list(i), remembered)) select(i);
}

}  // namespace

void FillBlockList(forms::ListBox& list, const blocks::BlockNames& names) {
    const std::string remembered = list.text();
    refill(list, names);
    RestoreListSelection(list, remembered, [&](int index) { list.setSelected(index, true); });
}

void FillBlockList(forms::ComboBox& combo, const blocks::BlockNames& names, const std::string& firstCommand,
                   const std::string& secondCommand) {
    const std::string remembered = combo.text();
    refill(combo, names);
    combo.addItem(firstCommand, 0);
    combo.addItem(secondCommand, 1);
    RestoreListSelection(combo, remembered, [&](int) { combo.setText(remembered); });
}

void AddItemSorted(forms::ListControl& list, const blocks::BlockNames& names) {
    std::vector<std::string_view> sorted(names.begin(), names.end());
    std::stable_sort(sorted.begin(), sorted.end(), [](std::string_view left, std::string_view right) {
        return basic::compareText(left, right) < 0;
    });
    for (const std::string_view name : sorted) list.addItem(name, list.listCount());
}

}  // namespace replace
