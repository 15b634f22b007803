#include "windows/stand_in/window_form.h"

#include <algorithm>
#include <commctrl.h>

namespace stand_in {

namespace {

using forms::Control;
using forms::Kind;

constexpr float kTwipsPerInch = 1440;

/// Windows ends lines with carriage return and line feed; a model's text may have either.
std::string plainLines(std::string text) {
    std::erase(text, '\r');
    return text;
}

/// Without the mark of the letter to underline.
std::string plainCaption(const std::string& marked) {
    std::string caption;
    for (std::size_t i = 0; i < marked.size(); ++i) {
        if (marked[i] == '&' && i + 1 < marked.size()) ++i;
        caption += marked[i];
    }
    return caption;
}

template <typename Made>
void readEntries(Made& control, HWND window, UINT current) {
    for (const std::string& entry : entriesOf(window)) control.addItem(entry);
    const auto at = static_cast<int>(SendMessageW(window, current, 0, 0));
    if (at >= 0) control.setListIndex(at);
}

void readRows(forms::ListView& view, HWND window) {
    const int columns = columnCount(window);
    for (int i = 0; i < columns; ++i) view.columnHeaders().add(columnText(window, i), 100);
    for (int row = 0; row < rowCount(window); ++row) {
        forms::ListItem& item = view.listItems().add(cellOf(window, row, 0));
        for (int column = 1; column < columns; ++column) item.setSubItem(column, cellOf(window, row, column));
    }
    const int selected = ListView_GetNextItem(window, -1, LVNI_SELECTED);
    if (selected >= 0) view.selectItem(selected + 1);
}

std::unique_ptr<Control> makeCombo(forms::Form& form, HWND window) {
    const bool editable = isEditableCombo(window);
    auto combo = std::make_unique<forms::ComboBox>(
        form, nameOf(window),
        editable ? forms::ComboBox::Style::DropDown : forms::ComboBox::Style::DropDownList);
    readEntries(*combo, window, CB_GETCURSEL);
    if (editable) combo->setText(textOf(window));
    return combo;
}

}  // namespace

WindowForm::WindowForm(HWND window)
    : Form(nameOf(window), "", textOf(window)),
      twipsPerPixel_(kTwipsPerInch / static_cast<float>(GetDpiForWindow(window))) {
    std::vector<Box> frames;
    // Frames first, since they hold the others.
    for (const bool framesNow : {true, false}) {
        for (HWND child : controlsOf(window)) {
            if ((kindOf(child) == Kind::Frame) != framesNow) continue;
            RECT area;
            GetWindowRect(child, &area);
            MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&area), 2);
            Control& control = read(child);
            place(control, area, frames);
            if (framesNow) frames.push_back({&control, area});
        }
    }
}

Control& WindowForm::read(HWND window) {
    all_.push_back(make(window));
    Control& control = *all_.back();
    control.setVisible((GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0);
    if (control.has(forms::Property::Caption)) control.setCaption(plainCaption(textOf(window)));
    if (control.has(forms::Property::ToolTipText))
        control.setToolTipText(toolTipOf(GetParent(window), window));
    if (control.has(forms::Property::Enabled)) control.setEnabled(IsWindowEnabled(window) != FALSE);
    return control;
}

void WindowForm::place(Control& control, const RECT& area, const std::vector<Box>& frames) {
    if (!control.has(forms::Property::Bounds)) return;
    const Box* box = nullptr;
    for (const Box& frame : frames) {
        const RECT& outer = frame.area;
        if (area.left >= outer.left && area.top >= outer.top && area.right <= outer.right + 1 &&
            area.top <= outer.bottom)
            box = &frame;
    }
    const POINT origin = box != nullptr ? POINT{box->area.left, box->area.top} : POINT{0, 0};
    const auto twips = [this](LONG pixels) { return static_cast<float>(pixels) * twipsPerPixel_; };
    const float left = twips(area.left - origin.x);
    const float top = twips(area.top - origin.y);
    const float width = twips(area.right - area.left);
    const float height = twips(area.bottom - area.top);
    if (box != nullptr) {
        control.place(*box->control, left, top, width, height);
    } else {
        control.place(left, top, width, height);
    }
}

std::unique_ptr<Control> WindowForm::make(HWND window) {
    const std::string name = nameOf(window);
    switch (kindOf(window)) {
        case Kind::Button:
            return std::make_unique<forms::Button>(*this, name);
        case Kind::CheckBox: {
            auto box = std::make_unique<forms::CheckBox>(*this, name);
            box->setValue(static_cast<int>(SendMessageW(window, BM_GETCHECK, 0, 0)));
            return box;
        }
        case Kind::OptionButton: {
            auto option = std::make_unique<forms::OptionButton>(*this, name);
            if (SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED) option->setValue(true);
            return option;
        }
        case Kind::Frame:
            return std::make_unique<forms::Frame>(*this, name);
        case Kind::TextBox: {
            auto field = std::make_unique<forms::TextBox>(*this, name);
            field->setText(plainLines(textOf(window)));
            return field;
        }
        case Kind::ListBox: {
            auto list = std::make_unique<forms::ListBox>(*this, name);
            readEntries(*list, window, LB_GETCURSEL);
            return list;
        }
        case Kind::ComboBox:
            return makeCombo(*this, window);
        case Kind::ListView: {
            auto view = std::make_unique<forms::ListView>(*this, name);
            readRows(*view, window);
            return view;
        }
        case Kind::Line:
            return std::make_unique<forms::Line>(*this, name);
        default:
            return std::make_unique<forms::Label>(*this, name);
    }
}

}  // namespace stand_in
