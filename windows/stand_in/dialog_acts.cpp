#include "windows/stand_in/dialog_acts.h"

#include "basic/text.h"
#include "basic/wide.h"
#include "faces/text/form_text.h"
#include "forms/acts.h"
#include "windows/stand_in/window_form.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <commctrl.h>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace stand_in {

namespace {

using forms::ActError;
using forms::Kind;

constexpr float kTwipsPerInch = 1440;

std::vector<std::string> words(std::string_view line) {
    std::vector<std::string> parts;
    while (!(line = basic::trim(line)).empty()) {
        const std::size_t end = std::min(line.find_first_of(" \t"), line.size());
        parts.emplace_back(line.substr(0, end));
        line.remove_prefix(end);
    }
    return parts;
}

template <typename Number>
Number numberOf(std::string_view word) {
    Number number{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
    if (error != std::errc() || end != word.data() + word.size())
        throw ActError("\"" + std::string(word) + "\" is no number");
    return number;
}

void requireUsable(HWND control) {
    if (IsWindowVisible(control) == FALSE) throw ActError(nameOf(control) + " is hidden");
    if (IsWindowEnabled(control) == FALSE) throw ActError(nameOf(control) + " is disabled");
}

LPARAM lparamOf(POINT point) { return MAKELPARAM(point.x, point.y); }

// --- keys

struct NamedKey {
    const char* name;
    WORD code;
};
constexpr NamedKey kKeys[] = {
    {"F1", VK_F1},       {"UP", VK_UP},        {"DOWN", VK_DOWN},  {"PGUP", VK_PRIOR},
    {"PGDN", VK_NEXT},   {"HOME", VK_HOME},    {"END", VK_END},    {"TAB", VK_TAB},
    {"SPACE", VK_SPACE}, {"ENTER", VK_RETURN}, {"ESC", VK_ESCAPE},
};

INPUT keyInput(WORD code, bool up) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = code;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(code, MAPVK_VK_TO_VSC));
    const bool extended = code >= VK_PRIOR && code <= VK_DOWN;
    input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0) | (extended ? KEYEVENTF_EXTENDEDKEY : 0);
    return input;
}

/// Puts a key into the keyboard's own queue; the message loop of the dialog that is up takes it from there.
void pressKey(std::string_view name) {
    WORD held = 0;
    for (const auto& [prefix, code] : {std::pair{"SHIFT+", VK_SHIFT}, std::pair{"ALT+", VK_MENU}}) {
        if (!basic::toUpper(name).starts_with(prefix)) continue;
        held = static_cast<WORD>(code);
        name.remove_prefix(std::string_view(prefix).size());
    }
    WORD key = 0;
    for (const NamedKey& known : kKeys)
        if (basic::equalIgnoringCase(known.name, name)) key = known.code;
    if (key == 0 && name.size() == 1) key = static_cast<WORD>(LOBYTE(VkKeyScanW(basic::toWide(name)[0])));
    if (key == 0) throw ActError("there is no key " + std::string(name));
    std::vector<INPUT> inputs;
    if (held != 0) inputs.push_back(keyInput(held, false));
    inputs.push_back(keyInput(key, false));
    inputs.push_back(keyInput(key, true));
    if (held != 0) inputs.push_back(keyInput(held, true));
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

// --- lists

void clickListItem(HWND list, int index) {
    RECT area{};
    SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(index), 0);
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&area));
    clickAt(list, {area.left + 2, (area.top + area.bottom) / 2});
}

void notifyParent(HWND control, WORD code) {
    SendMessageW(GetParent(control), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(control), code),
                 reinterpret_cast<LPARAM>(control));
}

void chooseInListBox(HWND list, int index) {
    // Wine's list box keeps still at a click on the entry that is selected already; Windows' tells of it.
    if (SendMessageW(list, LB_GETCURSEL, 0, 0) == index) return notifyParent(list, LBN_SELCHANGE);
    clickListItem(list, index);
}

/// Opens the list and clicks the entry in it.
void chooseInCombo(HWND combo, int index) {
    SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    GetComboBoxInfo(combo, &info);
    SendMessageW(info.hwndList, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
    clickListItem(info.hwndList, index);
}

void chooseRow(HWND view, int row) {
    ListView_EnsureVisible(view, row, FALSE);
    RECT area{};
    ListView_GetItemRect(view, row, &area, LVIR_LABEL);
    const LPARAM at = lparamOf({area.left + 4, (area.top + area.bottom) / 2});
    PostMessageW(view, WM_LBUTTONUP, 0, at);  // the list view waits for it inside the press
    SendMessageW(view, WM_LBUTTONDOWN, MK_LBUTTON, at);
}

int countOf(HWND list, Kind kind) {
    return kind == Kind::ListView ? rowCount(list) : static_cast<int>(entriesOf(list).size());
}

void chooseIndex(HWND control, int index) {
    const Kind kind = kindOf(control);
    const int from0 = kind == Kind::ListView ? index - 1 : index;
    if (from0 < 0 || from0 >= countOf(control, kind))
        throw ActError(nameOf(control) + " has no entry " + std::to_string(index));
    if (kind == Kind::ListBox) return chooseInListBox(control, index);
    if (kind == Kind::ComboBox) return chooseInCombo(control, index);
    if (kind == Kind::ListView) return chooseRow(control, from0);
    throw ActError(nameOf(control) + " has no entries");
}

void chooseText(HWND control, const std::string& text, bool anyCase) {
    const auto same = [&](const std::string& entry) {
        return anyCase ? basic::equalIgnoringCase(entry, text) : entry == text;
    };
    if (kindOf(control) == Kind::ListView) {
        for (int row = 0; row < rowCount(control); ++row)
            if (same(cellOf(control, row, 0))) return chooseIndex(control, row + 1);
    } else {
        const std::vector<std::string> entries = entriesOf(control);
        const auto found = std::find_if(entries.begin(), entries.end(), same);
        if (found != entries.end()) return chooseIndex(control, static_cast<int>(found - entries.begin()));
    }
    throw ActError(nameOf(control) + " has no entry \"" + text + "\"");
}

// --- fields

/// Replaces the whole text as pasting does.
void paste(HWND field, const std::string& text) {
    SetFocus(field);
    SendMessageW(field, EM_SETSEL, 0, -1);
    SendMessageW(field, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(basic::toWide(text).c_str()));
}

void enter(HWND control, const std::string& text) {
    const Kind kind = kindOf(control);
    if (kind == Kind::TextBox && (GetWindowLongW(control, GWL_STYLE) & ES_READONLY) != 0)
        throw ActError(nameOf(control) + " can't be typed in");
    if (kind == Kind::TextBox || isEditableCombo(control)) return paste(fieldOf(control), text);
    SetFocus(control);
    chooseText(control, text, false);
}

void editRow(std::ostream& output, HWND view, int row, const std::string& text) {
    SetFocus(view);
    const auto edit =
        reinterpret_cast<HWND>(SendMessageW(view, LVM_EDITLABELW, static_cast<WPARAM>(row - 1), 0));
    if (edit == nullptr) {
        output << "The row's text can't be edited.\n";
        return;
    }
    paste(edit, text);
    SendMessageW(edit, WM_KEYDOWN, VK_RETURN, 0);
}

// --- clicks

void click(HWND control) {
    requireUsable(control);
    switch (kindOf(control)) {
        case Kind::Button:
        case Kind::CheckBox:
        case Kind::OptionButton:
            SetFocus(control);
            SendMessageW(control, BM_CLICK, 0, 0);
            break;
        case Kind::Label:
            clickAt(control, {1, 1});
            break;
        case Kind::ListView: {
            // Below the last row.
            RECT area;
            GetClientRect(control, &area);
            const LPARAM at = lparamOf({area.right - 2, area.bottom - 2});
            PostMessageW(control, WM_LBUTTONUP, 0, at);
            SendMessageW(control, WM_LBUTTONDOWN, MK_LBUTTON, at);
            break;
        }
        default:
            SetFocus(control);
    }
}

int pixelsOf(HWND window, float twips) {
    return static_cast<int>(std::lround(twips * static_cast<float>(GetDpiForWindow(window)) / kTwipsPerInch));
}

void resize(HWND form, float width, float height) {
    RECT area{0, 0, pixelsOf(form, width - forms::Form::kFrameWidth),
              pixelsOf(form, height - forms::Form::kFrameHeight)};
    AdjustWindowRectExForDpi(&area, static_cast<DWORD>(GetWindowLongW(form, GWL_STYLE)), FALSE,
                             static_cast<DWORD>(GetWindowLongW(form, GWL_EXSTYLE)), GetDpiForWindow(form));
    SetWindowPos(form, nullptr, 0, 0, area.right - area.left, area.bottom - area.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void move(HWND form, float left, float top) {
    SetWindowPos(form, nullptr, pixelsOf(form, left), pixelsOf(form, top), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool performOnForm(std::ostream& output, HWND form, const std::vector<std::string>& parts) {
    const std::string& verb = parts[0];
    if (verb == "show" && parts.size() == 1) {
        text_face::printForm(output, WindowForm(form), text_face::Detail::Full);
    } else if (verb == "close" && parts.size() == 1) {
        SendMessageW(form, WM_SYSCOMMAND, SC_CLOSE, 0);
    } else if (verb == "key" && parts.size() == 2) {
        pressKey(parts[1]);
    } else if (verb == "resize" && parts.size() == 3) {
        resize(form, numberOf<float>(parts[1]), numberOf<float>(parts[2]));
    } else if (verb == "move" && parts.size() == 3) {
        move(form, numberOf<float>(parts[1]), numberOf<float>(parts[2]));
    } else {
        return false;
    }
    return true;
}

/// "Name = text", "Name : text", "Name # n", "Name # n = text"; `sign` is where the sign stands.
void performOnEntries(std::ostream& output, HWND form, std::string_view line, std::size_t sign) {
    HWND control = controlNamed(form, std::string(basic::trim(line.substr(0, sign))));
    requireUsable(control);
    std::string_view value = line.substr(sign + 1);
    if (line[sign] == '#') {
        const std::size_t equals = value.find('=');
        const int index = numberOf<int>(basic::trim(value.substr(0, equals)));
        if (equals != std::string_view::npos) {
            std::string_view text = value.substr(equals + 1);
            if (text.starts_with(' ')) text.remove_prefix(1);
            return editRow(output, control, index, std::string(text));
        }
        SetFocus(control);
        return chooseIndex(control, index);
    }
    if (value.starts_with(' ')) value.remove_prefix(1);
    if (line[sign] == '=') return enter(control, std::string(value));
    SetFocus(control);
    chooseText(control, std::string(value), true);
}

}  // namespace

void clickAt(HWND window, POINT point) {
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, lparamOf(point));
    SendMessageW(window, WM_LBUTTONUP, 0, lparamOf(point));
}

void performOnWindow(std::ostream& output, HWND form, std::string_view line) {
    const std::vector<std::string> parts = words(line);
    if (parts.empty()) throw ActError("is no act on a dialog");
    const std::size_t sign = line.find_first_of("=#");
    const std::size_t colon = line.find(" : ");
    if (colon < sign) return performOnEntries(output, form, line, colon + 1);
    if (sign != std::string_view::npos) return performOnEntries(output, form, line, sign);
    if (performOnForm(output, form, parts)) return;
    if (parts.size() == 3 && parts[1] == "key") {
        HWND control = controlNamed(form, parts[0]);
        requireUsable(control);
        SetFocus(fieldOf(control));
        return pressKey(parts[2]);
    }
    if (parts.size() == 4 && parts[1] == "column") {
        HWND view = controlNamed(form, parts[0]);
        ListView_SetColumnWidth(view, numberOf<int>(parts[2]) - 1, pixelsOf(view, numberOf<float>(parts[3])));
        return;
    }
    if (parts.size() != 1) throw ActError("is no act on a dialog");
    click(controlNamed(form, parts[0]));
}

}  // namespace stand_in
