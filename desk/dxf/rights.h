#pragma once

#include <string>
#include <sys/stat.h>

namespace dxf {

/// Gives a new file, which only its owner may use so far, what the file in whose place it comes had: owner
/// and group where we may, permission bits, access lists and other extended attributes. Rights never widen:
/// where the group or an access list can't be kept, the group may do no more than anybody. Returns the
/// system's error number, 0 for none.
int copyRights(const std::string& from, const struct stat& old, int to);

/// The permission bits that a new file gets by the user's mask.
mode_t bitsOfNewFile();

}  // namespace dxf
