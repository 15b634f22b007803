#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace shapes {

/// A stretch of a single-line text between two switches of its lines.
struct TextStretch {
    std::string text;
    bool underlined = false;
    bool overlined = false;
    bool struckOut = false;
};
/// A single-line text without its codes: %%u, %%o and %%k switch lines, %%d, %%p and %%c are the signs for
/// degree, plus or minus and diameter, %%nnn and \U+xxxx a character by number, %%% a percent sign.
std::vector<TextStretch> decodeLine(std::string_view content);

/// Reads such a code at `at`, where "%%" or "\U+" stands, and moves behind it. 0 where it is no character.
char32_t takeCharacterCode(std::string_view content, std::size_t& at);

}  // namespace shapes
