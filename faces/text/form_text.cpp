#include "faces/text/form_text.h"

#include "forms/controls.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace text_face {

namespace {

using forms::Control;
using forms::Form;
using forms::Kind;

constexpr int kBriefEntries = 8;

/// One line's worth of text: line ends inside it are shown as "\n".
std::string oneLine(const std::string& text) {
    std::string line;
    for (char character : text) {
        if (character == '\n') line += "\\n";
        if (character != '\n' && character != '\r') line += character;
    }
    return line;
}

std::string quoted(const std::string& text) { return '"' + oneLine(text) + '"'; }

class Printer {
  public:
    Printer(std::ostream& output, const Form& form, Detail detail)
        : output_(output), form_(form), detail_(detail) {}

    void printIn(const Control* container, int depth) {
        for (const Control* control : inReadingOrder(container)) {
            // A picture box shows nothing of its own, so what it holds stands with its surroundings.
            const bool plain = control->kind() == Kind::PictureBox;
            if (!plain) print(*control, depth);
            printIn(control, plain ? depth : depth + 1);
        }
    }

    void print(const Control& control, int depth) {
        indent(depth);
        output_ << control.name() << ':';
        const std::string shown = face(control);
        if (!shown.empty()) output_ << ' ' << shown;
        if (!control.enabled()) output_ << " (disabled)";
        if (!control.toolTipText().empty()) output_ << " (tip: " << control.toolTipText() << ')';
        output_ << '\n';
        if (control.kind() == Kind::ListBox || control.kind() == Kind::ComboBox) {
            printEntries(static_cast<const forms::ListControl&>(control), depth + 1);
        } else if (control.kind() == Kind::ListView) {
            printRows(static_cast<const forms::ListView&>(control), depth + 1);
        }
    }

  private:
    std::vector<const Control*> inReadingOrder(const Control* container) const {
        std::vector<const Control*> inside;
        for (const Control* control : form_.controls()) {
            const bool drawn =
                control->has(forms::Property::Bounds) && control->visible() && !control->isCutOff();
            if (drawn && control->container() == container) inside.push_back(control);
        }
        std::stable_sort(inside.begin(), inside.end(), [](const Control* left, const Control* right) {
            if (left->top() != right->top()) return left->top() < right->top();
            return left->left() < right->left();
        });
        return inside;
    }

    /// The control on its own line, without its entries.
    static std::string face(const Control& control) {
        switch (control.kind()) {
            case Kind::Button:
                return '[' + control.caption() + ']';
            case Kind::CheckBox: {
                const int value = static_cast<const forms::CheckBox&>(control).value();
                return std::string(value == 0 ? "[ ] " : value == 1 ? "[x] " : "[-] ") + control.caption();
            }
            case Kind::OptionButton: {
                const bool on = static_cast<const forms::OptionButton&>(control).value();
                return (on ? "(o) " : "( ) ") + control.caption();
            }
            case Kind::TextBox:
                return quoted(static_cast<const forms::TextBox&>(control).text());
            case Kind::ComboBox:
                return quoted(static_cast<const forms::ComboBox&>(control).text());
            case Kind::ListBox:
                return countOf(static_cast<const forms::ListBox&>(control).listCount(), "entry", "entries");
            case Kind::ListView:
                return countOf(static_cast<const forms::ListView&>(control).listItems().count(), "row",
                               "rows");
            default:
                return oneLine(control.caption());
        }
    }

    static std::string countOf(int count, const char* one, const char* many) {
        return std::to_string(count) + ' ' + (count == 1 ? one : many);
    }

    void printEntries(const forms::ListControl& list, int depth) {
        const int shown = cut(list.listCount());
        const auto printEntry = [&](int i) {
            indent(depth);
            output_ << (i == list.listIndex() ? "> " : "  ") << i << ' ' << list.list(i) << '\n';
        };
        for (int i = 0; i < shown; ++i) printEntry(i);
        const bool chosenBehind = list.listIndex() >= shown;
        if (chosenBehind) printEntry(list.listIndex());
        printRest(list.listCount() - shown - (chosenBehind ? 1 : 0), depth);
    }

    void printRows(const forms::ListView& view, int depth) {
        const int columns = view.columnHeaders().count();
        indent(depth);
        output_ << "  #";
        for (int column = 1; column <= columns; ++column) {
            output_ << " | " << oneLine(view.columnHeaders().item(column).text);
        }
        output_ << '\n';
        const int shown = cut(view.listItems().count());
        const int selected = view.hasSelectedItem() ? view.selectedItem().index() : 0;
        for (int row = 1; row <= shown; ++row) {
            const forms::ListItem& item = view.listItems().item(row);
            indent(depth);
            output_ << (row == selected ? "> " : "  ") << row << " | " << oneLine(item.text());
            for (int column = 1; column < columns; ++column) printCell(item.subItem(column));
            output_ << '\n';
        }
        printRest(view.listItems().count() - shown, depth);
    }

    void printCell(const std::string& text) {
        output_ << " |";
        if (!text.empty()) output_ << ' ' << oneLine(text);
    }

    int cut(int count) const { return detail_ == Detail::Brief ? std::min(count, kBriefEntries) : count; }

    void printRest(int rest, int depth) {
        if (rest == 0) return;
        indent(depth);
        output_ << "  ... and " << rest << " more\n";
    }

    void indent(int depth) {
        for (int i = 0; i <= depth; ++i) output_ << "  ";
    }

    std::ostream& output_;
    const Form& form_;
    Detail detail_;
};

}  // namespace

void printForm(std::ostream& output, const Form& form, Detail detail) {
    Printer(output, form, detail).printIn(nullptr, 0);
}

void printControl(std::ostream& output, const Form& form, const Control& control) {
    Printer(output, form, Detail::Full).print(control, 0);
}

}  // namespace text_face
