// Finding, replacing and trimming within strings. Positions count characters from 0.

#include "basic/text.h"
#include "desk/lisp/call.h"

namespace lisp {

namespace {

/// A string as characters, for the functions that give or take positions.
std::u32string characters(const std::string& text) {
    std::u32string decoded;
    for (std::size_t position = 0; position < text.size();) decoded += basic::nextCharacter(text, position);
    return decoded;
}

std::string encoded(std::u32string_view text) {
    std::string bytes;
    for (const char32_t character : text) basic::appendCharacter(bytes, character);
    return bytes;
}

/// The optional start behind the other arguments; beyond the text's end it raises an error.
std::size_t startAt(Call& call, std::size_t index, std::size_t size) {
    if (!call.has(index) || call[index].isNil()) return 0;
    const std::int32_t start = call.integer(index);
    if (start < 0 || static_cast<std::size_t>(start) > size) throw badArgumentValue("position", call[index]);
    return static_cast<std::size_t>(start);
}

Value positionOrNil(std::size_t found) {
    return found == std::u32string::npos ? Value() : Value(static_cast<std::int32_t>(found));
}

/// (vl-string-search pattern text [start])
Value search(Call& call) {
    const std::u32string text = characters(call.text(1));
    return positionOrNil(text.find(characters(call.text(0)), startAt(call, 2, text.size())));
}

/// (vl-string-subst new pattern text [start]): the first occurrence only.
Value substitute(Call& call) {
    std::u32string text = characters(call.text(2));
    const std::u32string pattern = characters(call.text(1));
    const std::size_t found = text.find(pattern, startAt(call, 3, text.size()));
    if (found == std::u32string::npos) return call[2];
    return encoded(text.replace(found, pattern.size(), characters(call.text(0))));
}

/// (vl-string-trim set text): without the characters of `set` at both ends.
Value trim(Call& call) {
    const std::u32string set = characters(call.text(0));
    const std::u32string text = characters(call.text(1));
    const std::size_t first = text.find_first_not_of(set);
    if (first == std::u32string::npos) return std::string();
    return encoded(std::u32string_view(text).substr(first, text.find_last_not_of(set) - first + 1));
}

}  // namespace

SubrTable stringSearchFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"VL-STRING-SEARCH", 2, 3, search},
        {"VL-STRING-SUBST", 3, 4, substitute},
        {"VL-STRING-TRIM", 2, 2, trim},
    };
    return kTable;
}

}  // namespace lisp
