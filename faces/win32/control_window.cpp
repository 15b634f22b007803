#include "faces/win32/control_window.h"

#include "basic/wide.h"

#include <algorithm>

namespace win32_face {

using forms::Change;
using forms::Control;
using forms::Kind;

namespace {

/// What a drop-down list adds to the height of its combo box.
constexpr float kDroppedHeight = 2400;

struct Shape {
    const wchar_t* className;
    DWORD style;
    DWORD extended = 0;
};

DWORD defaultStyle(const Control& control) {
    return static_cast<const forms::Button&>(control).isDefault() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
}

DWORD comboStyle(const Control& control) {
    return static_cast<const forms::ComboBox&>(control).editable() ? CBS_DROPDOWN | CBS_AUTOHSCROLL
                                                                   : CBS_DROPDOWNLIST;
}

DWORD textStyle(const Control& control) {
    const auto& box = static_cast<const forms::TextBox&>(control);
    return (box.multiLine() ? ES_MULTILINE | ES_WANTRETURN | WS_VSCROLL : ES_AUTOHSCROLL) |
           (box.locked() ? ES_READONLY : 0);
}

Shape shapeOf(const Control& control) {
    switch (control.kind()) {
        case Kind::Button:
            return {WC_BUTTONW, DWORD{WS_TABSTOP} | BS_MULTILINE | BS_NOTIFY | defaultStyle(control)};
        case Kind::CheckBox:
            return {WC_BUTTONW, WS_TABSTOP | BS_NOTIFY | BS_MULTILINE | BS_3STATE};
        case Kind::OptionButton:
            return {WC_BUTTONW, WS_TABSTOP | BS_NOTIFY | BS_MULTILINE | BS_RADIOBUTTON};
        case Kind::TextBox:
            return {WC_EDITW, WS_TABSTOP | textStyle(control), WS_EX_CLIENTEDGE};
        case Kind::ListBox:
            return {WC_LISTBOXW, WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT,
                    WS_EX_CLIENTEDGE};
        case Kind::ComboBox:
            return {WC_COMBOBOXW, WS_TABSTOP | WS_VSCROLL | comboStyle(control)};
        case Kind::Frame:
            return {WC_BUTTONW, BS_GROUPBOX, WS_EX_TRANSPARENT};
        case Kind::ListView:
            return {WC_LISTVIEWW, WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_EDITLABELS | LVS_NOSORTHEADER,
                    WS_EX_CLIENTEDGE};
        case Kind::Line:
            return {WC_STATICW, SS_ETCHEDHORZ};
        default:
            return {WC_STATICW, SS_LEFT | SS_NOTIFY};
    }
}

/// Fields of several lines want carriage return and line feed.
std::wstring fieldText(const std::string& text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r')) lines += '\r';
        lines += text[i];
    }
    return toShown(lines);
}

/// An ampersand is doubled, one more stands before the letter to underline.
std::wstring markedCaption(const std::string& caption, std::size_t accelerator) {
    std::string marked;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' || i == accelerator) marked += '&';
        marked += caption[i];
    }
    return toShown(marked);
}

TOOLINFOW toolOf(HWND control) {
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = GetParent(control);
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    return tool;
}

/// Holds a window's painting back until the end of the scope.
class Still {
  public:
    explicit Still(HWND window) : window_(window) { SendMessageW(window_, WM_SETREDRAW, FALSE, 0); }
    ~Still() {
        SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(window_, nullptr, TRUE);
    }
    Still(const Still&) = delete;
    Still& operator=(const Still&) = delete;

  private:
    HWND window_;
};

}  // namespace

bool ControlWindow::isDrawn(Kind kind) { return kind != Kind::PictureBox && kind != Kind::FileDialog; }

ControlWindow::ControlWindow(HINSTANCE module, HWND form, Control& control, int id) : control_(control) {
    const Shape shape = shapeOf(control);
    handle_ =
        CreateWindowExW(shape.extended, shape.className, L"", shape.style | WS_CHILD | WS_CLIPSIBLINGS, 0, 0,
                        0, 0, form, reinterpret_cast<HMENU>(static_cast<std::intptr_t>(id)), module, nullptr);
    setName(handle_, control.name());
    if (control.kind() == Kind::ListView)
        ListView_SetExtendedListViewStyle(handle_, LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
}

void ControlWindow::addToolTip(HWND tips) {
    TOOLINFOW tool = toolOf(handle_);
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(tips, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ControlWindow::setFont(HFONT font) {
    SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void ControlWindow::draw(const forms::Changes& changes, const Scale& scale, std::size_t accelerator,
                         HWND tips) {
    if (changes.has(Change::Bounds)) drawBounds(scale);
    if (changes.has(Change::Enabled) && control_.has(forms::Property::Enabled))
        EnableWindow(handle_, control_.operable());
    if (control_.has(forms::Property::Caption)) drawCaption(accelerator);
    if (changes.has(Change::ToolTip) && control_.has(forms::Property::ToolTipText)) {
        std::wstring text = toShown(control_.toolTipText());
        TOOLINFOW tool = toolOf(handle_);
        tool.lpszText = text.data();
        SendMessageW(tips, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
    }
    switch (control_.kind()) {
        case Kind::CheckBox:
            Button_SetCheck(handle_, static_cast<forms::CheckBox&>(control_).value());
            break;
        case Kind::OptionButton:
            Button_SetCheck(
                handle_, static_cast<forms::OptionButton&>(control_).value() ? BST_CHECKED : BST_UNCHECKED);
            break;
        case Kind::TextBox:
            if (changes.has(Change::Text))
                setWindowText(handle_, fieldText(static_cast<forms::TextBox&>(control_).text()));
            break;
        case Kind::ListBox:
        case Kind::ComboBox:
            drawEntries(changes, static_cast<forms::ListControl&>(control_));
            break;
        case Kind::ListView:
            drawTable(changes, static_cast<forms::ListView&>(control_), scale);
            break;
        default:
            break;
    }
    if (changes.has(Change::Visible)) ShowWindow(handle_, control_.shown() ? SW_SHOWNA : SW_HIDE);
}

void ControlWindow::drawBounds(const Scale& scale) {
    float left = 0;
    float top = 0;
    for (const Control* box = control_.container(); box != nullptr; box = box->container()) {
        left += box->left();
        top += box->top();
    }
    constexpr UINT kFlags = SWP_NOZORDER | SWP_NOACTIVATE;
    if (control_.kind() == Kind::Line) {
        const auto& line = static_cast<forms::Line&>(control_);
        SetWindowPos(handle_, nullptr, scale.pixels(left + line.x1()), scale.pixels(top + line.y1()),
                     std::max(2, scale.pixels(line.x2() - line.x1())), 2, kFlags);
        return;
    }
    const float dropped = control_.kind() == Kind::ComboBox ? kDroppedHeight : 0;
    SetWindowPos(handle_, nullptr, scale.pixels(left + control_.left()), scale.pixels(top + control_.top()),
                 scale.pixels(control_.width()), scale.pixels(control_.height() + dropped), kFlags);
}

void ControlWindow::drawCaption(std::size_t accelerator) {
    setWindowText(handle_, markedCaption(control_.caption(), accelerator));
}

void ControlWindow::drawEntries(const forms::Changes& changes, forms::ListControl& list) {
    const bool combo = list.kind() == Kind::ComboBox;
    if (changes.has(Change::Entries)) {
        const Still still(handle_);
        SendMessageW(handle_, combo ? CB_RESETCONTENT : LB_RESETCONTENT, 0, 0);
        for (int i = 0; i < list.listCount(); ++i)
            SendMessageW(handle_, combo ? CB_ADDSTRING : LB_ADDSTRING, 0,
                         reinterpret_cast<LPARAM>(toShown(list.list(i)).c_str()));
    }
    if (SendMessageW(handle_, combo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0) != list.listIndex())
        SendMessageW(handle_, combo ? CB_SETCURSEL : LB_SETCURSEL, static_cast<WPARAM>(list.listIndex()), 0);
    if (combo && static_cast<forms::ComboBox&>(list).editable())
        setWindowText(handle_, toShown(static_cast<forms::ComboBox&>(list).text()));
}

void ControlWindow::drawTable(const forms::Changes& changes, forms::ListView& view, const Scale& scale) {
    if (changes.has(Change::Rows) || changes.has(Change::Columns)) {
        const Still still(handle_);
        if (changes.has(Change::Columns)) drawColumns(view, scale);
        drawRows(view);
    }
    drawSelectedRow(view);
    const DWORD style = static_cast<DWORD>(GetWindowLongW(handle_, GWL_STYLE));
    const DWORD wanted = view.hideSelection() ? style & ~DWORD{LVS_SHOWSELALWAYS} : style | LVS_SHOWSELALWAYS;
    if (wanted != style) SetWindowLongW(handle_, GWL_STYLE, static_cast<LONG>(wanted));
}

void ControlWindow::drawColumns(forms::ListView& view, const Scale& scale) {
    const int columns = view.columnHeaders().count();
    HWND header = ListView_GetHeader(handle_);
    while (Header_GetItemCount(header) > columns)
        ListView_DeleteColumn(handle_, Header_GetItemCount(header) - 1);
    for (int i = 0; i < columns; ++i) {
        std::wstring text = toShown(view.columnHeaders().item(i + 1).text);
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_SUBITEM;
        column.cx = scale.pixels(view.columnHeaders().item(i + 1).width);
        column.pszText = text.data();
        column.iSubItem = i;
        const bool fresh = i >= Header_GetItemCount(header);
        SendMessageW(handle_, fresh ? LVM_INSERTCOLUMNW : LVM_SETCOLUMNW, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&column));
    }
}

void ControlWindow::drawRows(forms::ListView& view) {
    const int rows = view.listItems().count();
    const int columns = std::max(1, view.columnHeaders().count());
    if (rows == 0) ListView_DeleteAllItems(handle_);
    while (ListView_GetItemCount(handle_) > rows)
        ListView_DeleteItem(handle_, ListView_GetItemCount(handle_) - 1);
    for (int row = 0; row < rows; ++row) {
        const forms::ListItem& item = view.listItems().item(row + 1);
        for (int column = 0; column < columns; ++column) {
            std::wstring text = toShown(column == 0 ? item.text() : item.subItem(column));
            LVITEMW cell{};
            cell.mask = LVIF_TEXT;
            cell.iItem = row;
            cell.iSubItem = column;
            cell.pszText = text.data();
            const bool fresh = column == 0 && row >= ListView_GetItemCount(handle_);
            SendMessageW(handle_, fresh ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&cell));
        }
    }
}

void ControlWindow::drawSelectedRow(forms::ListView& view) {
    const int selected = view.hasSelectedItem() ? view.selectedItem().index() - 1 : -1;
    if (ListView_GetNextItem(handle_, -1, LVNI_SELECTED) == selected) return;
    constexpr UINT kBoth = LVIS_SELECTED | LVIS_FOCUSED;
    ListView_SetItemState(handle_, -1, 0, kBoth);
    if (selected < 0) return;
    ListView_SetItemState(handle_, selected, kBoth, kBoth);
    ListView_EnsureVisible(handle_, selected, FALSE);
}

}  // namespace win32_face
