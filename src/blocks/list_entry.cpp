#include "blocks/list_entry.h"

#include "basic/numbers.h"

namespace blocks {

void SelectListEntry(forms::ListControl& list, std::string_view text) {
    const std::int16_t lastIndex = basic::toInt16(list.listCount() - 1);
    bool found = false;
    for (int i = 0; i <= lastIndex; ++i) {
        if (list.list(i) != text) continue;
        list.setListIndex(i);  // no end of the walk: of equal entries the last one stays selected
        found = true;
    }
    if (!found) list.setListIndex(-1);
}

}  // namespace blocks
