#pragma once

#include <string>
#include <string_view>

namespace basic {

// Texts as systems with wide characters of 16 bits take them: UTF-16 in a wstring. An ill-formed byte of a
// UTF-8 text travels as the lone surrogate of `nextCharacter` and comes back as that byte.

std::wstring toWide(std::string_view text);
std::string fromWide(std::wstring_view text);

}  // namespace basic
