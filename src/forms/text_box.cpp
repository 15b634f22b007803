#include "forms/text_box.h"

namespace forms {

void TextBox::setText(std::string_view text) {
    if (text == text_) return;
    text_ = text;
    changed(Change::Text);
    raise(onChange);
}

void TextBox::keepDesign() {
    Control::keepDesign();
    designText_ = text_;
}

void TextBox::restoreDesign() {
    Control::restoreDesign();
    text_ = designText_;
}

}  // namespace forms
