#include "replace/block_list.h"

#include "basic/text.h"

namespace replace {
namespace {

void refill(forms::ListControl& list, const blocks::BlockNames& names) {
    list.clear();
    for (const std::string& name : names) AddItemSorted(list, name);
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

void AddItemSorted(forms::ListControl& list, std::string_view name) {
    int first = 0;
    int last = list.listCount();
    while (first < last) {
        const int middle = first + (last - first) / 2;
        if (basic::compareText(list.list(middle), name) > 0) {
            last = middle;
        } else {
            first = middle + 1;
        }
    }
    list.addItem(name, first);
}

}  // namespace replace
