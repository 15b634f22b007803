#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <unistd.h>

namespace fuzz {

inline std::string_view text(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

inline std::string readSample(const char* name) {
    std::ifstream file(std::string(VORLANE_ROOT "/samples/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A folder of this process, gone at its end.
class Folder {
  public:
    Folder() : path_(std::filesystem::temp_directory_path() / ("vorlane-fuzz-" + std::to_string(getpid()))) {
        std::filesystem::create_directories(path_);
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string write(const char* name, std::string_view bytes) const {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        return file(name);
    }
    std::string file(const char* name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_;
};

/// What must hold whatever the bytes: else the fuzzer keeps them.
inline void require(bool holds) {
    if (!holds) std::abort();
}

}  // namespace fuzz
