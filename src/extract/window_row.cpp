#include "extract/window_row.h"

#include "basic/error_state.h"
#include "basic/numbers.h"
#include "platform/platform.h"

namespace extract {

namespace {

/// No window of any system reaches further: 32,767 pixels of 15 twips.
constexpr forms::Twips kFarthest = 491505;

}  // namespace

void WindowRow::apply(forms::Form& form) const {
    // All four are read first: each change of size makes the form write its place into the row.
    const auto width = cell(0, 0), height = cell(1, 0), left = cell(2, -kFarthest), top = cell(3, -kFarthest);
    if (width) form.setWidth(*width);
    if (height) form.setHeight(*height);
    if (left) form.setLeft(*left);
    if (top) form.setTop(*top);
}

// Written with the regional decimal separator and read with a point: a fraction gets lost on a French
// desktop.

std::optional<forms::Twips> WindowRow::cell(int column, forms::Twips least) const {
    double value = 0;
    basic::ErrorState error;
    error.skip([&] { value = basic::leadingNumber(session_.VTable[row_][column]); });
    if (error.failed() || !(value >= double{least} && value <= double{kFarthest})) return std::nullopt;
    return static_cast<forms::Twips>(value);
}

void WindowRow::keep(int column, forms::Twips value) {
    session_.VTable[row_][column] = basic::toText(value, session_.platform().regional());
}

int excess(forms::Twips length, int least) { return basic::toInt32(double{length} - least); }

}  // namespace extract
