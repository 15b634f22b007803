#pragma once

#include <cstdint>
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

/// What tells one state of a file from another; all zero where there is no file.
struct FileStamp {
    std::uint64_t device = 0, node = 0, size = 0;
    std::int64_t seconds = 0, nanoseconds = 0;  ///< of its last change
    bool operator==(const FileStamp&) const = default;
};
FileStamp stampOf(const std::string& path);

/// What a user should know of a save.
struct Saved {
    bool inPlace = false;     ///< the folder takes no new files, so the file itself was written
    bool otherNames = false;  ///< the old file had other names (hard links), which go on naming the old one
};

/// Writes the pieces one behind the other to a new file beside `path`, flushes it and renames it over `path`:
/// whatever fails, the file of before is there as it was and no other file is left. A symbolic link stays and
/// its target is replaced; permission bits, access lists and extended attributes (and the owner, where we
/// may) stay as they were. Where the folder takes no new file but the file may be written, it is written in
/// place after a copy went to `backupFolder`, which goes when the save has succeeded; an empty one refuses
/// this. Raises basic::Error: kDiskFull, kPermissionDenied, kPathNotFound, kPathFileAccess (a folder or a
/// device), kBadFileName, kDeviceError.
Saved saveAtomically(const std::string& path, std::span<const std::string_view> pieces,
                     const std::string& backupFolder = {});

}  // namespace dxf
