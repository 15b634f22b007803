#include "basic/shown_text.h"

#include "basic/text.h"

#include <cstdio>
#include <utility>
#include <vector>

namespace basic {

namespace {

bool isIn(char32_t character, char32_t first, char32_t last) {
    return character >= first && character <= last;
}

/// Marks, embeddings, overrides and isolates of the direction; the separators of lines and paragraphs.
bool turnsOrBreaks(char32_t character) {
    return character == 0x061C || isIn(character, 0x200E, 0x200F) || isIn(character, 0x2028, 0x202E) ||
           isIn(character, 0x2066, 0x2069);
}

/// The format by which a character is shown; null for one that stays.
const char* formatOf(char32_t character) {
    constexpr char32_t kStrayByte = 0xDC00;  // of nextCharacter
    if (isIn(character, 0x80, 0x9F) || isIn(character, kStrayByte + 0x80, kStrayByte + 0x9F))
        return "\\x%02X";
    return turnsOrBreaks(character) ? "\\U+%04X" : nullptr;
}

/// Appends the character of `text` at `position`, which moves behind it, as it is shown.
void appendShown(std::string& shown, std::string_view text, std::size_t& position) {
    const std::size_t start = position;
    const char32_t character = nextCharacter(text, position);
    if ((character < 0x20 && character != '\n' && character != '\t') || character == 0x7F) {
        shown += '^';
        shown += static_cast<char>(character ^ 0x40);
    } else if (const char* format = formatOf(character)) {
        char code[16];
        std::snprintf(code, sizeof code, format,
                      static_cast<unsigned>(isIn(character, 0xDC80, 0xDC9F) ? character & 0xFF : character));
        shown += code;
    } else {
        shown += text.substr(start, position - start);
    }
}

}  // namespace

std::string shownText(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) appendShown(shown, text, position);
    return shown;
}

std::string meantText(std::string_view before, std::string_view edited) {
    std::vector<std::pair<std::string_view, std::string>> pieces;  // a character, and how it is shown
    for (std::size_t position = 0; position < before.size();) {
        const std::size_t start = position;
        std::string shown;
        appendShown(shown, before, position);
        pieces.emplace_back(before.substr(start, position - start), std::move(shown));
    }
    std::string front, back;
    auto first = pieces.begin();
    for (; first != pieces.end() && edited.starts_with(first->second); ++first) {
        front += first->first;
        edited.remove_prefix(first->second.size());
    }
    auto last = pieces.end();
    for (; last != first && edited.ends_with((last - 1)->second); --last) {
        back.insert(0, (last - 1)->first);
        edited.remove_suffix((last - 1)->second.size());
    }
    return front + std::string(edited) + back;
}

}  // namespace basic
