// A program in AutoCAD's place for the tests of the add-in: see docs/autocad.md.
//
//   stand_in DRAWING --script FILE --lisp vorlane.lsp [--regional fr|en] [--install FOLDER] [--refuse MEMBER]
//            [--then LINE] [--keep-registry] [--lock FILE] [--lenient | --hold] [--counts]
//
// --refuse makes a member of the host's objects fail until the script's end, --then carries out a line after
// it; --install writes the install folder into the registry unless --keep-registry; --lock keeps others from
// writing a file, as in a folder where the user may only read; --lenient answers what comes after the
// script's end, so that a script needn't know which boxes a failure brings; --hold leaves the dialog that is
// up at the end as it is.

#include "basic/path.h"
#include "basic/text.h"
#include "basic/wide.h"
#include "desk/console/text_prompter.h"
#include "windows/stand_in/host_session.h"

#include <chrono>
#include <fcntl.h>
#include <fstream>
#include <io.h>
#include <iostream>
#include <map>
#include <optional>

namespace {

constexpr int kNotStarted = 2;

using Options = std::map<std::string, std::string>;

Options readArguments(int argc, wchar_t** argv) {
    Options options;
    std::string name;
    for (int i = 1; i < argc; ++i) {
        const std::string word = basic::fromWide(argv[i]);
        if (word.starts_with("--")) {
            name = word;
            options[name] = "";
        } else {
            options[name] = word;
            name.clear();
        }
    }
    return options;
}

/// The user's settings for numbers, as the control panel would leave them, for this process and its DLLs.
void setRegional(const basic::Regional& regional) {
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, basic::toWide(regional.decimal).c_str());
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, basic::toWide(regional.thousands).c_str());
}

void setInstallFolder(const std::string& folder) {
    const std::wstring path = std::filesystem::absolute(basic::toPath(folder)).wstring();
    constexpr const wchar_t* kKey = L"Software\\Merovane\\Vorlane\\1.0";
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, kKey, L"InstallPath", REG_SZ, path.c_str(),
                    static_cast<DWORD>((path.size() + 1) * sizeof(wchar_t)));
}

/// Opens a file so that others may read it and not write it, until the program ends.
void lock(const std::string& file) {
    CreateFileW(basic::toPath(file).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0,
                nullptr);
}

stand_in::Story::Manner mannerOf(const Options& options) {
    using Manner = stand_in::Story::Manner;
    if (options.count("--hold") != 0) return Manner::Holding;
    return options.count("--lenient") != 0 ? Manner::Lenient : Manner::Strict;
}

int fail(std::ostream& output, const std::string& text, int code) {
    output.flush();
    std::cerr << "stand-in: " << text << "\n";
    return code;
}

void tellCounts(stand_in::HostSession& session, std::chrono::steady_clock::duration time) {
    const stand_in::AcadBorder& border = session.border();
    long calls = 0;
    std::cerr << "members";
    for (const auto& [member, count] : border.calls()) {
        std::cerr << ' ' << member;
        calls += count;
    }
    std::cerr << "\ncalls " << calls << ", given " << border.given() << ", taken " << border.taken() << ", "
              << std::chrono::duration_cast<std::chrono::milliseconds>(time).count() << " ms\n";
}

int run(Options options, std::ostream& output) {
    std::ifstream script(basic::toPath(options["--script"]));
    if (!script) return fail(output, "the script can't be read", kNotStarted);
    text_face::StreamLines lines(script, false);
    if (options.count("--keep-going") != 0) lines.keepGoing(std::cerr, "stand-in: ");
    console::TextPrompter prompter(lines, output);
    const basic::Regional regional =
        options["--regional"] == "fr" ? basic::Regional::french() : basic::Regional::english();
    setRegional(regional);
    if (options.count("--keep-registry") == 0) setInstallFolder(options["--install"]);
    if (options.count("--lock") != 0) lock(options["--lock"]);
    std::optional<stand_in::HostSession> session;
    try {
        session.emplace(basic::toPath(options["--lisp"]), regional, prompter, lines, output,
                        mannerOf(options));
        session->border().refuse(options["--refuse"]);
        session->open(options[""]);
    } catch (const basic::Error& error) {
        return fail(output, error.description(), kNotStarted);
    }
    const auto start = std::chrono::steady_clock::now();
    try {
        session->run();
        session->border().refuse("");
        if (options.count("--then") != 0) session->runOne(options["--then"]);
    } catch (const text_face::ScriptError& error) {
        return fail(output, error.what(), stand_in::Story::kStopped);
    }
    output.flush();
    if (options.count("--counts") != 0) tellCounts(*session, std::chrono::steady_clock::now() - start);
    return lines.failures() > 0 ? stand_in::Story::kStopped : 0;
}

/// What the shell's open action on an address starts in place of a browser.
int noteOpened(const Options& options) {
    std::ofstream("opened.txt", std::ios::app) << options.at("--opened") << "\n";
    return 0;
}

}  // namespace

/// Called by the help viewer of the tests.
extern "C" __declspec(dllexport) void WINAPI standInHelp(LPCWSTR file, UINT command, DWORD_PTR data) {
    constexpr UINT kContext = 0x000F;
    const std::string path = basic::fromWide(file);
    std::cout << "[help: " << path.substr(path.find_last_of('\\') + 1);
    if (command == kContext) std::cout << " " << data;
    std::cout << "]\n";
}

int wmain(int argc, wchar_t** argv) {
    const Options options = readArguments(argc, argv);
    if (options.count("--opened") != 0) return noteOpened(options);
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    // The host's own window, which the dialogs find as the active one.
    HWND window = CreateWindowExW(0, L"STATIC", L"AutoCAD's stand-in", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                  1000, 700, nullptr, nullptr, nullptr, nullptr);
    SetForegroundWindow(window);
    int code = 0;
    try {
        code = run(options, std::cout);
    } catch (const std::exception& failure) {
        code = fail(std::cout, failure.what(), stand_in::Story::kStopped);
    }
    std::cout.flush();
    // The add-in stays loaded to the end, as in AutoCAD.
    ExitProcess(static_cast<UINT>(code));
}
