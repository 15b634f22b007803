#include "faces/text/completions.h"

#include "basic/path.h"
#include "basic/text.h"
#include "faces/text/control_names.h"
#include "forms/controls.h"
#include "forms/find_entry.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace text_face {

namespace fs = std::filesystem;

std::vector<std::string> actCompletions(const forms::Form& form, std::string_view beginning) {
    std::vector<std::string> lines;
    const std::size_t sign = beginning.find_first_of("=:");
    if (sign != std::string_view::npos) {
        const std::string name(basic::trim(beginning.substr(0, sign)));
        const forms::Control* control = form.findControl(name);
        if (control == nullptr) return lines;
        std::string before(beginning.substr(0, sign + 1));
        before += ' ';
        for (const std::string& text : forms::entryTexts(*control)) lines.push_back(before + text);
        return lines;
    }
    lines = reachableNames(form);
    for (const forms::Control* control : form.controls()) {
        const forms::Kind kind = control->kind();
        const bool captioned =
            kind == forms::Kind::Button || kind == forms::Kind::CheckBox || kind == forms::Kind::OptionButton;
        if (captioned && control->shown()) lines.push_back(readCaption(control->caption()));
    }
    lines.insert(lines.end(), {"show", "close", "help", "key F1", "key ESCAPE"});
    return lines;
}

std::vector<std::string> fileCompletions(std::string_view before, std::string_view rest,
                                         const std::vector<std::string>& extensions) {
    const std::size_t slash = rest.rfind('/');
    const std::string folder(slash == std::string_view::npos ? std::string_view()
                                                             : rest.substr(0, slash + 1));
    std::vector<std::string> lines;
    std::error_code error;
    for (const auto& entry :
         basic::folderEntries(folder.empty() ? fs::path(".") : expandHome(folder), error)) {
        const std::string name = entry.path().filename().string();
        const bool isFolder = entry.is_directory(error);
        const std::string extension = entry.path().extension().string();
        const bool wanted = extensions.empty() ||
                            std::any_of(extensions.begin(), extensions.end(), [&](const std::string& one) {
                                return basic::equalIgnoringCase(one, extension);
                            });
        if (name.starts_with('.') || (!isFolder && !wanted)) continue;
        std::string& line = lines.emplace_back(before);
        line.append(folder).append(name);
        if (isFolder) line += '/';
    }
    return lines;
}

fs::path expandHome(const std::string& path) {
    const char* home = std::getenv("HOME");
    if (home == nullptr || !(path == "~" || path.starts_with("~/"))) return path;
    return fs::path(std::string(home) + path.substr(1));
}

}  // namespace text_face
