#include "desk/shell/linux_platform.h"

#include "basic/error.h"
#include "basic/path.h"
#include "basic/text.h"
#include "desk/shell/help_pages.h"
#include "desk/shell/html_text.h"
#include "desk/shell/install_folder.h"
#include "desk/shell/process.h"
#include "desk/shell/surroundings.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace shell {

namespace fs = std::filesystem;

LinuxPlatform::LinuxPlatform(fs::path installFolder, basic::Regional regional, Tell tell, ShowPage showPage)
    : installFolder_(std::move(installFolder)),
      regional_(std::move(regional)),
      tell_(std::move(tell)),
      showPage_(std::move(showPage)) {}

std::optional<platform::RegistryValue> LinuxPlatform::queryRegistry(platform::RegistryRoot root,
                                                                    std::string_view keyPath,
                                                                    std::string_view valueName) {
    const bool known = root == platform::RegistryRoot::LocalMachine &&
                       basic::equalIgnoringCase(keyPath, "Software\\Merovane\\Vorlane\\1.0") &&
                       basic::equalIgnoringCase(valueName, "InstallPath");
    if (!known) return std::nullopt;
    return platform::RegistryValue{platform::kRegistryString, installFolder_.string()};
}

std::vector<std::string> LinuxPlatform::folderFiles(const std::string& folder) {
    std::error_code error, unseen;
    std::vector<std::string> files;
    // A name that leads nowhere, to itself or where we may not look, a pipe or a device is no file.
    for (const fs::directory_entry& entry : basic::folderEntries(folder, error)) {
        if (entry.is_regular_file(unseen)) files.push_back(entry.path().string());
    }
    if (error) throw basic::Error(basic::kPathNotFound, "Path not found: " + folder);
    std::sort(files.begin(), files.end());
    return files;
}

std::optional<platform::FileState> LinuxPlatform::fileState(const std::string& path) {
    struct stat found {};
    if (stat(path.c_str(), &found) != 0 || !S_ISREG(found.st_mode)) return std::nullopt;
    // The time of the last change of anything: a copy's own times can be set back, this one can't.
    const auto changed =
        std::chrono::seconds(found.st_ctim.tv_sec) + std::chrono::nanoseconds(found.st_ctim.tv_nsec);
    return platform::FileState{std::chrono::system_clock::time_point(changed),
                               static_cast<std::uint64_t>(found.st_size), found.st_ino};
}

std::string LinuxPlatform::joinPath(std::string_view folder, std::string_view name) {
    return std::string(folder) + "/" + std::string(name);
}

std::string LinuxPlatform::baseName(std::string_view path) { return fs::path(path).stem().string(); }

std::string LinuxPlatform::ownFolder() { return programFile().parent_path().string(); }

void LinuxPlatform::openDocument(const std::string& document, const std::string&, const std::string&) {
    const bool hasDisplay =
        !readEnvironment("DISPLAY").empty() || !readEnvironment("WAYLAND_DISPLAY").empty();
    // Its name could pass for an option; xdg-open doesn't know "--".
    const std::string name = document.starts_with('-') ? "./" + document : document;
    if (hasDisplay && startProgram({"xdg-open", name})) return;
    tell_(document);
}

void LinuxPlatform::showHelp(const std::string& helpFile, std::optional<std::int32_t> context) {
    // The pages lie in a folder beside the place of the compiled file, which is for other systems.
    const fs::path folder = fs::path(helpFile).parent_path();
    std::string language;
    try {
        language = storedLanguage(folder);
    } catch (const basic::Error&) {
        // Without settings the help speaks the language that it has for any other.
    }
    const std::optional<fs::path> page = helpPage(folder / "help", context, language);
    if (!page) {
        tell_("There is no help page" + (context ? " for topic " + std::to_string(*context) : std::string()) +
              " in " + (folder / "help").string());
        return;
    }
    if (showPage_ && showPage_(*page)) return tell_("[help: " + page->string() + "]");
    std::ifstream file(*page, std::ios::binary);
    const std::string html{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    tell_("[help: " + page->parent_path().filename().string() + "/" + page->filename().string() + "]\n" +
          htmlToText(html) + "[end of help]");
}

}  // namespace shell
