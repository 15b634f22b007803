#pragma once

#include <string_view>

namespace dxf {

/// Releases of the drawing format, in their order, so that they compare with `<`. Releases before R9 read as
/// R9.
enum class Version { R9, R10, R12, R13, R14, R2000, R2004, R2007, R2010, R2013, R2018 };

/// The release that an $ACADVER text such as "AC1015" stands for: between two known numbers the older one,
/// beyond the last one R2018, and R12 for a text that is no version at all (as for a file without a header).
Version versionFromText(std::string_view acadVer);
/// Whether the text is one of the numbers that the format's releases have used.
bool isKnownVersion(std::string_view acadVer);
/// The release's name for messages, such as "R2000".
std::string_view versionName(Version version);

}  // namespace dxf
