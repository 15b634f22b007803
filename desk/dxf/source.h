#pragma once

#include "desk/dxf/format.h"
#include "desk/dxf/tag_reader.h"

#include <memory>
#include <string>
#include <string_view>

namespace dxf {

/// A drawing file's bytes, read once and never changed, with what was found out about their format.
class Source {
  public:
    /// Reads a file. Raises ReadErrors: kFileNotFound, kPathNotFound, kPathFileAccess for a folder,
    /// kPermissionDenied, kDeviceError, and kInvalidFileFormat for a file that is no DXF drawing.
    static Source open(const std::string& path);
    /// Takes a copy of bytes from elsewhere; `path` is for messages.
    static Source fromBytes(std::string_view bytes, std::string path);

    std::string_view bytes() const { return {bytes_.get(), size_}; }
    const Format& format() const { return *format_; }
    const std::string& path() const { return *path_; }
    /// For readers and scanners; valid as long as the source lives, moves included.
    TagSource tags() const { return {bytes(), format_.get(), *path_}; }

  private:
    Source(std::unique_ptr<char[]> bytes, std::size_t size, std::string path);

    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
    std::unique_ptr<const std::string> path_;
    std::unique_ptr<const Format> format_;
};

}  // namespace dxf
