#include "desk/dxf/file_error.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace dxf {

FileError fileError(int systemError) {
    switch (systemError) {
        case ENOSPC:
        case EDQUOT:
            return {basic::kDiskFull, "the disk is full"};
        case EFBIG:
            return {basic::kDiskFull, "the file would be larger than allowed here"};
        case EACCES:
        case EPERM:
            return {basic::kPermissionDenied, "permission denied"};
        case EROFS:
            return {basic::kPermissionDenied, "the disk is write-protected"};
        case ENOENT:
        case ENOTDIR:
            return {basic::kPathNotFound, "there is no such folder"};
        case EISDIR:
            return {basic::kPathFileAccess, "this is a folder, not a file"};
        case ENAMETOOLONG:
        case ELOOP:
        case EINVAL:
            return {basic::kBadFileName, "this can't be a file name"};
        default:
            return {basic::kDeviceError, std::system_category().message(systemError)};
    }
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

Descriptor::~Descriptor() { close(); }

int Descriptor::close() {
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor >= 0 && ::close(descriptor) != 0 ? errno : 0;
}

}  // namespace dxf
