#pragma once

#include <string>
#include <string_view>

namespace basic {

/// The system's single-byte code page, Windows-1252, as the settings, language and data files use it.

/// Bytes of a file as UTF-8. The five bytes that the code page leaves open become the control characters
/// of their number.
std::string fromCodePage(std::string_view bytes);
/// Text as bytes for a file; a character that the code page lacks becomes "?". A byte that was no UTF-8
/// stays.
std::string toCodePage(std::string_view text);

}  // namespace basic
