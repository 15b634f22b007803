#include "windows/addin/module_path.h"

#include <windows.h>

namespace addin {

std::wstring modulePath(void* module) {
    constexpr std::size_t kMost = 32767;  // the system's longest path
    std::wstring path(kMost, L'\0');
    path.resize(GetModuleFileNameW(static_cast<HMODULE>(module), path.data(), static_cast<DWORD>(kMost)));
    return path;
}

std::wstring moduleFolder(void* module) {
    const std::wstring path = modulePath(module);
    return path.substr(0, path.find_last_of(L'\\'));
}

}  // namespace addin
