#pragma once

#include <cstddef>
#include <vector>

namespace forms {

class Control;
class Form;

/// A letter of a caption that, with Alt, does what a click on the control does or, for a label, gives the
/// focus to the field behind it.
struct Accelerator {
    Control* control;
    Control* field;        ///< a label's field; null for a control that is pressed
    char letter;           ///< a to z
    std::size_t position;  ///< of the letter in the caption, in bytes
};

/// The accelerators of the controls that are visible, no letter twice. The captions, which the language files
/// hold, mark none (an ampersand in a caption is an ampersand), so they are given out in the order of the
/// form: first to the buttons, then to check boxes and options, then to the labels; first a word's initial,
/// else any letter.
std::vector<Accelerator> accelerators(const Form& form);

}  // namespace forms
