#include "faces/text/act_line.h"

#include "basic/text.h"
#include "faces/text/form_text.h"
#include "forms/acts.h"
#include "forms/controls.h"

#include <charconv>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace text_face {

namespace {

namespace acts = forms::acts;
using forms::ActError;
using forms::Control;
using forms::Form;

[[noreturn]] void notUnderstood() { throw ActError("is no act on a dialog"); }

std::vector<std::string_view> words(std::string_view line) {
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t start = line.find_first_not_of(" \t");
        if (start == std::string_view::npos) return parts;
        line.remove_prefix(start);
        const std::size_t end = std::min(line.find_first_of(" \t"), line.size());
        parts.push_back(line.substr(0, end));
        line.remove_prefix(end);
    }
}

template <typename Number>
Number numberOf(std::string_view word) {
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size()) {
        throw ActError("\"" + std::string(word) + "\" is no number");
    }
    return number;
}

forms::Key keyOf(std::string_view word) {
    const std::optional<forms::Key> key = forms::keyFromName(word);
    if (!key) throw ActError("there is no key " + std::string(word));
    return *key;
}

/// What stands behind an equals sign; one blank after the sign belongs to the sign.
std::string_view valueAfter(std::string_view line, std::size_t equals) {
    std::string_view value = line.substr(equals + 1);
    if (value.starts_with(' ')) value.remove_prefix(1);
    return value;
}

bool takesTyping(const Control& control) {
    return control.kind() == forms::Kind::TextBox ||
           (control.kind() == forms::Kind::ComboBox &&
            static_cast<const forms::ComboBox&>(control).editable());
}

void enter(Form& form, std::string_view name, std::string_view text) {
    Control& control = acts::controlNamed(form, name);
    if (takesTyping(control)) {
        acts::type(control, text);
    } else {
        acts::chooseText(control, text);
    }
}

/// "Name # n" or "Name # n = text", `line` without the number sign and what stands before it.
void chooseNumbered(std::ostream& output, Form& form, std::string_view name, std::string_view line) {
    Control& control = acts::controlNamed(form, name);
    const std::size_t equals = line.find('=');
    const int index = numberOf<int>(basic::trim(line.substr(0, equals)));
    if (equals == std::string_view::npos) {
        acts::chooseIndex(control, index);
    } else if (!acts::editLabel(control, index, valueAfter(line, equals))) {
        output << "The row's text can't be edited.\n";
    }
}

/// The acts on the form as a whole. Returns false if the line is none of them.
bool performOnForm(std::ostream& output, Form& form, const std::vector<std::string_view>& parts) {
    const std::string_view verb = parts[0];
    if (verb == "show" && parts.size() == 1) {
        printForm(output, form, Detail::Full);
    } else if (verb == "close" && parts.size() == 1) {
        acts::closeBox(form);
    } else if (verb == "key" && parts.size() == 2) {
        acts::key(form, keyOf(parts[1]));
    } else if (verb == "resize" && parts.size() == 3) {
        acts::resize(form, numberOf<float>(parts[1]), numberOf<float>(parts[2]));
    } else if (verb == "move" && parts.size() == 3) {
        acts::move(form, numberOf<float>(parts[1]), numberOf<float>(parts[2]));
    } else {
        return false;
    }
    return true;
}

}  // namespace

void performLine(std::ostream& output, Form& form, std::string_view line) {
    const std::vector<std::string_view> parts = words(line);
    if (parts.empty()) notUnderstood();
    const std::size_t sign = line.find_first_of("=#");
    if (sign != std::string_view::npos) {
        const std::vector<std::string_view> names = words(line.substr(0, sign));
        if (names.size() != 1) notUnderstood();
        if (line[sign] == '=') {
            enter(form, names[0], valueAfter(line, sign));
        } else {
            chooseNumbered(output, form, names[0], line.substr(sign + 1));
        }
    } else if (performOnForm(output, form, parts)) {
        return;
    } else if (parts.size() == 3 && parts[1] == "key") {
        acts::key(acts::controlNamed(form, parts[0]), keyOf(parts[2]));
    } else if (parts.size() == 1) {
        acts::click(acts::controlNamed(form, parts[0]));
    } else {
        notUnderstood();
    }
}

}  // namespace text_face
