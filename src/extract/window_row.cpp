#include "extract/window_row.h"

#include "basic/numbers.h"
#include "platform/platform.h"

namespace extract {

void WindowRow::apply(forms::Form& form) const {
    // All four are read first: each change of size makes the form write its place into the row.
    const forms::Twips width = cell(0), height = cell(1), left = cell(2), top = cell(3);
    form.setWidth(width);
    form.setHeight(height);
    form.setLeft(left);
    form.setTop(top);
}

// Written with the regional decimal separator and read with a point: a fraction gets lost on a French
// desktop.

forms::Twips WindowRow::cell(int column) const {
    return static_cast<forms::Twips>(basic::leadingNumber(session_.VTable[row_][column]));
}

void WindowRow::keep(int column, forms::Twips value) {
    session_.VTable[row_][column] = basic::toText(value, session_.platform().regional());
}

int excess(forms::Twips length, int least) { return basic::toInt32(double{length} - least); }

}  // namespace extract
