// In the help viewer's place (hhctrl.ocx) under Wine: tells the program what it was asked to show.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

extern "C" __declspec(dllexport) HWND WINAPI HtmlHelpW(HWND, LPCWSTR file, UINT command, DWORD_PTR data) {
    using Tell = void(WINAPI*)(LPCWSTR file, UINT command, DWORD_PTR data);
    const HMODULE program = GetModuleHandleW(nullptr);
    const auto tell = reinterpret_cast<Tell>(reinterpret_cast<void*>(GetProcAddress(program, "standInHelp")));
    if (tell != nullptr) tell(file, command, data);
    return nullptr;
}
