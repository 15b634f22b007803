#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace dxf {

/// A file's bytes, read once. With read(2) and not mapped, so that a file cut short under us does no harm.
struct FileBytes {
    std::unique_ptr<char[]> data;
    std::size_t size = 0;
};

/// Raises ReadErrors with the number of what went wrong: kFileNotFound, kPathNotFound, kPathFileAccess (a
/// folder or a device), kPermissionDenied, kBadFileName, kDeviceError.
FileBytes readFile(const std::string& path);

/// Writes the pieces one behind the other to a new file beside `path`, flushes it and renames it over `path`:
/// whatever fails, the file of before is there as it was and no other file is left. A symbolic link stays and
/// its target is replaced; permission bits (and the owner, where we may) stay as they were. Raises
/// basic::Error: kDiskFull, kPermissionDenied, kPathNotFound, kPathFileAccess (a folder or a device),
/// kBadFileName, kDeviceError.
void saveAtomically(const std::string& path, std::span<const std::string_view> pieces);

}  // namespace dxf
