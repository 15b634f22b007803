#include "faces/win32/windows_api.h"

#include "basic/shown_text.h"
#include "basic/wide.h"

#include <cmath>
#include <cstdint>
#include <utility>

namespace win32_face {

namespace {
constexpr float kTwipsPerInch = 1440;
constexpr std::string_view kLineEnd = "\r\n";

std::string replaced(std::string text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}
}  // namespace

std::wstring windowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::wstring toShown(std::string_view text) {
    std::string shown;
    for (std::size_t end = text.find(kLineEnd); end != std::string_view::npos; end = text.find(kLineEnd)) {
        shown.append(basic::shownText(text.substr(0, end))).append(kLineEnd);
        text.remove_prefix(end + kLineEnd.size());
    }
    return basic::toWide(shown + basic::shownText(text));
}

std::string fromShown(std::string before, const std::wstring& edited) {
    const std::string bare = replaced(basic::fromWide(edited), kLineEnd, "\n");
    return replaced(basic::meantText(replaced(std::move(before), kLineEnd, "\n"), bare), "\n", kLineEnd);
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
