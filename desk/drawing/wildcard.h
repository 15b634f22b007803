#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace drawing {

/// A compiled string filter of the host. Case doesn't count.
///
///   #      a digit                        *      any run of characters, the empty one too
///   @      a letter                       ?      any one character
///   .      neither letter nor digit       ~      first in a pattern: whatever the rest doesn't match
///   [...]  one of these                   [~...] none of these; "a-z" inside is a range
///   ,      stands between two patterns    `      the next character as it stands
///
/// A bracket that isn't closed stands for itself. Inside brackets all but "-", "]" and the reverse quote
/// stand for themselves, and so does a "]" that comes first.
class Wildcard {
  public:
    explicit Wildcard(std::string_view pattern);
    /// Whether one of the patterns matches the whole text. At most pattern length times text length steps.
    bool matches(std::string_view text) const;

  private:
    enum class Kind : char { kLiteral, kDigit, kLetter, kOther, kAny, kRun, kSet, kNotSet };
    struct Range {
        char32_t first;
        char32_t last;
    };
    struct Token {
        Kind kind;
        char32_t character = 0;     ///< of a literal, folded
        std::vector<Range> ranges;  ///< of a set, folded
    };
    struct Alternative {
        bool negated = false;
        std::vector<Token> tokens;
    };

    static Kind kindOf(char c);
    static Alternative parseAlternative(std::string_view pattern, std::size_t& at);
    static bool parseSet(std::string_view pattern, std::size_t& position, Token& token);
    static bool matchesOne(const Token& token, char32_t character);
    static bool matchesAll(const std::vector<Token>& tokens, std::string_view text);

    std::vector<Alternative> alternatives_;
};

/// Whether `text` matches `pattern` by the rules above. To test many texts, keep a `Wildcard`.
bool matchesWildcard(std::string_view pattern, std::string_view text);
/// Whether a character of `pattern` has a special meaning, so that comparing texts wouldn't do.
bool hasWildcard(std::string_view pattern);

}  // namespace drawing
