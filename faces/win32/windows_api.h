#pragma once

// The system's declarations in the order that they need.
#ifndef NOMINMAX
#define NOMINMAX
#endif
// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <windowsx.h>
// clang-format on

#include <string>
#include <string_view>

namespace win32_face {

std::wstring windowText(HWND window);
/// A text as a window shows it: with no control character that a drawing or a file brought
/// (basic::shownText). Line ends stay as they are.
std::wstring toShown(std::string_view text);
/// What a text means that was shown in a field and edited there to `edited`; its lines end in both
/// characters.
std::string fromShown(std::string before, const std::wstring& edited);
/// Sets a window's text unless it has it already.
void setWindowText(HWND window, const std::wstring& text);
bool isClass(HWND window, const wchar_t* name);
/// Leaves the model's name on a window.
void setName(HWND window, const std::string& name);

/// Twips and pixels at a resolution.
class Scale {
  public:
    explicit Scale(UINT dpi) : dpi_(dpi) {}
    UINT dpi() const { return dpi_; }
    int pixels(float twips) const;
    float twips(int pixels) const;

  private:
    UINT dpi_;
};

}  // namespace win32_face
