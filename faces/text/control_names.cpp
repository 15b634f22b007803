#include "faces/text/control_names.h"

#include "basic/text.h"
#include "forms/acts.h"
#include "forms/controls.h"

#include <algorithm>

namespace text_face {

using forms::Control;
using forms::Kind;

namespace {

/// How many letters have to be changed, added or taken away to make one text of the other, case not counting.
std::size_t distance(std::string_view left, std::string_view right) {
    const std::string first = basic::toLower(left), second = basic::toLower(right);
    std::vector<std::size_t> row(second.size() + 1);
    for (std::size_t j = 0; j < row.size(); ++j) row[j] = j;
    for (std::size_t i = 1; i <= first.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= second.size(); ++j) {
            const std::size_t changed = diagonal + (first[i - 1] == second[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, changed});
        }
    }
    return row.back();
}

bool contains(std::string_view text, std::string_view part) {
    return basic::toLower(text).find(basic::toLower(part)) != std::string::npos;
}

/// Whether a click on it means something, so that its caption can stand for it.
bool hasOwnCaption(const Control& control) {
    return control.kind() == Kind::Button || control.kind() == Kind::CheckBox ||
           control.kind() == Kind::OptionButton;
}

}  // namespace

std::string readCaption(std::string_view caption) {
    std::string text;
    for (const char c : caption) {
        if (c != '&') text += c;
    }
    while (text.ends_with(':') || text.ends_with(' ')) text.pop_back();
    return std::string(basic::trim(text));
}

std::vector<std::string> reachableNames(const forms::Form& form) {
    std::vector<std::string> names;
    for (const Control* control : form.controls()) {
        const bool acts = control->has(forms::Property::Focus) || control->kind() == Kind::ListView;
        if (acts && control->shown() && control->operable()) names.push_back(control->name());
    }
    return names;
}

std::vector<std::string> nearNames(std::string_view text, const std::vector<std::string>& names) {
    constexpr std::size_t kMost = 3;
    std::vector<std::pair<std::size_t, std::string>> found;
    for (const std::string& name : names) {
        const bool part = text.size() >= kMost && (contains(name, text) || contains(text, name));
        const std::size_t steps = distance(text, name);
        if (part || steps * 3 <= std::max(text.size(), name.size()) + 2)
            found.emplace_back(part ? 0 : steps, name);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<std::string> nearest;
    for (std::size_t i = 0; i < std::min(kMost, found.size()); ++i) nearest.push_back(found[i].second);
    return nearest;
}

std::string nearText(std::string_view text, const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : nearNames(text, names)) list.append(list.empty() ? "" : ", ").append(name);
    return list.empty() ? "" : " (near: " + list + ")";
}

Control& controlMeant(forms::Form& form, std::string_view text) {
    if (Control* named = form.findControl(text)) return *named;
    std::vector<Control*> captioned;
    for (Control* control : form.controls()) {
        if (hasOwnCaption(*control) && control->shown() &&
            basic::equalIgnoringCase(readCaption(control->caption()), readCaption(text)))
            captioned.push_back(control);
    }
    if (captioned.size() == 1) return *captioned.front();
    if (captioned.size() > 1) {
        throw forms::ActError("the caption \"" + std::string(text) + "\" is that of " + captioned[0]->name() +
                              " and " + captioned[1]->name() + "; say which by its name");
    }
    throw forms::ActError(form.name() + " has no control " + std::string(text) +
                          nearText(text, reachableNames(form)) +
                          "; show prints the dialog, key F1 its help, close ends it");
}

}  // namespace text_face
