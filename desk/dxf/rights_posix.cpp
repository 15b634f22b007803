#include "desk/dxf/rights.h"

#include <cerrno>
#include <string>
#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace dxf {

namespace {

/// In a file with an access list, the group's permission bits are the list's mask.
constexpr std::string_view kAccessList = "system.posix_acl_access";

std::vector<std::string> attributeNames(const std::string& file) {
    std::vector<std::string> names;
    const ssize_t size = listxattr(file.c_str(), nullptr, 0);
    if (size <= 0) return names;  // none, or a file system without any
    std::string list(static_cast<std::size_t>(size), '\0');
    const ssize_t length = listxattr(file.c_str(), list.data(), list.size());
    for (std::size_t at = 0; length > 0 && at < static_cast<std::size_t>(length);
         at += names.back().size() + 1)
        names.emplace_back(list.c_str() + at);
    return names;
}

bool copyAttribute(const std::string& from, int to, const std::string& name) {
    const ssize_t size = getxattr(from.c_str(), name.c_str(), nullptr, 0);
    if (size < 0) return false;
    std::vector<char> value(static_cast<std::size_t>(size));
    const ssize_t length = getxattr(from.c_str(), name.c_str(), value.data(), value.size());
    return length >= 0 && fsetxattr(to, name.c_str(), value.data(), static_cast<std::size_t>(length), 0) == 0;
}

/// The group's bits cut down to those of the others.
mode_t withoutGroup(mode_t mode) { return mode & (~mode_t{S_IRWXG} | ((mode & S_IRWXO) << 3)); }

}  // namespace

int copyRights(const std::string& from, const struct stat& old, int to) {
    mode_t mode = old.st_mode & 07777;
    if (fchown(to, old.st_uid, old.st_gid) != 0 && fchown(to, static_cast<uid_t>(-1), old.st_gid) != 0)
        mode = withoutGroup(mode);
    const std::vector<std::string> names = attributeNames(from);
    bool hasList = false;
    for (const std::string& name : names) hasList = hasList || name == kAccessList;
    // The change of owner can clear bits, so they come behind it; setting the list sets the group's bits.
    if (fchmod(to, hasList ? withoutGroup(mode) : mode) != 0) return errno;
    // What we may not set, such as a security label, is the system's own affair.
    for (const std::string& name : names) copyAttribute(from, to, name);
    return 0;
}

mode_t bitsOfNewFile() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

}  // namespace dxf
