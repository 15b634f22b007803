#pragma once

#include "forms/acts.h"

#include <string_view>

namespace text_face {

/// Who carries out what a line says: this one calls the acts. Another may do on a native dialog what a user's
/// hand would, so that the same lines try that face.
class Hand {
  public:
    virtual ~Hand() = default;

    virtual void click(forms::Control& control) { forms::acts::click(control); }
    virtual void type(forms::Control& control, std::string_view text) { forms::acts::type(control, text); }
    virtual void chooseText(forms::Control& control, std::string_view text) {
        forms::acts::chooseText(control, text);
    }
    virtual void chooseIndex(forms::Control& control, int index) { forms::acts::chooseIndex(control, index); }
    /// Edits a row's text in place; false when the dialog refuses.
    virtual bool edit(forms::Control& control, int row, std::string_view text) {
        if (!forms::acts::beginEdit(control, row)) return false;
        forms::acts::endEdit(control, text);
        return true;
    }
    virtual void focus(forms::Control& control) { forms::acts::focus(control); }
    virtual void key(forms::Form& form, forms::Key key) { forms::acts::key(form, key); }
    virtual void accelerator(forms::Form& form, char letter) { forms::acts::accelerator(form, letter); }
    virtual void resizeColumn(forms::Control& control, int column, forms::Twips width) {
        forms::acts::resizeColumn(control, column, width);
    }
    virtual void resize(forms::Form& form, forms::Twips width, forms::Twips height) {
        forms::acts::resize(form, width, height);
    }
    virtual void move(forms::Form& form, forms::Twips left, forms::Twips top) {
        forms::acts::move(form, left, top);
    }
    virtual void closeBox(forms::Form& form) { forms::acts::closeBox(form); }
};

}  // namespace text_face
