#include "forms/find_entry.h"

#include "basic/text.h"
#include "forms/controls.h"

namespace forms {

namespace {

int firstIndex(const Control& control) { return control.kind() == Kind::ListView ? 1 : 0; }

}  // namespace

std::vector<std::string> entryTexts(const Control& control) {
    std::vector<std::string> texts;
    if (control.kind() == Kind::ListView) {
        const ListItems& rows = static_cast<const ListView&>(control).listItems();
        for (int row = 1; row <= rows.count(); ++row) texts.push_back(rows.item(row).text());
    } else if (control.kind() == Kind::ListBox || control.kind() == Kind::ComboBox) {
        const auto& list = static_cast<const ListControl&>(control);
        for (int i = 0; i < list.listCount(); ++i) texts.push_back(list.list(i));
    }
    return texts;
}

int findEntry(const Control& control, std::string_view text) {
    const std::vector<std::string> texts = entryTexts(control);
    const int first = firstIndex(control);
    int loose = -1;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const int index = first + static_cast<int>(i);
        if (texts[i] == text) return index;
        if (loose < 0 && basic::equalIgnoringCase(texts[i], text)) loose = index;
    }
    return loose;
}

}  // namespace forms
