#include "desk/console/start_window.h"

#include "desk/shell/surroundings.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace console {

namespace {

std::string windowProgram() { return (shell::programFile().parent_path() / "vorlane-window").string(); }

/// Whether lines come in by a pipe or a file. A program started from a desktop's menu has the null device.
bool hasInput() {
    struct stat status = {};
    return fstat(STDIN_FILENO, &status) == 0 && !S_ISCHR(status.st_mode);
}

}  // namespace

bool wantsWindow(const jobs::Arguments& arguments) {
    const bool display =
        !shell::readEnvironment("DISPLAY").empty() || !shell::readEnvironment("WAYLAND_DISPLAY").empty();
    return display && !arguments.has("--console") && !arguments.has("--script") && !hasInput() &&
           access(windowProgram().c_str(), X_OK) == 0;
}

void startWindow(const std::vector<std::string>& words) {
    std::vector<std::string> all = words;
    all.insert(all.begin(), windowProgram());
    std::vector<char*> list;
    list.reserve(all.size() + 1);
    for (std::string& word : all) list.push_back(word.data());
    list.push_back(nullptr);
    execv(list[0], list.data());
}

}  // namespace console
