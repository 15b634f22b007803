#include "forms/acts.h"

#include "forms/accelerators.h"
#include "forms/controls.h"
#include "forms/screen.h"

#include <algorithm>

namespace forms::acts {

namespace {

[[noreturn]] void refuse(const Control& control, const std::string& reason) {
    throw ActError(control.name() + " " + reason);
}

void requireUp(const Form& form) {
    if (!form.visible()) throw ActError(form.name() + " is not shown");
}

void takeFocus(Control& control) {
    if (control.has(Property::Focus)) control.setFocus();
}

/// Runs what the act sets off, guarded, on the screen that the form is up on at its beginning.
void perform(Form& form, const std::function<void()>& act) {
    guarded(*form.screen(), act);
    form.settleFocus();
}

template <typename Specific>
Specific& as(Control& control) {
    return static_cast<Specific&>(control);
}

bool isList(const Control& control) {
    return control.kind() == Kind::ListBox || control.kind() == Kind::ComboBox;
}

int rowOf(const ListView& view, std::string_view text) {
    for (int row = 1; row <= view.listItems().count(); ++row) {
        if (view.listItems().item(row).text() == text) return row;
    }
    return 0;
}

/// The number that a control's ListIndex takes when a key moves it; the same number for other keys.
int moved(const ListControl& list, Key key) {
    const int last = list.listCount() - 1;
    const int page = 10;
    const int index = list.listIndex();
    switch (key) {
        case Key::Up:
            return std::max(index - 1, std::min(0, last));
        case Key::Down:
            return std::min(index + 1, last);
        case Key::PageUp:
            return std::max(index - page, std::min(0, last));
        case Key::PageDown:
            return std::min(index + page, last);
        case Key::Home:
            return std::min(0, last);
        case Key::End:
            return last;
        default:
            return index;
    }
}

void help(Form& form) {
    Control* active = form.activeControl();
    int context = active != nullptr && active->has(Property::HelpContextId) ? active->helpContextId() : 0;
    if (context == 0) context = form.helpContextId();
    guarded(*form.screen(), [&] { form.openHelp(context); });
}

void moveFocus(Form& form, bool backwards) {
    if (Control* stop = form.nextStop(backwards)) stop->setFocus();
}

/// An arrow turns the next option of the group on, round the group in reading order.
void turnNextOption(OptionButton& option, bool backwards) {
    std::vector<Control*> group;
    for (Control* control : option.form().tabOrder()) {
        const bool isOfGroup =
            control->kind() == Kind::OptionButton && control->container() == option.container();
        if (isOfGroup && control->shown() && control->operable()) group.push_back(control);
    }
    if (backwards) std::reverse(group.begin(), group.end());
    const auto self = std::find(group.begin(), group.end(), &option);
    std::rotate(group.begin(), self, group.end());
    if (group.size() > 1) click(*group[1]);
}

ListView& requireRows(Control& control) {
    if (control.kind() != Kind::ListView) {
        refuse(control, std::string("is a ") + kindName(control.kind()) + " and has no rows");
    }
    return as<ListView>(control);
}

void requireRow(const ListView& view, int row) {
    if (row < 1 || row > view.listItems().count()) refuse(view, "has no entry " + std::to_string(row));
}

/// Enter presses the button that has the focus, or else the default button; Escape the cancel button.
void pressButtonFor(Form& form, Key key) {
    Control* active = form.activeControl();
    if (key == Key::Enter && active != nullptr && active->kind() == Kind::Button) {
        click(*active);
        return;
    }
    for (Control* control : form.controls()) {
        if (control->kind() != Kind::Button || !control->shown() || !control->operable()) continue;
        const Button& button = as<Button>(*control);
        if (key == Key::Enter ? button.isDefault() : button.isCancel()) {
            click(*control);
            return;
        }
    }
}

void keyInControl(Control& control, Key key) {
    if (control.kind() == Kind::ListView) {
        ListView& view = as<ListView>(control);
        perform(control.form(), [&] {
            view.pressKey(key);
            if (const int row = view.rowAfter(key); row != 0) view.selectItem(row);
        });
    } else if (control.kind() == Kind::OptionButton && (key == Key::Up || key == Key::Down)) {
        turnNextOption(as<OptionButton>(control), key == Key::Up);
    } else if (isList(control)) {
        ListControl& list = as<ListControl>(control);
        const int index = moved(list, key);
        if (index != list.listIndex()) perform(control.form(), [&] { list.choose(index); });
    } else if (key == Key::Space && control.kind() != Kind::TextBox) {
        click(control);
    }
}

}  // namespace

void requireReachable(const Control& control) {
    requireUp(control.form());
    if (!control.has(Property::Enabled)) refuse(control, std::string("is a ") + kindName(control.kind()));
    if (!control.shown()) refuse(control, "is hidden");
    if (!control.enabled()) refuse(control, "is disabled");
    for (const Control* box = control.container(); box != nullptr; box = box->container()) {
        if (!box->enabled()) refuse(control, "is disabled with " + box->name());
    }
}

void guarded(Screen& screen, const std::function<void()>& handler) {
    try {
        basic::acrossBorder(handler);
    } catch (const basic::Error& error) {
        screen.reportFailure(error.number(), error.description());
    }
}

Control& controlNamed(Form& form, std::string_view name) {
    Control* control = form.findControl(name);
    if (control == nullptr) throw ActError(form.name() + " has no control " + std::string(name));
    return *control;
}

void click(Control& control) {
    requireReachable(control);
    takeFocus(control);
    perform(control.form(), [&] {
        switch (control.kind()) {
            case Kind::Button:
                as<Button>(control).press();
                break;
            case Kind::CheckBox: {
                CheckBox& box = as<CheckBox>(control);
                box.setValue(box.value() == 0 ? 1 : 0);
                break;
            }
            case Kind::OptionButton:
                as<OptionButton>(control).setValue(true);
                break;
            case Kind::Label:
                as<Label>(control).press();
                break;
            case Kind::ListView:
                as<ListView>(control).pressOutside();
                break;
            default:
                break;
        }
    });
}

void type(Control& control, std::string_view text) {
    requireReachable(control);
    if (control.kind() == Kind::TextBox) {
        TextBox& box = as<TextBox>(control);
        if (box.locked()) refuse(control, "can't be edited");
        takeFocus(control);
        perform(control.form(), [&] { box.setText(text); });
    } else if (control.kind() == Kind::ComboBox && as<ComboBox>(control).editable()) {
        takeFocus(control);
        perform(control.form(), [&] { as<ComboBox>(control).setText(text); });
    } else {
        refuse(control, std::string("is a ") + kindName(control.kind()) + " and can't be typed in");
    }
}

void chooseText(Control& control, std::string_view text) {
    requireReachable(control);
    const std::string missing = "has no entry \"" + std::string(text) + "\"";
    if (control.kind() == Kind::ListView) {
        const int row = rowOf(as<ListView>(control), text);
        if (row == 0) refuse(control, missing);
        chooseIndex(control, row);
    } else if (isList(control)) {
        const int index = as<ListControl>(control).indexOf(text);
        if (index < 0) refuse(control, missing);
        chooseIndex(control, index);
    } else {
        refuse(control, std::string("is a ") + kindName(control.kind()) + " and has no entries");
    }
}

void chooseIndex(Control& control, int index) {
    requireReachable(control);
    const std::string missing = "has no entry " + std::to_string(index);
    if (control.kind() == Kind::ListView) {
        ListView& view = as<ListView>(control);
        requireRow(view, index);
        takeFocus(control);
        perform(control.form(), [&] { view.pressRow(index); });
    } else if (isList(control)) {
        ListControl& list = as<ListControl>(control);
        if (index < 0 || index >= list.listCount()) refuse(control, missing);
        takeFocus(control);
        perform(control.form(), [&] { list.choose(index); });
    } else {
        refuse(control, std::string("is a ") + kindName(control.kind()) + " and has no entries");
    }
}

bool beginEdit(Control& control, int row) {
    requireReachable(control);
    ListView& view = requireRows(control);
    requireRow(view, row);
    takeFocus(control);
    bool isOpen = false;
    perform(control.form(), [&] { isOpen = view.beginEdit(row); });
    return isOpen;
}

void endEdit(Control& control, std::string_view text) {
    requireReachable(control);
    ListView& view = requireRows(control);
    if (view.editedRow() == 0) refuse(control, "has no row in edit");
    view.endEdit(text);
}

void focus(Control& control) {
    requireReachable(control);
    if (!control.has(Property::Focus))
        refuse(control, std::string("is a ") + kindName(control.kind()) + " and takes no focus");
    control.setFocus();
}

void keyDown(Control& control, Key key) {
    requireReachable(control);
    ListView& view = requireRows(control);
    takeFocus(control);
    perform(control.form(), [&] { view.pressKey(key); });
}

void moveSelection(Control& control, int row) {
    requireReachable(control);
    ListView& view = requireRows(control);
    requireRow(view, row);
    view.selectItem(row);
}

void resizeColumn(Control& control, int column, Twips width) {
    requireReachable(control);
    ListView& view = requireRows(control);
    if (column < 1 || column > view.columnHeaders().count())
        refuse(control, "has no column " + std::to_string(column));
    if (!(width >= 0)) refuse(control, "has no columns of such a width");
    view.columnHeaders().setWidth(column, width);
}

void accelerator(Form& form, char letter) {
    requireUp(form);
    for (const Accelerator& own : accelerators(form)) {
        if (own.letter != letter) continue;
        own.field == nullptr ? click(*own.control) : focus(*own.field);
        return;
    }
    throw ActError(form.name() + " has no accelerator " + letter);
}

void key(Form& form, Key key) {
    requireUp(form);
    switch (key) {
        case Key::F1:
            perform(form, [&] { help(form); });
            return;
        case Key::Tab:
        case Key::ShiftTab:
            moveFocus(form, key == Key::ShiftTab);
            return;
        case Key::Enter:
        case Key::Escape:
            pressButtonFor(form, key);
            return;
        default:
            break;
    }
    Control* active = form.activeControl();
    // A control that was disabled while it had the focus doesn't hear the keyboard.
    if (active != nullptr && active->shown() && active->operable()) keyInControl(*active, key);
}

void key(Control& control, Key key) {
    requireReachable(control);
    if (!control.has(Property::Focus)) {
        refuse(control, std::string("is a ") + kindName(control.kind()) + " and takes no keys");
    }
    takeFocus(control);
    acts::key(control.form(), key);
}

void resize(Form& form, Twips width, Twips height) {
    requireUp(form);
    if (!form.resizable()) throw ActError(form.name() + " has a fixed size");
    if (!(width > 0 && height > 0)) throw ActError("a dialog's width and height are more than 0");
    perform(form, [&] { form.resizeTo(width, height); });
}

void move(Form& form, Twips left, Twips top) {
    requireUp(form);
    form.moveTo(left, top);
}

void closeBox(Form& form) {
    requireUp(form);
    form.unload();
}

}  // namespace forms::acts
