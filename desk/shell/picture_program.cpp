#include "desk/shell/picture_program.h"

#include "basic/error.h"
#include "basic/text.h"
#include "desk/drawing/drawing.h"
#include "desk/shell/process.h"
#include "desk/shell/surroundings.h"
#include "desk/shell/temporary_folder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

namespace shell {

namespace fs = std::filesystem;

namespace {

constexpr const char* kProgram = "vorlane-picture";

std::string pictureProgram() {
    const fs::path beside = programFile().parent_path() / kProgram;
    std::error_code ignored;
    if (fs::exists(beside, ignored)) return beside.string();
    if (const std::optional<std::string> found = findProgram(kProgram)) return *found;
    throw basic::Error(
        basic::kFileNotFound,
        "The program vorlane-picture, which draws pictures, isn't installed: it comes with the window "
        "(package vorlane-window)");
}

/// The drawing's bytes in a file of their own, gone with this.
class TemporaryDrawing {
  public:
    explicit TemporaryDrawing(const drawing::Drawing& drawing) {
        std::ofstream stream(file(), std::ios::binary);
        stream << drawing.savedBytes();
        stream.flush();
        if (!stream) throw basic::Error(basic::kDiskFull, "No room for the picture's copy of the drawing");
    }
    fs::path file() const { return folder_.path() / "drawing.dxf"; }

  private:
    TemporaryFolder folder_{"vorlane-picture"};
};

/// The program's own words about a failure, with the picture's name in place of its own.
std::string reasonIn(const std::string& printed, const std::string& path) {
    const std::string mark = std::string(kProgram) + ": ";
    const std::size_t begin = printed.find(mark);
    if (begin == std::string::npos) return path + ": the picture couldn't be written";
    std::string line = printed.substr(begin + mark.size());
    line.resize(std::min(line.find('\n'), line.size()));
    return line.starts_with(path) ? line : path + ": " + line;
}

/// Reads what the program prints after a picture: "FILE: not drawn 2, hidden 1", then a line a type,
/// "  not drawn: MESH 2".
PictureGaps readGaps(const std::string& printed) {
    constexpr std::string_view kHidden = ", hidden ";
    constexpr std::string_view kNotDrawn = "  not drawn: ";
    PictureGaps gaps;
    std::istringstream lines(printed);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(kNotDrawn)) {
            std::istringstream words(line.substr(kNotDrawn.size()));
            auto& [type, count] = gaps.notDrawn.emplace_back();
            words >> type >> count;
        } else if (const std::size_t at = line.rfind(kHidden); at != std::string::npos) {
            gaps.hidden = std::strtoul(line.c_str() + at + kHidden.size(), nullptr, 10);
        }
    }
    return gaps;
}

}  // namespace

bool isPictureFile(std::string_view path) {
    const std::string ending = basic::toLower(fs::path(path).extension().string());
    return ending == ".png" || ending == ".svg" || ending == ".pdf";
}

void requirePictureProgram() { pictureProgram(); }

PictureGaps writePicture(const drawing::Drawing& drawing, const std::string& path,
                         const std::vector<std::string>& options) {
    if (!isPictureFile(path))
        throw basic::Error(basic::kBadFileName, "A picture's name ends in .png, .svg or .pdf: " + path);
    const std::string program = pictureProgram();
    const TemporaryDrawing copy(drawing);
    std::vector<std::string> command{program};
    command.insert(command.end(), options.begin(), options.end());
    command.insert(command.end(), {"--", copy.file().string(), path});
    std::string printed;
    if (runProgram(command, &printed) != 0)
        throw basic::Error(basic::kPathFileAccess, reasonIn(printed, path));
    return readGaps(printed);
}

}  // namespace shell
