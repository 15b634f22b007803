#include "desk/shell/dwg_converter.h"

#include "basic/error.h"
#include "desk/shell/process.h"

#include <cstdlib>
#include <filesystem>

namespace shell {

namespace fs = std::filesystem;

namespace {

fs::path temporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "vorlane-dwg-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) {
        throw basic::Error(basic::kDeviceError, "No temporary folder for the conversion of a DWG file");
    }
    return pattern;
}

}  // namespace

std::string convertDwg(const std::string& dwgPath) {
    const auto dwg2dxf = findProgram("dwg2dxf");
    const auto oda = findProgram("ODAFileConverter");
    if (!dwg2dxf && !oda) {
        throw basic::Error(basic::kFileNotFound,
                           dwgPath +
                               " is a DWG file, and no converter is installed: dwg2dxf (of LibreDWG) or "
                               "ODAFileConverter is needed on PATH");
    }
    const fs::path folder = temporaryFolder();
    const fs::path source = fs::absolute(dwgPath);
    const fs::path made = folder / (source.stem().string() + ".dxf");
    const int status = dwg2dxf ? runProgram({*dwg2dxf, "-y", "-o", made.string(), source.string()})
                               : runProgram({*oda, source.parent_path().string(), folder.string(), "ACAD2018",
                                             "DXF", "0", "1", source.filename().string()});
    const fs::path result = folder.string() + ".dxf";
    std::error_code error;
    fs::rename(made, result, error);
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    if (status != 0 || error) {
        fs::remove(result, ignored);
        throw basic::Error(basic::kDeviceError, dwgPath + ": the conversion to DXF failed");
    }
    return result.string();
}

}  // namespace shell
