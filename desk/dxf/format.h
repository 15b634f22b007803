#pragma once

#include "desk/dxf/encoding.h"
#include "desk/dxf/version.h"

#include <string>
#include <string_view>

namespace dxf {

/// How one drawing's groups stand in its bytes. What is written anew follows the file's own habits.
struct Format {
    bool binary = false;
    bool wideCodes = true;        ///< binary: group codes of two bytes (R13 on), not of one with an escape
    bool carriageReturns = true;  ///< ASCII: lines end in "\r\n", not in "\n"
    bool paddedCodes = true;      ///< ASCII: group codes right-aligned to three characters ("  0"), not bare
    bool paddedIntegers = false;  ///< ASCII: integers right-aligned (to six characters, 32-bit ones to nine)
    Version version = Version::R12;
    Encoding encoding = Encoding::codePage("ANSI_1252");
    std::string versionName;   ///< $ACADVER as the file has it; empty where it has none
    std::string codePageName;  ///< $DWGCODEPAGE as the file has it; empty where it has none
    std::size_t start = 0;     ///< offset of the first group, behind a binary sentinel or a byte order mark

    std::string_view newline() const { return carriageReturns ? "\r\n" : "\n"; }
    /// Whether entities carry subclass markers and owners.
    bool hasSubclasses() const { return version >= Version::R13; }
};

/// The 22 bytes that begin a binary DXF file.
inline constexpr std::string_view kBinarySentinel{"AutoCAD Binary DXF\r\n\x1a\0", 22};

/// Finds out the format from the file's first bytes and its HEADER section. Bytes that are no DXF drawing
/// raise a ReadError that says what they are instead; `path` is for its text.
Format detectFormat(std::string_view bytes, std::string_view path);

}  // namespace dxf
