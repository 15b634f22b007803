#pragma once

#include "forms/form.h"

#include <iosfwd>

namespace text_face {

/// How much of long lists is printed.
enum class Detail { Brief, Full };

/// Prints a form as its user sees it: the controls that are visible, in reading order, each within its frame,
/// with caption, text, value, entries or rows, and whether it is disabled.
void printForm(std::ostream& output, const forms::Form& form, Detail detail);
/// Prints one control in full.
void printControl(std::ostream& output, const forms::Form& form, const forms::Control& control);

}  // namespace text_face
