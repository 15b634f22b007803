#pragma once

#include <array>
#include <string>
#include <string_view>

namespace basic {

/// The system's single-byte code page, as the settings, language and data files use it: Windows-1252, unless
/// the system has told another one.

/// The characters of the bytes from 0x80 on.
using CodePage = std::array<char32_t, 128>;
/// Windows-1252. The five bytes that it leaves open are the control characters of their number.
const CodePage& windows1252();
/// Makes another code page the system's, once, before any text is read.
void useCodePage(const CodePage& page);

/// Bytes of a file as UTF-8.
std::string fromCodePage(std::string_view bytes);
/// Text as bytes for a file; a character that the code page lacks becomes "?". A byte that was no UTF-8
/// stays.
std::string toCodePage(std::string_view text);

}  // namespace basic
