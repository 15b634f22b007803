#include "desk/shell/surroundings.h"

#include "basic/error.h"

#include <cstdlib>

namespace shell {

namespace fs = std::filesystem;

namespace {

std::string firstSet(const ReadVariable& variable, const char* category) {
    for (const char* name : {"LC_ALL", category, "LANG"}) {
        if (std::string value = variable(name); !value.empty()) return value;
    }
    return {};
}

}  // namespace

std::string readEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

bool isFrenchDesktop(const ReadVariable& variable) {
    return firstSet(variable, "LC_MESSAGES").starts_with("fr");
}

std::string languageByCode(std::string_view code) {
    if (code == "fr") return "Fran\u00E7ais";
    return code == "en" ? "English" : "";
}

std::optional<basic::Regional> regionalByName(std::string_view name) {
    if (name == "fr") return basic::Regional::french();
    if (name == "en") return basic::Regional::english();
    return std::nullopt;
}

basic::Regional desktopRegional(const ReadVariable& variable) {
    return firstSet(variable, "LC_NUMERIC").starts_with("fr") ? basic::Regional::french()
                                                              : basic::Regional::english();
}

fs::path installFolder(const ReadVariable& variable) {
    // An XDG path counts only when it is absolute.
    if (const fs::path data = variable("XDG_DATA_HOME"); data.is_absolute()) return data / "vorlane";
    if (const std::string home = variable("HOME"); !home.empty())
        return fs::path(home) / ".local/share/vorlane";
    throw basic::Error(basic::kPathNotFound, "No install folder: neither XDG_DATA_HOME nor HOME is set");
}

fs::path stateFolder(const ReadVariable& variable) {
    if (const fs::path state = variable("XDG_STATE_HOME"); state.is_absolute()) return state / "vorlane";
    if (const std::string home = variable("HOME"); !home.empty())
        return fs::path(home) / ".local/state/vorlane";
    return {};
}

fs::path programFile() {
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored);
}

fs::path resourceFolder() {
    // Where nobody tells the running program's file, such as in a bare root without /proc, the usual place
    // serves.
    std::error_code ignored;
    for (const fs::path& folder :
         {programFile().parent_path().parent_path() / "share/vorlane", fs::path(VORLANE_RESOURCES)}) {
        if (fs::is_directory(folder / "languages", ignored)) return folder;
    }
    return "/usr/share/vorlane";
}

}  // namespace shell
