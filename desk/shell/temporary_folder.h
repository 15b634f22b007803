#pragma once

#include "desk/dxf/transient.h"

#include <filesystem>

namespace shell {

/// A new folder among the system's temporary files for this user alone, gone with this object, or with the
/// program should a signal end it.
class TemporaryFolder {
  public:
    /// The name begins with `stem`. Raises basic::Error where no folder can be made.
    explicit TemporaryFolder(const std::string& stem);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
    dxf::Transient transient_;
};

}  // namespace shell
