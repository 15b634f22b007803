#include "forms/buttons.h"

#include "forms/form.h"

namespace forms {

void CheckBox::setValue(int value) {
    if (value < 0 || value > 2) throw basic::Error(basic::kInvalidProperty);
    if (value == value_) return;
    value_ = value;
    changed(Change::Value);
    raise(onClick);
}

void CheckBox::keepDesign() {
    Control::keepDesign();
    designValue_ = value_;
}

void CheckBox::restoreDesign() {
    Control::restoreDesign();
    value_ = designValue_;
}

void OptionButton::setValue(bool value) {
    if (value == value_) return;
    if (!value) {
        turnOff();
        return;
    }
    for (Control* other : form().controls()) {
        if (other != this && other->kind() == Kind::OptionButton && other->container() == container()) {
            static_cast<OptionButton*>(other)->turnOff();
        }
    }
    value_ = true;
    changed(Change::Value);
    raise(onClick);
}

void OptionButton::turnOff() {
    if (!value_) return;
    value_ = false;
    changed(Change::Value);
}

void OptionButton::keepDesign() {
    Control::keepDesign();
    designValue_ = value_;
}

void OptionButton::restoreDesign() {
    Control::restoreDesign();
    value_ = designValue_;
}

}  // namespace forms
