#pragma once

#include "basic/error.h"

#include <cstdint>
#include <string>

namespace dxf {

/// What an operating system's error number means to the user.
struct FileError {
    std::int32_t number;
    std::string text;
};
FileError fileError(int systemError);

/// The folder that a path's file lies in, "." for a bare name.
std::string folderOf(const std::string& path);

/// Closes a file descriptor at the end of its scope.
class Descriptor {
  public:
    explicit Descriptor(int descriptor) : descriptor_(descriptor) {}
    ~Descriptor();
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }
    /// Closes now and returns the system's error number, 0 for none.
    int close();

  private:
    int descriptor_;
};

}  // namespace dxf
