#pragma once

#include <string>
#include <string_view>

namespace basic {

/// A text as a terminal or a window may show it: control characters as "^[" or "\x9B", characters that turn
/// the direction of writing or end a line as "\U+202E". Line feeds and tabs stay, and what is no UTF-8 but
/// for the bytes that some terminals take for controls.
std::string shownText(std::string_view text);

/// What a text that was shown means after a user edited it to `edited`: what the edit left alone at both ends
/// is what it was before.
std::string meantText(std::string_view before, std::string_view edited);

}  // namespace basic
