#include "windows/addin/windows_platform.h"

#include "basic/code_page.h"
#include "basic/error.h"
#include "basic/wide.h"
#include "windows/addin/module_path.h"

#include <iterator>
#include <memory>
#include <utility>

// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>
// clang-format on

namespace addin {

namespace {

using platform::RegistryValue;

/// Without the form that has no limit a path takes 260 characters, a folder 248.
constexpr std::size_t kLongPath = 247;
constexpr const char* kLongPrefix = "\\\\?\\";

std::optional<RegistryValue> queryBelow(HKEY root, const std::wstring& key, const std::wstring& name) {
    DWORD type = 0;
    DWORD size = 0;
    constexpr DWORD kAny = RRF_RT_ANY | RRF_NOEXPAND;
    if (RegGetValueW(root, key.c_str(), name.c_str(), kAny, &type, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    std::string bytes(size, '\0');
    if (RegGetValueW(root, key.c_str(), name.c_str(), kAny, &type, bytes.data(), &size) != ERROR_SUCCESS)
        return std::nullopt;
    bytes.resize(size);
    if (type == REG_SZ) {
        const std::wstring text(reinterpret_cast<const wchar_t*>(bytes.data()), size / sizeof(wchar_t));
        bytes = basic::fromWide(text.substr(0, text.find(L'\0')));
    }
    return RegistryValue{type, bytes};
}

std::string localeText(LCTYPE kind) {
    wchar_t text[32] = L"";
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, kind, text, static_cast<int>(std::size(text)));
    return basic::fromWide(text);
}

/// The system's code page, where its characters have one byte each and lie in the first plane.
std::optional<basic::CodePage> systemCodePage() {
    CPINFO info{};
    if (GetCPInfo(CP_ACP, &info) == FALSE || info.MaxCharSize != 1) return std::nullopt;
    basic::CodePage page{};
    for (std::size_t i = 0; i < page.size(); ++i) {
        const char byte = static_cast<char>(0x80 + i);
        wchar_t character = 0;
        if (MultiByteToWideChar(CP_ACP, 0, &byte, 1, &character, 1) != 1) return std::nullopt;
        page[i] = character;
    }
    return page;
}

bool isAbsolute(std::string_view path) {
    return path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/');
}

// The help viewer's library is loaded when it is first needed.
constexpr UINT kDisplayTopic = 0x0000;
constexpr UINT kHelpContext = 0x000F;
constexpr std::int32_t kEnglishContexts = 1'000'000;

using HtmlHelpFunction = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);

HtmlHelpFunction helpViewer() {
    const HMODULE library = LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    if (library == nullptr) return nullptr;
    return reinterpret_cast<HtmlHelpFunction>(reinterpret_cast<void*>(GetProcAddress(library, "HtmlHelpW")));
}

}  // namespace

WindowsPlatform::WindowsPlatform(void* module, std::function<std::string()> language)
    : module_(module), language_(std::move(language)) {
    if (const auto page = systemCodePage()) basic::useCodePage(*page);
}

std::optional<RegistryValue> WindowsPlatform::queryRegistry(platform::RegistryRoot root,
                                                            std::string_view keyPath,
                                                            std::string_view valueName) {
    const std::wstring key = basic::toWide(keyPath);
    const std::wstring name = basic::toWide(valueName);
    const HKEY asked = root == platform::RegistryRoot::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
    std::optional<RegistryValue> value = queryBelow(asked, key, name);
    return value ? value : queryBelow(HKEY_CURRENT_USER, key, name);
}

std::vector<std::string> WindowsPlatform::folderFiles(const std::string& folder) {
    WIN32_FIND_DATAW entry;
    const HANDLE walk = folder.empty() ? INVALID_HANDLE_VALUE
                                       : FindFirstFileW(basic::toWide(joinPath(folder, "*")).c_str(), &entry);
    if (walk == INVALID_HANDLE_VALUE) throw basic::Error(basic::kPathNotFound, "Path not found: " + folder);
    const std::unique_ptr<void, decltype(&FindClose)> closed(walk, FindClose);
    std::vector<std::string> files;
    do {
        if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            files.push_back(joinPath(folder, basic::fromWide(entry.cFileName)));
    } while (FindNextFileW(walk, &entry) != FALSE);
    return files;
}

std::optional<platform::FileState> WindowsPlatform::fileState(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA found;
    if (GetFileAttributesExW(basic::toWide(path).c_str(), GetFileExInfoStandard, &found) == FALSE ||
        (found.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) != 0)
        return std::nullopt;
    const auto whole = [](DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; };
    // The system counts steps of 100 ns from 1601 on, the clock from 1970 on.
    using Steps = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
    constexpr Steps kBetween{116'444'736'000'000'000};
    const Steps written{static_cast<std::int64_t>(
        whole(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime))};
    return platform::FileState{
        std::chrono::system_clock::time_point(
            std::chrono::duration_cast<std::chrono::system_clock::duration>(written - kBetween)),
        whole(found.nFileSizeHigh, found.nFileSizeLow),
        whole(found.ftCreationTime.dwHighDateTime, found.ftCreationTime.dwLowDateTime)};
}

std::string WindowsPlatform::joinPath(std::string_view folder, std::string_view name) {
    const std::string path = std::string(folder) + "\\" + std::string(name);
    return path.size() > kLongPath && isAbsolute(path) ? kLongPrefix + path : path;
}

std::string WindowsPlatform::baseName(std::string_view path) {
    const std::size_t separator = path.find_last_of("\\/:");
    if (separator != std::string_view::npos) path.remove_prefix(separator + 1);
    return std::string(path.substr(0, path.find_last_of('.')));
}

std::string WindowsPlatform::ownFolder() { return basic::fromWide(moduleFolder(module_)); }

void WindowsPlatform::openDocument(const std::string& document, const std::string& parameters,
                                   const std::string& folder) {
    ShellExecuteW(nullptr, L"open", basic::toWide(document).c_str(), basic::toWide(parameters).c_str(),
                  basic::toWide(folder).c_str(), SW_SHOWNORMAL);
}

void WindowsPlatform::showHelp(const std::string& helpFile, std::optional<std::int32_t> context) {
    const HtmlHelpFunction open = helpViewer();
    if (open == nullptr) return;
    const bool french = language_() == "Fran\u00E7ais";
    // Of no window of ours: the help may stay when the dialog goes, and lie behind the host.
    if (context) {
        open(GetDesktopWindow(), basic::toWide(helpFile).c_str(), kHelpContext,
             static_cast<DWORD_PTR>(french ? *context : *context + kEnglishContexts));
    } else {
        const std::string start = helpFile + (french ? "::/fr/start.html" : "::/en/start.html");
        open(GetDesktopWindow(), basic::toWide(start).c_str(), kDisplayTopic, 0);
    }
}

const basic::Regional& WindowsPlatform::regional() {
    regional_.decimal = localeText(LOCALE_SDECIMAL);
    regional_.thousands = localeText(LOCALE_STHOUSAND);
    return regional_;
}

void WindowsPlatform::initCommonControls() {
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES | ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
}

}  // namespace addin
