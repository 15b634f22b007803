#include "faces/win32/form_window.h"

#include "basic/wide.h"
#include "forms/accelerators.h"

#include <algorithm>
#include <utility>

namespace win32_face {

using forms::Change;
using forms::Control;
using forms::Form;
using forms::Kind;

namespace {

constexpr wchar_t kClassName[] = L"VorlaneForm";
constexpr int kFirstId = 1000;

BOOL CALLBACK disable(HWND window, LPARAM list) {
    if (IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE) {
        EnableWindow(window, FALSE);
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    }
    return TRUE;
}

void registerClass(HINSTANCE module, WNDPROC procedure) {
    WNDCLASSEXW shape{};
    shape.cbSize = sizeof shape;
    shape.lpfnWndProc = procedure;
    shape.hInstance = module;
    shape.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    shape.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    shape.lpszClassName = kClassName;
    RegisterClassExW(&shape);  // fails where it is there already
}

}  // namespace

FormWindow::FormWindow(HINSTANCE module, Form& form, HWND owner)
    : form_(form), scale_(owner != nullptr ? GetDpiForWindow(owner) : GetDpiForSystem()) {
    registerClass(module, procedure);
    style_ = WS_POPUP | WS_CAPTION | WS_SYSMENU;
    if (form.resizable()) style_ |= WS_THICKFRAME | WS_MAXIMIZEBOX;
    window_ = CreateWindowExW(WS_EX_CONTROLPARENT | WS_EX_DLGMODALFRAME, kClassName, L"", style_, 0, 0, 10,
                              10, owner, nullptr, module, this);
    setName(window_, form.name());
    tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, window_, nullptr,
                            module, nullptr);
    makeControls(module);
    makeFont();
    formChanges_ = forms::Changes::all();
    for (const auto& [control, window] : controls_) changes_[control] = forms::Changes::all();
    draw();
}

FormWindow::~FormWindow() {
    if (!left_) leave();
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
    DeleteObject(font_);
    for (HICON icon : icons_) DestroyIcon(icon);
}

void FormWindow::makeControls(HINSTANCE module) {
    order_ = form_.controls();
    // Frames are made last, so that what they hold is drawn over them.
    for (const bool frames : {false, true}) {
        for (std::size_t i = 0; i < order_.size(); ++i) {
            Control& control = *order_[i];
            if ((control.kind() == Kind::Frame) != frames || !ControlWindow::isDrawn(control.kind()))
                continue;
            auto made =
                std::make_unique<ControlWindow>(module, window_, control, kFirstId + static_cast<int>(i));
            if (control.has(forms::Property::ToolTipText)) made->addToolTip(tips_);
            if (control.kind() == Kind::ListView)
                SetWindowSubclass(made->handle(), viewProcedure, 0, reinterpret_cast<DWORD_PTR>(this));
            controls_[&control] = std::move(made);
        }
    }
}

void FormWindow::makeFont() {
    constexpr int kPoints = 8;
    constexpr int kPointsPerInch = 72;
    const HFONT old = font_;
    font_ = CreateFontW(-MulDiv(kPoints, static_cast<int>(scale_.dpi()), kPointsPerInch), 0, 0, 0, FW_NORMAL,
                        FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                        DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE, L"MS Shell Dlg 2");
    for (const auto& [control, window] : controls_) window->setFont(font_);
    if (old != nullptr) DeleteObject(old);
}

void FormWindow::show() {
    EnumThreadWindows(GetCurrentThreadId(), disable, reinterpret_cast<LPARAM>(&disabled_));
    drawing_ = true;  // the first show tells of size and place, too
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
    drawing_ = false;
    formChanges_.add(Change::Focus);
    draw();
}

void FormWindow::leave() {
    left_ = true;
    // Before the window goes, so that the focus falls back to the host and not to another program.
    for (HWND window : disabled_) EnableWindow(window, TRUE);
    disabled_.clear();
    ShowWindow(window_, SW_HIDE);
    PostMessageW(window_, WM_NULL, 0, 0);  // wakes the loop
}

void FormWindow::mark(Change change) {
    formChanges_.add(change);
    // A long act lets no message through that would ask for the cursor.
    if (change == Change::Pointer) drawPointer();
    if (!std::exchange(posted_, true)) PostMessageW(window_, WM_APP, 0, 0);
}

void FormWindow::mark(Control& control, Change change) {
    if (change == Change::Focus) return mark(change);
    changes_[&control].add(change);
    if (change == Change::Visible || change == Change::Enabled || change == Change::Bounds)
        markContents(control, change);
    if (!std::exchange(posted_, true)) PostMessageW(window_, WM_APP, 0, 0);
}

void FormWindow::markContents(const Control& container, Change change) {
    if (container.kind() != Kind::Frame && container.kind() != Kind::PictureBox) return;
    for (Control* control : order_) {
        if (control->container() != &container) continue;
        changes_[control].add(change);
        if (change == Change::Bounds) changes_[control].add(Change::Visible);  // a short frame cuts off
        markContents(*control, change);
    }
}

void FormWindow::draw() {
    posted_ = false;
    if (left_) return;
    const bool before = std::exchange(drawing_, true);
    const forms::Changes formChanges = std::exchange(formChanges_, {});
    if (formChanges.any()) drawForm(formChanges);
    const auto changes = std::exchange(changes_, {});
    if (!changes.empty()) {
        std::map<const Control*, std::size_t> underlined;
        for (const forms::Accelerator& own : forms::accelerators(form_))
            underlined[own.control] = own.position;
        for (const auto& [control, window] : controls_) {
            const auto found = changes.find(control);
            const auto letter = underlined.find(control);
            window->draw(found != changes.end() ? found->second : forms::Changes(), scale_,
                         letter != underlined.end() ? letter->second : std::string::npos, tips_);
        }
    }
    drawFocus();
    drawing_ = before;
}

RECT FormWindow::frameFor(int width, int height) const {
    RECT area{0, 0, width, height};
    AdjustWindowRectExForDpi(&area, style_, FALSE, WS_EX_DLGMODALFRAME, scale_.dpi());
    return area;
}

void FormWindow::drawIcon() {
    auto* module = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(window_, GWLP_HINSTANCE));
    const std::wstring name = basic::toWide(form_.icon());
    for (const bool big : {false, true}) {
        const int width = GetSystemMetricsForDpi(big ? SM_CXICON : SM_CXSMICON, scale_.dpi());
        const int height = GetSystemMetricsForDpi(big ? SM_CYICON : SM_CYSMICON, scale_.dpi());
        auto* icon = static_cast<HICON>(LoadImageW(module, name.c_str(), IMAGE_ICON, width, height, 0));
        // Set on the window: a dialog's frame shows no icon of its class.
        SendMessageW(window_, WM_SETICON, big ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(icon));
        HICON old = std::exchange(icons_[big ? 1 : 0], icon);
        if (old != nullptr) DestroyIcon(old);
    }
}

void FormWindow::drawPointer() const {
    SetCursor(LoadCursorW(nullptr, form_.mousePointer() == kHourglass ? IDC_WAIT : IDC_ARROW));
}

void FormWindow::drawForm(const forms::Changes& changes) {
    setWindowText(window_, toShown(form_.caption()));
    if (changes.has(Change::Icon)) drawIcon();
    if (!changes.has(Change::Bounds)) return;
    // The model counts a frame of its own; what must fit is the inside.
    const RECT area = frameFor(scale_.pixels(form_.width() - Form::kFrameWidth),
                               scale_.pixels(form_.height() - Form::kFrameHeight));
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    HWND owner = GetWindow(window_, GW_OWNER);
    GetMonitorInfoW(MonitorFromWindow(owner != nullptr ? owner : window_, MONITOR_DEFAULTTONEAREST),
                    &monitor);
    const RECT& work = monitor.rcWork;
    int left = scale_.pixels(form_.left());
    int top = scale_.pixels(form_.top());
    if (form_.left() == 0 && form_.top() == 0) {
        // No place of its own: the middle of the owner's monitor.
        left = work.left + (work.right - work.left - width) / 2;
        top = work.top + (work.bottom - work.top - height) / 2;
    } else if (MonitorFromPoint({left + width / 2, top + 10}, MONITOR_DEFAULTTONULL) == nullptr) {
        // The monitor of before is gone: the title bar must be in reach.
        left = std::clamp<int>(left, work.left, std::max<int>(work.left, work.right - width));
        top = std::clamp<int>(top, work.top, std::max<int>(work.top, work.bottom - height));
    }
    SetWindowPos(window_, nullptr, left, top, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void FormWindow::drawFocus() {
    Control* active = form_.activeControl();
    const auto found = controls_.find(active);
    if (found == controls_.end() || IsWindowVisible(window_) == FALSE) return;
    HWND wanted = found->second->handle();
    HWND focus = GetFocus();
    if (focus != wanted && IsChild(wanted, focus) == FALSE && IsWindowEnabled(wanted) != FALSE)
        SetFocus(wanted);
}

Control* FormWindow::controlOf(HWND window) const {
    const int index = GetDlgCtrlID(window) - kFirstId;
    return index >= 0 && static_cast<std::size_t>(index) < order_.size() && GetParent(window) == window_
               ? order_[static_cast<std::size_t>(index)]
               : nullptr;
}

void FormWindow::rescale(UINT dpi, const RECT& wanted) {
    scale_ = Scale(dpi);
    makeFont();
    for (const auto& [control, window] : controls_) changes_[control] = forms::Changes::all();
    drawIcon();
    drawing_ = true;
    SetWindowPos(window_, nullptr, wanted.left, wanted.top, wanted.right - wanted.left,
                 wanted.bottom - wanted.top, SWP_NOZORDER | SWP_NOACTIVATE);
    drawing_ = false;
    draw();
}

void FormWindow::limitSize(MINMAXINFO& limits) const {
    if (!form_.resizable() || form_.leastWidth() == 0) return;
    const RECT least = frameFor(scale_.pixels(form_.leastWidth() - Form::kFrameWidth),
                                scale_.pixels(form_.leastHeight() - Form::kFrameHeight));
    limits.ptMinTrackSize = {least.right - least.left, least.bottom - least.top};
}

}  // namespace win32_face
