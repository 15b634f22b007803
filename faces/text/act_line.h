#pragma once

#include "faces/text/form_text.h"
#include "forms/form.h"

#include <iosfwd>
#include <string_view>

namespace text_face {

class Hand;

/// Carries out one line of a user's acts on a form, by a hand:
///
///   Name               click a button, option or check box
///   Name = text        type into a text box or edit field; choose that entry of a list
///   Name : text        choose the entry with that text in any list or combo, whatever the case
///   Name # n           choose entry n: lists and combos from 0, rows of a list view from 1
///   Name # n = text    edit the text of row n in place
///   Name key DOWN      press a key in that control;  key F1: in the one that has the focus
///   key ALT+X          press the accelerator X
///   Name column n w    widen column n of a list view, in twips
///   resize w h         in twips, as  move l t
///   close              the frame's close box
///   show               print the dialog, to this detail;  show Name: one control in full
///   help               print these
///
/// Control names match without regard to case; a caption serves too where only one control in sight has it.
/// Raises forms::ActError for a line that is none of these and for an act that can't be done.
void performLine(std::ostream& output, Hand& hand, forms::Form& form, std::string_view line,
                 Detail detail = Detail::Full);

}  // namespace text_face
