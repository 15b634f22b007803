#include "desk/shell/dwg_converter.h"

#include "basic/error.h"
#include "desk/shell/process.h"
#include "desk/shell/surroundings.h"
#include "desk/shell/temporary_folder.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace shell {

namespace fs = std::filesystem;

namespace {

/// Ours for Node: beside the delivered resources or in the tree that they came from. Nothing where it or what
/// it needs isn't installed.
std::optional<std::string> ownConverter() {
    for (const fs::path& folder : {resourceFolder() / "dwg", resourceFolder().parent_path() / "tools/dwg"}) {
        std::error_code ignored;
        if (fs::is_directory(folder / "node_modules", ignored) && fs::exists(folder / "dwg2dxf.mjs", ignored))
            return (folder / "dwg2dxf.mjs").string();
    }
    return std::nullopt;
}

/// The command that converts `source` to `made`, of the converter that comes first.
std::vector<std::string> conversion(const fs::path& source, const fs::path& made) {
    if (const auto dwg2dxf = findProgram("dwg2dxf"))
        return {*dwg2dxf, "-y", "-o", made.string(), source.string()};
    const auto node = findProgram("node");
    const auto own = ownConverter();
    if (node && own) return {*node, *own, source.string(), made.string()};
    if (const auto oda = findProgram("ODAFileConverter")) {
        return {*oda, source.parent_path().string(), made.parent_path().string(), "ACAD2018", "DXF", "0",
                "1",  source.filename().string()};
    }
    throw basic::Error(
        basic::kFileNotFound,
        source.string() +
            " is a DWG file, and no converter is installed: \"tools/setup.sh --dwg\" installs one, "
            "or dwg2dxf (of LibreDWG) or ODAFileConverter is needed on PATH");
}

/// A minute is far more than a drawing needs: a converter that takes longer hangs.
constexpr const char* kSecondsAllowed = "60";
constexpr int kTimedOut = 124;

/// What a program told last.
std::string lastLine(std::string_view printed) {
    const std::size_t end = printed.find_last_not_of(" \r\n");
    if (end == std::string_view::npos) return "the converter doesn't say why";
    const std::string_view text = printed.substr(0, end + 1);
    return std::string(text.substr(text.find_last_of('\n') + 1));
}

}  // namespace

std::string convertDwg(const std::string& dwgPath) {
    const fs::path source = fs::absolute(dwgPath);
    if (std::error_code error; !fs::is_regular_file(source, error))
        throw basic::Error(basic::kFileNotFound, dwgPath + " isn't there");
    const TemporaryFolder folder("vorlane-dwg");
    const fs::path made = folder.path() / (source.stem().string() + ".dxf");
    std::vector<std::string> command = conversion(source, made);
    // Debian's own guard: ends the program when its time is over.
    if (const auto timeout = findProgram("timeout"))
        command.insert(command.begin(), {*timeout, "--kill-after=5", kSecondsAllowed});
    std::string printed;
    const int status = runProgram(command, &printed);
    const fs::path result = folder.path().string() + ".dxf";
    std::error_code error, ignored;
    fs::rename(made, result, error);
    if (status != 0 || error) {
        fs::remove(result, ignored);
        throw basic::Error(basic::kDeviceError,
                           dwgPath + ": the conversion to DXF failed: " +
                               (status == kTimedOut ? std::string("no end after ") + kSecondsAllowed + " s"
                                                    : lastLine(printed)));
    }
    return result.string();
}

}  // namespace shell
