#pragma once

#include <string>
#include <string_view>

namespace basic {

// Texts inside the program are UTF-8. An ill-formed byte counts as one character of its own and is kept: it
// is given out as U+DC00 plus its value, and appending that gives the byte again.

/// The next character of `text` at `position`, which moves behind it.
char32_t nextCharacter(std::string_view text, std::size_t& position);
/// Appends one character as UTF-8.
void appendCharacter(std::string& text, char32_t character);

/// Capitals and small letters of the Latin, Greek and Cyrillic alphabets, the rest unchanged.
std::string toUpper(std::string_view text);
std::string toLower(std::string_view text);
/// The character that stands for both cases of a letter when case doesn't count.
char32_t foldCase(char32_t character);
/// Without the blanks (character 32) at both ends.
std::string_view trim(std::string_view text);

/// Equal without regard to case.
bool equalIgnoringCase(std::string_view left, std::string_view right);
/// Order of a text comparison in a user's lists: without regard to case, an accented letter beside its base
/// letter ("e" < "é" < "f"), punctuation and digits before letters. Negative, 0 or positive; 0 for
/// texts that differ in case alone.
int compareText(std::string_view left, std::string_view right);

/// Hash and equality without regard to ASCII case, for tables of names.
struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const;
};
struct NameEqual {
    using is_transparent = void;
    bool operator()(std::string_view left, std::string_view right) const;
};

/// `text` with each occurrence of `from` (not empty) replaced by `to`.
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace basic
