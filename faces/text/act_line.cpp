#include "faces/text/act_line.h"

#include "basic/text.h"
#include "faces/text/control_names.h"
#include "faces/text/form_text.h"
#include "faces/text/hand.h"
#include "forms/acts.h"
#include "forms/controls.h"
#include "forms/find_entry.h"

#include <cctype>
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

[[noreturn]] void notUnderstood() { throw ActError("is no act on a dialog; help tells what can be typed"); }

constexpr std::string_view kHelp =
    "  Name             clicks a button, an option or a check box; a caption does too where it is unique\n"
    "  Name = text      types into a text box or an edit field; chooses that entry of a list\n"
    "  Name : text      chooses the entry with that text in any list or combo, whatever the case\n"
    "  Name # n         chooses entry n: lists and combos from 0, rows of a table from 1\n"
    "  Name # n = text  writes the first text of row n, where the table lets it be edited\n"
    "  key F1, key DOWN presses a key; Name key DOWN in that control; key F1 is the dialog's help\n"
    "  resize w h, move l t   in twips\n"
    "  show, show Name  prints the dialog; one control with all its entries\n"
    "  close            the frame's close box\n";

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

/// The letter of "ALT+X", in lower case; 0 for another key.
char acceleratorIn(std::string_view word) {
    if (word.size() != 5 || !basic::equalIgnoringCase(word.substr(0, 4), "ALT+")) return 0;
    return static_cast<char>(std::tolower(static_cast<unsigned char>(word[4])));
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

void enter(std::ostream& output, Hand& hand, Form& form, std::string_view name, std::string_view text) {
    Control& control = controlMeant(form, name);
    if (!takesTyping(control)) {
        hand.chooseText(control, text);
        return;
    }
    const int entry = forms::findEntry(control, text);
    hand.type(control, text);
    if (entry >= 0) {
        output << "(typed only; \"" << control.name() << " : " << text << "\" chooses the entry)\n";
    }
}

/// "Name : text", the entry of that text whatever the case.
void chooseEntry(Hand& hand, Form& form, std::string_view name, std::string_view text) {
    Control& control = controlMeant(form, name);
    const int entry = forms::findEntry(control, text);
    const std::vector<std::string> entries = forms::entryTexts(control);
    if (entry >= 0) {
        hand.chooseIndex(control, entry);
    } else if (entries.empty()) {
        hand.chooseText(control, text);  // refuses
    } else {
        throw ActError(control.name() + " has no entry \"" + std::string(text) + "\"" +
                       nearText(text, entries));
    }
}

/// "Name # n" or "Name # n = text", `line` without the number sign and what stands before it.
void chooseNumbered(std::ostream& output, Hand& hand, Form& form, std::string_view name,
                    std::string_view line) {
    Control& control = controlMeant(form, name);
    const std::size_t equals = line.find('=');
    const int index = numberOf<int>(basic::trim(line.substr(0, equals)));
    if (equals == std::string_view::npos) {
        hand.chooseIndex(control, index);
    } else if (!hand.edit(control, index, valueAfter(line, equals))) {
        output << "The row's text can't be edited.\n";
    }
}

/// The acts on the form as a whole. Returns false if the line is none of them.
bool performOnForm(std::ostream& output, Hand& hand, Form& form, const std::vector<std::string_view>& parts,
                   Detail detail) {
    const std::string_view verb = parts[0];
    if ((basic::equalIgnoringCase(verb, "help") || verb == "?") && parts.size() == 1) {
        output << kHelp;
    } else if (verb == "show" && parts.size() == 1) {
        printForm(output, form, detail);
    } else if (verb == "show" && parts.size() == 2) {
        printControl(output, form, acts::controlNamed(form, parts[1]));
    } else if (verb == "close" && parts.size() == 1) {
        hand.closeBox(form);
    } else if (verb == "key" && parts.size() == 2) {
        if (const char letter = acceleratorIn(parts[1])) {
            hand.accelerator(form, letter);
        } else {
            hand.key(form, keyOf(parts[1]));
        }
    } else if (verb == "resize" && parts.size() == 3) {
        hand.resize(form, numberOf<float>(parts[1]), numberOf<float>(parts[2]));
    } else if (verb == "move" && parts.size() == 3) {
        hand.move(form, numberOf<float>(parts[1]), numberOf<float>(parts[2]));
    } else {
        return false;
    }
    return true;
}

}  // namespace

void performLine(std::ostream& output, Hand& hand, Form& form, std::string_view line, Detail detail) {
    const std::vector<std::string_view> parts = words(line);
    if (parts.empty()) notUnderstood();
    const std::size_t sign = line.find_first_of("=#:");
    if (sign != std::string_view::npos) {
        const std::string_view name = basic::trim(line.substr(0, sign));
        if (name.empty()) notUnderstood();
        if (line[sign] == '=') {
            enter(output, hand, form, name, valueAfter(line, sign));
        } else if (line[sign] == ':') {
            chooseEntry(hand, form, name, basic::trim(line.substr(sign + 1)));
        } else {
            chooseNumbered(output, hand, form, name, line.substr(sign + 1));
        }
    } else if (performOnForm(output, hand, form, parts, detail)) {
        return;
    } else if (parts.size() == 3 && parts[1] == "key") {
        Control& control = acts::controlNamed(form, parts[0]);
        const forms::Key key = keyOf(parts[2]);
        hand.focus(control);
        hand.key(form, key);
    } else if (parts.size() == 4 && parts[1] == "column") {
        hand.resizeColumn(acts::controlNamed(form, parts[0]), numberOf<int>(parts[2]),
                          numberOf<float>(parts[3]));
    } else {
        hand.click(controlMeant(form, basic::trim(line)));
    }
}

}  // namespace text_face
