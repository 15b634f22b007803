#include "desk/shell/picture_program.h"

#include "basic/error.h"
#include "basic/text.h"
#include "desk/drawing/drawing.h"
#include "desk/shell/process.h"
#include "desk/shell/surroundings.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

namespace shell {

namespace fs = std::filesystem;

namespace {

constexpr const char* kProgram = "vorlane-picture";

std::optional<std::string> pictureProgram() {
    const fs::path beside = programFile().parent_path() / kProgram;
    std::error_code ignored;
    if (fs::exists(beside, ignored)) return beside.string();
    return findProgram(kProgram);
}

/// The drawing's bytes in a file of their own, gone with this.
class TemporaryDrawing {
  public:
    explicit TemporaryDrawing(const drawing::Drawing& drawing) {
        std::error_code error;
        std::string pattern = (fs::temp_directory_path(error) / "vorlane-picture-XXXXXX").string();
        if (error || mkdtemp(pattern.data()) == nullptr) {
            throw basic::Error(basic::kDeviceError, "No temporary folder for the picture");
        }
        folder_ = pattern;
        std::ofstream stream(file(), std::ios::binary);
        stream << drawing.savedBytes();
        stream.flush();
        if (!stream) throw basic::Error(basic::kDiskFull, "No room for the picture's copy of the drawing");
    }
    ~TemporaryDrawing() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    TemporaryDrawing(const TemporaryDrawing&) = delete;
    TemporaryDrawing& operator=(const TemporaryDrawing&) = delete;

    fs::path file() const { return folder_ / "drawing.dxf"; }

  private:
    fs::path folder_;
};

}  // namespace

void writePicture(const drawing::Drawing& drawing, const std::string& path,
                  const std::vector<std::string>& options) {
    const std::string ending = basic::toLower(fs::path(path).extension().string());
    if (ending != ".png" && ending != ".svg" && ending != ".pdf") {
        throw basic::Error(basic::kBadFileName, "A picture's name ends in .png, .svg or .pdf: " + path);
    }
    const std::optional<std::string> program = pictureProgram();
    if (!program) {
        throw basic::Error(basic::kFileNotFound,
                           "The program vorlane-picture, which draws pictures, isn't installed");
    }
    const TemporaryDrawing copy(drawing);
    std::vector<std::string> command{*program, copy.file().string(), path};
    command.insert(command.end(), options.begin(), options.end());
    if (runProgram(command) != 0) {
        throw basic::Error(basic::kPathFileAccess, path + ": the picture couldn't be written");
    }
}

}  // namespace shell
