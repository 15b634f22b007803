#include "forms/acts.h"

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

/// A user can act on a control only if it is drawn and not greyed.
void requireReachable(const Control& control) {
    requireUp(control.form());
    if (!control.has(Property::Enabled)) refuse(control, std::string("is a ") + kindName(control.kind()));
    if (!control.shown()) refuse(control, "is hidden");
    if (!control.enabled()) refuse(control, "is disabled");
    for (const Control* box = control.container(); box != nullptr; box = box->container()) {
        if (!box->enabled()) refuse(control, "is disabled with " + box->name());
    }
}

void takeFocus(Control& control) {
    if (control.has(Property::Focus)) control.setFocus();
}

/// Runs what the act sets off, guarded, on the screen that the form is up on at its beginning.
void perform(Form& form, const std::function<void()>& act) { guarded(*form.screen(), act); }

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
    form.screen()->showHelp(context);
}

/// The focus goes round the controls that can take it, in the order of creation.
void focusNext(Form& form) {
    const std::vector<Control*>& controls = form.controls();
    auto active = std::find(controls.begin(), controls.end(), form.activeControl());
    const auto start = active == controls.end() ? 0 : active - controls.begin() + 1;
    const auto count = static_cast<std::ptrdiff_t>(controls.size());
    for (std::ptrdiff_t step = 0; step < count; ++step) {
        Control& candidate = *controls[static_cast<std::size_t>((start + step) % count)];
        if (candidate.has(Property::Focus) && candidate.shown() && candidate.operable()) {
            candidate.setFocus();
            return;
        }
    }
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
        perform(control.form(), [&] { as<ListView>(control).pressKey(key); });
    } else if (isList(control)) {
        ListControl& list = as<ListControl>(control);
        const int index = moved(list, key);
        if (index != list.listIndex()) perform(control.form(), [&] { list.choose(index); });
    } else if (key == Key::Space && control.kind() != Kind::TextBox) {
        click(control);
    }
}

}  // namespace

void guarded(Screen& screen, const std::function<void()>& handler) {
    try {
        handler();
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
        if (index < 1 || index > view.listItems().count()) refuse(control, missing);
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

bool editLabel(Control& control, int row, std::string_view text) {
    requireReachable(control);
    if (control.kind() != Kind::ListView) {
        refuse(control, std::string("is a ") + kindName(control.kind()) + " and has no rows");
    }
    ListView& view = as<ListView>(control);
    if (row < 1 || row > view.listItems().count()) refuse(control, "has no entry " + std::to_string(row));
    takeFocus(control);
    bool edited = false;
    perform(control.form(), [&] { edited = view.editLabel(row, text); });
    return edited;
}

void key(Form& form, Key key) {
    requireUp(form);
    switch (key) {
        case Key::F1:
            help(form);
            return;
        case Key::Tab:
            focusNext(form);
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
