#include "basic/path.h"

namespace basic {

namespace fs = std::filesystem;

std::vector<fs::directory_entry> folderEntries(const fs::path& folder, std::error_code& error) {
    std::vector<fs::directory_entry> entries;
    error.clear();
    try {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) entries.push_back(entry);
    } catch (const fs::filesystem_error& failure) {
        error = failure.code();
        entries.clear();
    }
    return entries;
}

}  // namespace basic
