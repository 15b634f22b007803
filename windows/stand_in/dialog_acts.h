#pragma once

#include "windows/stand_in/native.h"

#include <iosfwd>
#include <string_view>

namespace stand_in {

/// Carries out a line of acts (faces/text/act_line.h) on a native dialog, as a user's hand would: clicks,
/// pastes, keys. Raises forms::ActError for a line that is no act and for an act on a control that is
/// missing, hidden or disabled.
void performOnWindow(std::ostream& output, HWND form, std::string_view line);

/// A click with the left button in a window's own coordinates.
void clickAt(HWND window, POINT point);

}  // namespace stand_in
