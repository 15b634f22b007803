#include "desk/window/dialog_watch.h"

#include "forms/control.h"
#include "forms/form.h"

namespace window {

forms::Form* DialogWatch::find(const std::string& name) const {
    const auto found = known_.find(name);
    return found == known_.end() ? nullptr : found->second;
}

void DialogWatch::runModal(forms::Form& form) {
    known_[form.name()] = &form;
    shown_.push_back(&form);
    emit shownChanged();
    face_.runModal(form);
    std::erase(shown_, &form);
    emit shownChanged();
}

void DialogWatch::hidden(forms::Form& form) {
    std::erase(shown_, &form);
    face_.hidden(form);
    emit shownChanged();
}

void DialogWatch::changed(forms::Form& form, forms::Change change) {
    face_.changed(form, change);
    emit formChanged();
}

void DialogWatch::changed(forms::Control& control, forms::Change change) {
    face_.changed(control, change);
    emit formChanged();
}

forms::Answer DialogWatch::messageBox(const forms::MessageDialog& box) {
    emit boxShown(box.text);
    return face_.messageBox(box);
}

std::optional<std::string> DialogWatch::fileDialog(const forms::FileDialog& dialog,
                                                   forms::FileDialogMode mode) {
    return face_.fileDialog(dialog, mode);
}

void DialogWatch::reportFailure(std::int32_t number, const std::string& description) {
    face_.reportFailure(number, description);
}

}  // namespace window
