#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace basic {

// Texts are UTF-8 on every system, file names on some aren't: each path goes to the standard library through
// these two.

inline std::filesystem::path toPath(std::string_view utf8) {
    const auto* begin = reinterpret_cast<const char8_t*>(utf8.data());
    return {begin, begin + utf8.size()};
}

inline std::string fromPath(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {reinterpret_cast<const char*>(text.data()), text.size()};
}

/// What stands in a folder, in no order; nothing and `error` where it can't be read.
std::vector<std::filesystem::directory_entry> folderEntries(const std::filesystem::path& folder,
                                                            std::error_code& error);

}  // namespace basic
