#include "faces/win32/win32_screen.h"

#include "basic/wide.h"
#include "faces/win32/form_window.h"
#include "faces/win32/visual_styles.h"
#include "forms/file_dialog.h"

#include <algorithm>
#include <commdlg.h>
#include <exception>

namespace win32_face {

using forms::Control;
using forms::Form;

namespace {

HWND asWindow(void* handle) { return static_cast<HWND>(handle); }

/// Labels and patterns, each ended by a NUL, as the system's file dialogs take them.
std::wstring filterText(const forms::FileDialog& dialog) {
    std::wstring filter;
    for (const auto& entry : dialog.filterEntries()) {
        filter += toShown(entry.label) + L'\0';
        for (std::size_t i = 0; i < entry.patterns.size(); ++i)
            filter += (i > 0 ? L";" : L"") + basic::toWide(entry.patterns[i]);
        filter += L'\0';
    }
    return filter;
}

const wchar_t* orNull(const std::wstring& text) { return text.empty() ? nullptr : text.c_str(); }

}  // namespace

Win32Screen::Win32Screen(void* module)
    : module_(module), styles_(std::make_unique<VisualStyles>(static_cast<HMODULE>(module))) {}

Win32Screen::~Win32Screen() = default;

void* Win32Screen::owner() const {
    for (auto window = up_.rbegin(); window != up_.rend(); ++window)
        if (!(*window)->left()) return (*window)->handle();
    return GetActiveWindow();
}

void Win32Screen::drawAll() {
    for (const auto& window : up_) window->draw();
}

void Win32Screen::runModal(Form& form) {
    const VisualStyles::Active styled(*styles_);
    drawAll();
    up_.push_back(std::make_unique<FormWindow>(static_cast<HINSTANCE>(module_), form, asWindow(owner())));
    FormWindow& window = *up_.back();
    window.show();
    MSG message;
    while (!window.left() && !window.failure()) {
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            // The host ends: the dialog goes, and the host's own loop gets the message.
            if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));
            form.hide();
            break;
        }
        const bool inside = message.hwnd != nullptr && IsChild(window.handle(), message.hwnd) != FALSE;
        if ((inside || message.hwnd == window.handle()) && window.takeKey(message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    const std::exception_ptr failure = window.failure();
    std::erase_if(up_, [&](const auto& up) { return up.get() == &window; });
    if (failure) std::rethrow_exception(failure);
}

void Win32Screen::hidden(Form& form) {
    for (const auto& window : up_)
        if (&window->form() == &form && !window->left()) window->leave();
}

void Win32Screen::changed(Form& form, forms::Change change) {
    for (const auto& window : up_)
        if (&window->form() == &form && !window->left()) window->mark(change);
}

void Win32Screen::changed(Control& control, forms::Change change) {
    for (const auto& window : up_)
        if (&window->form() == &control.form() && !window->left()) window->mark(control, change);
}

forms::Answer Win32Screen::messageBox(const forms::MessageDialog& box) {
    const VisualStyles::Active styled(*styles_);
    drawAll();
    UINT kind = static_cast<UINT>(box.icon) | MB_TASKMODAL;
    if (box.buttons == forms::MessageDialog::Buttons::OkCancel) kind |= MB_OKCANCEL;
    if (box.buttons == forms::MessageDialog::Buttons::YesNo) kind |= MB_YESNO;
    return static_cast<forms::Answer>(
        MessageBoxW(asWindow(owner()), toShown(box.text).c_str(), toShown(box.title).c_str(), kind));
}

std::optional<std::string> Win32Screen::fileDialog(const forms::FileDialog& dialog,
                                                   forms::FileDialogMode mode) {
    const VisualStyles::Active styled(*styles_);
    drawAll();
    const std::wstring filter = filterText(dialog);
    const std::wstring title = toShown(dialog.dialogTitle());
    const std::wstring folder = basic::toWide(dialog.initDir());
    std::vector<wchar_t> path(32768);  // the system's longest path
    OPENFILENAMEW ask{};
    ask.lStructSize = sizeof ask;
    ask.hwndOwner = asWindow(owner());
    ask.lpstrFilter = orNull(filter);
    ask.lpstrFile = path.data();
    ask.nMaxFile = static_cast<DWORD>(path.size());
    ask.lpstrTitle = orNull(title);
    ask.lpstrInitialDir = orNull(folder);
    ask.Flags = OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
    const bool open = mode == forms::FileDialogMode::Open;
    if ((open ? GetOpenFileNameW(&ask) : GetSaveFileNameW(&ask)) == FALSE) return std::nullopt;
    return basic::fromWide(path.data());
}

void Win32Screen::reportFailure(std::int32_t number, const std::string& description) {
    const VisualStyles::Active styled(*styles_);
    drawAll();
    const std::string text = "Error " + std::to_string(number) + ": " + description;
    MessageBoxW(asWindow(owner()), toShown(text).c_str(), L"Vorlane", MB_ICONEXCLAMATION | MB_TASKMODAL);
}

}  // namespace win32_face
