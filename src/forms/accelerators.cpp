#include "forms/accelerators.h"

#include "forms/form.h"
#include "forms/reading_order.h"

#include <algorithm>
#include <set>
#include <string>

namespace forms {

namespace {

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

char lower(char letter) { return letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; }

bool startsWord(const std::string& caption, std::size_t position) {
    return position == 0 || caption[position - 1] == ' ' || caption[position - 1] == '\'';
}

/// Takes the first free letter of the caption, only among the initials of words or among all.
std::size_t takeLetter(const std::string& caption, bool initialsOnly, std::set<char>& taken) {
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (!isLetter(caption[i]) || (initialsOnly && !startsWord(caption, i))) continue;
        if (taken.insert(lower(caption[i])).second) return i;
    }
    return std::string::npos;
}

bool isField(const Control& control) {
    return control.has(Property::Focus) && control.kind() != Kind::Button &&
           control.kind() != Kind::CheckBox && control.kind() != Kind::OptionButton;
}

/// Who gets a letter first; labels without a field and the other kinds get none.
int rankOf(Kind kind, bool hasField) {
    switch (kind) {
        case Kind::Button:
            return 0;
        case Kind::CheckBox:
        case Kind::OptionButton:
            return 1;
        case Kind::Label:
            return hasField ? 2 : -1;
        default:
            return -1;
    }
}

}  // namespace

std::vector<Accelerator> accelerators(const Form& form) {
    std::vector<Control*> shown;
    for (Control* control : readingOrder(form))
        if (control->shown()) shown.push_back(control);

    std::vector<Accelerator> given;
    std::set<char> taken;
    for (int rank = 0; rank <= 2; ++rank) {
        for (std::size_t i = 0; i < shown.size(); ++i) {
            Control& control = *shown[i];
            Control* next = i + 1 < shown.size() && shown[i + 1]->container() == control.container()
                                ? shown[i + 1]
                                : nullptr;
            const bool hasField = next != nullptr && isField(*next);
            if (rankOf(control.kind(), hasField) != rank) continue;
            const std::string& caption = control.caption();
            std::size_t position = takeLetter(caption, true, taken);
            if (position == std::string::npos) position = takeLetter(caption, false, taken);
            if (position == std::string::npos) continue;
            Control* field = rank == 2 ? next : nullptr;
            given.push_back({&control, field, lower(caption[position]), position});
        }
    }
    return given;
}

}  // namespace forms
