// What the user does in a form's window, as acts.

#include "faces/win32/form_window.h"
#include "forms/acts.h"

#include <cctype>
#include <optional>

namespace win32_face {

using forms::Control;
using forms::Form;
using forms::Key;
using forms::Kind;
namespace acts = forms::acts;

namespace {

struct NativeKey {
    WORD code;
    Key key;
};
constexpr NativeKey kListKeys[] = {
    {VK_UP, Key::Up},     {VK_DOWN, Key::Down}, {VK_PRIOR, Key::PageUp}, {VK_NEXT, Key::PageDown},
    {VK_HOME, Key::Home}, {VK_END, Key::End},   {VK_SPACE, Key::Space},
};

/// What a list view makes of a key; nothing for keys that type nothing and move nothing.
std::optional<Key> listKey(WORD code) {
    for (const NativeKey& known : kListKeys)
        if (known.code == code) return known.key;
    return MapVirtualKeyW(code, MAPVK_VK_TO_CHAR) >= L' ' ? std::optional(Key::Character) : std::nullopt;
}

HWND comboAround(HWND window) {
    if (isClass(window, WC_COMBOBOXW)) return window;
    HWND parent = GetParent(window);
    return isClass(parent, WC_COMBOBOXW) ? parent : nullptr;
}

/// A field in which a list view's row is edited, or an open list: they take their keys themselves.
bool keepsItsKeys(HWND window, WPARAM key) {
    if (isClass(window, WC_EDITW) && isClass(GetParent(window), WC_LISTVIEWW)) return true;
    HWND combo = comboAround(window);
    return combo != nullptr && SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0 && key != VK_F1;
}

bool takesLines(const Control* control) {
    if (control == nullptr || control->kind() != Kind::TextBox) return false;
    const auto& box = static_cast<const forms::TextBox&>(*control);
    return box.multiLine() && !box.locked();
}

}  // namespace

bool FormWindow::act(const std::function<void()>& what) {
    try {
        what();
    } catch (const forms::ActError&) {
        MessageBeep(MB_OK);
        for (const auto& [control, window] : controls_) changes_[control] = forms::Changes::all();
    }
    draw();
    return true;
}

bool FormWindow::takeKey(const MSG& message) {
    // No exception may pass on into the host.
    try {
        if (message.message == WM_SYSCHAR) {
            const auto letter = static_cast<wchar_t>(message.wParam);
            if (letter > 0x7F || std::isalpha(static_cast<int>(letter)) == 0) return false;
            return act(
                [&] { acts::accelerator(form_, static_cast<char>(std::tolower(static_cast<int>(letter)))); });
        }
        return message.message == WM_KEYDOWN && !keepsItsKeys(message.hwnd, message.wParam) &&
               takePlainKey(message);
    } catch (...) {
        failure_ = std::current_exception();
        return true;
    }
}

bool FormWindow::takePlainKey(const MSG& message) {
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    Control* active = form_.activeControl();
    switch (message.wParam) {
        case VK_F1:
            return act([&] { acts::key(form_, Key::F1); });
        case VK_ESCAPE:
            return act([&] { acts::key(form_, Key::Escape); });
        case VK_RETURN:
            if (takesLines(active)) return false;
            return act([&] { acts::key(form_, Key::Enter); });
        case VK_TAB:
            return act([&] { acts::key(form_, shift ? Key::ShiftTab : Key::Tab); });
        case VK_UP:
        case VK_LEFT:
        case VK_DOWN:
        case VK_RIGHT: {
            if (active == nullptr || active->kind() != Kind::OptionButton) return false;
            const bool back = message.wParam == VK_UP || message.wParam == VK_LEFT;
            return act([&] { acts::key(form_, back ? Key::Up : Key::Down); });
        }
        default:
            return false;
    }
}

LRESULT FormWindow::procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    if (message == WM_NCCREATE) {
        auto* made = reinterpret_cast<CREATESTRUCTW*>(l)->lpCreateParams;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
    }
    auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    LRESULT result = 0;
    // No exception may pass through the system's frames on the stack.
    try {
        if (self != nullptr && self->window_ != nullptr && self->handle(message, w, l, result)) return result;
    } catch (...) {
        self->failure_ = std::current_exception();
        return 0;
    }
    return DefWindowProcW(window, message, w, l);
}

LRESULT FormWindow::viewProcedure(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR, DWORD_PTR form) {
    const LRESULT result = DefSubclassProc(window, message, w, l);
    if (message == WM_NCDESTROY) RemoveWindowSubclass(window, viewProcedure, 0);
    if (message != WM_NOTIFY) return result;
    auto* self = reinterpret_cast<FormWindow*>(form);
    try {
        self->headerChanged(*reinterpret_cast<const NMHDR*>(l));
    } catch (...) {
        self->failure_ = std::current_exception();
    }
    return result;
}

bool FormWindow::handle(UINT message, WPARAM w, LPARAM l, LRESULT& result) {
    switch (message) {
        case WM_APP:
            draw();
            return true;
        case WM_CLOSE:
            return act([&] { acts::closeBox(form_); });
        case WM_HELP:
            return true;  // F1 has been an act
        case WM_SIZE:
            if (w != SIZE_MINIMIZED) resized(LOWORD(l), HIWORD(l));
            return false;
        case WM_MOVE:
            moved();
            return false;
        case WM_GETMINMAXINFO:
            limitSize(*reinterpret_cast<MINMAXINFO*>(l));
            return true;
        case WM_DPICHANGED:
            rescale(HIWORD(w), *reinterpret_cast<RECT*>(l));
            return true;
        case WM_SETCURSOR:
            if (form_.mousePointer() != kHourglass) return false;
            drawPointer();
            result = TRUE;
            return true;
        case WM_ACTIVATE:
            if (LOWORD(w) != WA_INACTIVE) drawFocus();
            return true;
        case WM_COMMAND:
            if (!drawing_ && !left_ && l != 0) {
                HWND window = reinterpret_cast<HWND>(l);
                if (Control* control = controlOf(window)) command(*control, window, HIWORD(w));
            }
            return true;
        case WM_NOTIFY:
            return !drawing_ && !left_ && notify(*reinterpret_cast<const NMHDR*>(l), result);
        case WM_CTLCOLORSTATIC:
            SetBkMode(reinterpret_cast<HDC>(w), TRANSPARENT);
            result = reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_BTNFACE));
            return true;
        default:
            return false;
    }
}

void FormWindow::resized(int width, int height) {
    if (drawing_ || left_ || !form_.resizable()) return;
    act([&] {
        acts::resize(form_, scale_.twips(width) + Form::kFrameWidth,
                     scale_.twips(height) + Form::kFrameHeight);
    });
}

void FormWindow::moved() {
    if (drawing_ || left_ || IsWindowVisible(window_) == FALSE || IsIconic(window_) != FALSE) return;
    RECT area;
    GetWindowRect(window_, &area);
    act([&] { acts::move(form_, scale_.twips(area.left), scale_.twips(area.top)); });
}

void FormWindow::command(Control& control, HWND window, WORD code) {
    const auto chosen = [&](UINT current) { return static_cast<int>(SendMessageW(window, current, 0, 0)); };
    const auto typed = [&](const std::string& before) {
        act([&] { acts::type(control, fromShown(before, windowText(window))); });
    };
    const auto focused = [&] {
        if (form_.activeControl() != &control) act([&] { acts::focus(control); });
    };
    switch (control.kind()) {
        case Kind::Button:
        case Kind::CheckBox:
        case Kind::OptionButton:
            if (code == BN_CLICKED) act([&] { acts::click(control); });
            if (code == BN_SETFOCUS) focused();
            break;
        case Kind::Label:
            if (code == STN_CLICKED) act([&] { acts::click(control); });
            break;
        case Kind::TextBox:
            if (code == EN_CHANGE) typed(static_cast<forms::TextBox&>(control).text());
            if (code == EN_SETFOCUS) focused();
            break;
        case Kind::ListBox:
            if (code == LBN_SELCHANGE) act([&] { acts::chooseIndex(control, chosen(LB_GETCURSEL)); });
            if (code == LBN_SETFOCUS) focused();
            break;
        case Kind::ComboBox:
            // The field still shows the text of before: the entry is asked for.
            if (code == CBN_SELCHANGE) act([&] { acts::chooseIndex(control, chosen(CB_GETCURSEL)); });
            if (code == CBN_EDITCHANGE) typed(static_cast<forms::ComboBox&>(control).text());
            if (code == CBN_SETFOCUS) focused();
            break;
        default:
            break;
    }
}

bool FormWindow::notify(const NMHDR& header, LRESULT& result) {
    Control* control = controlOf(header.hwndFrom);
    return control != nullptr && control->kind() == Kind::ListView &&
           notifyView(static_cast<forms::ListView&>(*control), header, result);
}

void FormWindow::headerChanged(const NMHDR& header) {
    if (drawing_ || left_ || (header.code != HDN_ITEMCHANGEDW && header.code != HDN_ITEMCHANGEDA)) return;
    const auto& change = reinterpret_cast<const NMHEADERW&>(header);
    Control* control = controlOf(GetParent(header.hwndFrom));
    if (control == nullptr || change.pitem == nullptr || (change.pitem->mask & HDI_WIDTH) == 0) return;
    act([&] { acts::resizeColumn(*control, change.iItem + 1, scale_.twips(change.pitem->cxy)); });
}

void FormWindow::rowChanged(forms::ListView& view, const NMLISTVIEW& change) {
    const bool selected = (change.uNewState & LVIS_SELECTED) != 0 && (change.uOldState & LVIS_SELECTED) == 0;
    if (keyMovesRow_ && selected && change.iItem >= 0)
        act([&] { acts::moveSelection(view, change.iItem + 1); });
}

bool FormWindow::notifyView(forms::ListView& view, const NMHDR& header, LRESULT& result) {
    switch (header.code) {
        case NM_CLICK: {
            keyMovesRow_ = false;
            const int row = reinterpret_cast<const NMITEMACTIVATE&>(header).iItem;
            if (row >= 0) return act([&] { acts::chooseIndex(view, row + 1); });
            mark(view, forms::Change::Selection);  // the click has taken it from the native control
            return act([&] { acts::click(view); });
        }
        case NM_SETFOCUS:
            if (form_.activeControl() != &view) act([&] { acts::focus(view); });
            return true;
        case LVN_KEYDOWN: {
            const std::optional<Key> key = listKey(reinterpret_cast<const NMLVKEYDOWN&>(header).wVKey);
            if (!key) return true;
            act([&] { acts::keyDown(view, *key); });
            keyMovesRow_ = true;
            return true;
        }
        case LVN_ITEMCHANGED:
            rowChanged(view, reinterpret_cast<const NMLISTVIEW&>(header));
            return true;
        case LVN_BEGINLABELEDITW: {
            bool allowed = false;
            const int row = reinterpret_cast<const NMLVDISPINFOW&>(header).item.iItem;
            act([&] { allowed = acts::beginEdit(view, row + 1); });
            result = allowed ? FALSE : TRUE;
            return true;
        }
        case LVN_ENDLABELEDITW: {
            const wchar_t* text = reinterpret_cast<const NMLVDISPINFOW&>(header).item.pszText;
            result = text != nullptr ? TRUE : FALSE;
            if (text == nullptr) return true;
            const int row = reinterpret_cast<const NMLVDISPINFOW&>(header).item.iItem;
            const std::string before = view.listItems().item(row + 1).text();
            act([&] { acts::endEdit(view, fromShown(before, text)); });
            return true;
        }
        default:
            return false;
    }
}

}  // namespace win32_face
