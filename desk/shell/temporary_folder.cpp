#include "desk/shell/temporary_folder.h"

#include "basic/error.h"

#include <cstdlib>

namespace shell {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder(const std::string& stem) {
    std::error_code error;
    std::string pattern = (fs::temp_directory_path(error) / (stem + "-XXXXXX")).string();
    if (error || mkdtemp(pattern.data()) == nullptr)
        throw basic::Error(basic::kPermissionDenied, pattern + ": this temporary folder can't be made");
    path_ = pattern;
    transient_.hold(pattern, dxf::Transient::Kind::Folder);
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace shell
