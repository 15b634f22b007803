#include "windows/stand_in/native.h"

#include "basic/text.h"
#include "basic/wide.h"
#include "forms/acts.h"

#include <algorithm>
#include <commctrl.h>
#include <iterator>

namespace stand_in {

namespace {

using forms::Kind;

constexpr const wchar_t* kNameProperty = L"VorlaneName";
constexpr const char* kFormClass = "VorlaneForm";
constexpr const char* kBoxClass = "#32770";

LONG styleOf(HWND window) { return GetWindowLongW(window, GWL_STYLE); }

Kind buttonKind(HWND button) {
    switch (styleOf(button) & BS_TYPEMASK) {
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
        case BS_3STATE:
        case BS_AUTO3STATE:
            return Kind::CheckBox;
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return Kind::OptionButton;
        case BS_GROUPBOX:
            return Kind::Frame;
        default:
            return Kind::Button;
    }
}

struct TipSearch {
    HWND form;
    HWND tips;
};

BOOL CALLBACK findTips(HWND window, LPARAM search) {
    auto& sought = *reinterpret_cast<TipSearch*>(search);
    if (classOf(window) != "tooltips_class32" || GetWindow(window, GW_OWNER) != sought.form) return TRUE;
    sought.tips = window;
    return FALSE;
}

BOOL CALLBACK findTop(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) || (!isForm(window) && !isBox(window)))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

}  // namespace

std::string textOf(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return basic::fromWide(text);
}

std::string classOf(HWND window) {
    wchar_t name[64] = L"";
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    return basic::fromWide(name);
}

std::string nameOf(HWND window) {
    wchar_t name[256] = L"";
    const auto atom = static_cast<ATOM>(reinterpret_cast<std::uintptr_t>(GetPropW(window, kNameProperty)));
    if (atom != 0) GlobalGetAtomNameW(atom, name, static_cast<int>(std::size(name)));
    return basic::fromWide(name);
}

Kind kindOf(HWND control) {
    const std::string name = classOf(control);
    if (name == "Button") return buttonKind(control);
    if (name == "Edit") return Kind::TextBox;
    if (name == "ListBox") return Kind::ListBox;
    if (name == "ComboBox") return Kind::ComboBox;
    if (name == "SysListView32") return Kind::ListView;
    return (styleOf(control) & SS_TYPEMASK) == SS_ETCHEDHORZ ? Kind::Line : Kind::Label;
}

std::vector<HWND> controlsOf(HWND form) {
    std::vector<HWND> all;
    for (HWND window = GetWindow(form, GW_CHILD); window != nullptr; window = GetWindow(window, GW_HWNDNEXT))
        if (!nameOf(window).empty()) all.push_back(window);
    std::sort(all.begin(), all.end(),
              [](HWND left, HWND right) { return GetDlgCtrlID(left) < GetDlgCtrlID(right); });
    return all;
}

HWND controlNamed(HWND form, const std::string& name) {
    for (HWND control : controlsOf(form))
        if (basic::equalIgnoringCase(nameOf(control), name)) return control;
    throw forms::ActError("there is no control " + name);
}

std::string toolTipOf(HWND form, HWND control) {
    TipSearch search{form, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), findTips, reinterpret_cast<LPARAM>(&search));
    wchar_t text[1024] = L"";
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof tool;
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = form;
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = text;
    if (search.tips != nullptr)
        SendMessageW(search.tips, TTM_GETTEXTW, std::size(text), reinterpret_cast<LPARAM>(&tool));
    return basic::fromWide(text);
}

bool isForm(HWND window) { return classOf(window) == kFormClass; }
bool isBox(HWND window) { return classOf(window) == kBoxClass; }

HWND topDialog() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), findTop, reinterpret_cast<LPARAM>(&found));
    return found;
}

bool isEditableCombo(HWND control) {
    return kindOf(control) == Kind::ComboBox && (styleOf(control) & CBS_DROPDOWNLIST) == CBS_DROPDOWN;
}

HWND fieldOf(HWND control) {
    if (!isEditableCombo(control)) return control;
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    return GetComboBoxInfo(control, &info) != FALSE ? info.hwndItem : control;
}

std::vector<std::string> entriesOf(HWND list) {
    const bool combo = kindOf(list) == Kind::ComboBox;
    std::vector<std::string> all;
    const LRESULT count = SendMessageW(list, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        const auto at = static_cast<WPARAM>(i);
        const LRESULT length = SendMessageW(list, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, at, 0);
        std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
        SendMessageW(list, combo ? CB_GETLBTEXT : LB_GETTEXT, at, reinterpret_cast<LPARAM>(text.data()));
        text.pop_back();
        all.push_back(basic::fromWide(text));
    }
    return all;
}

std::string cellOf(HWND view, int row, int column) {
    wchar_t text[4096] = L"";
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = static_cast<int>(std::size(text));
    SendMessageW(view, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return basic::fromWide(text);
}

int rowCount(HWND view) { return ListView_GetItemCount(view); }

int columnCount(HWND view) { return Header_GetItemCount(ListView_GetHeader(view)); }

std::string columnText(HWND view, int column) {
    wchar_t text[1024] = L"";
    LVCOLUMNW header{};
    header.mask = LVCF_TEXT;
    header.pszText = text;
    header.cchTextMax = static_cast<int>(std::size(text));
    SendMessageW(view, LVM_GETCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&header));
    return basic::fromWide(text);
}

int columnWidth(HWND view, int column) { return ListView_GetColumnWidth(view, column); }

}  // namespace stand_in
