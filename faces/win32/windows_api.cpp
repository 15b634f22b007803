#include "faces/win32/windows_api.h"

#include "basic/wide.h"

#include <cmath>
#include <cstdint>

namespace win32_face {

namespace {
constexpr float kTwipsPerInch = 1440;
}  // namespace

std::wstring windowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void setWindowText(HWND window, const std::wstring& text) {
    if (windowText(window) != text) SetWindowTextW(window, text.c_str());
}

bool isClass(HWND window, const wchar_t* name) {
    wchar_t own[64] = L"";
    GetClassNameW(window, own, 64);
    return lstrcmpiW(own, name) == 0;
}

void setName(HWND window, const std::string& name) {
    const ATOM atom = GlobalAddAtomW(basic::toWide(name).c_str());
    SetPropW(window, L"VorlaneName", reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(atom)));
}

int Scale::pixels(float twips) const {
    return static_cast<int>(std::lround(twips * static_cast<float>(dpi_) / kTwipsPerInch));
}

float Scale::twips(int pixels) const {
    return static_cast<float>(pixels) * kTwipsPerInch / static_cast<float>(dpi_);
}

}  // namespace win32_face
