#include "desk/drawing/wildcard.h"

#include "basic/text.h"

#include <algorithm>

namespace drawing {

namespace {

bool isDigit(char32_t c) { return c >= U'0' && c <= U'9'; }

/// Beyond ASCII the letters of the alphabets that drawings are labelled in; signs and punctuation aside.
bool isLetter(char32_t c) {
    if (c < 0x80) return (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
    if (c < 0xC0) return c == 0xAA || c == 0xB5 || c == 0xBA;
    const bool sign = c == 0xD7 || c == 0xF7 || (c >= 0x2000 && c < 0x2C00) || (c >= 0x3000 && c < 0x3040);
    return !sign;
}

/// The capital letter of `c`, by which case is left out of account.
char32_t fold(char32_t c) {
    if (c < 0x80) return c >= U'a' && c <= U'z' ? c - U'a' + U'A' : c;
    std::string letter;
    basic::appendCharacter(letter, c);
    letter = basic::toUpper(letter);
    std::size_t position = 0;
    return basic::nextCharacter(letter, position);
}

char32_t nextFolded(std::string_view text, std::size_t& position) {
    const auto byte = static_cast<unsigned char>(text[position]);
    if (byte < 0x80) {
        ++position;
        return fold(byte);
    }
    return fold(basic::nextCharacter(text, position));
}

}  // namespace

/// Reads a set from behind its "[". Returns false and moves nothing where no "]" closes it.
bool Wildcard::parseSet(std::string_view pattern, std::size_t& position, Token& token) {
    std::size_t at = position;
    token.kind = Kind::kSet;
    if (at < pattern.size() && pattern[at] == '~') {
        token.kind = Kind::kNotSet;
        ++at;
    }
    const std::size_t begin = at;
    bool rangeOpen = false;
    while (at < pattern.size()) {
        const char c = pattern[at];
        if (c == ']' && at != begin) {
            if (rangeOpen) token.ranges.push_back({U'-', U'-'});
            position = at + 1;
            return true;
        }
        if (c == '-' && !rangeOpen && !token.ranges.empty()) {
            rangeOpen = true;
            ++at;
            continue;
        }
        if (c == '`' && at + 1 < pattern.size()) ++at;
        const char32_t character = nextFolded(pattern, at);
        if (rangeOpen) {
            Range& range = token.ranges.back();
            range = {std::min(range.first, character), std::max(range.first, character)};
            rangeOpen = false;
        } else {
            token.ranges.push_back({character, character});
        }
    }
    return false;
}

/// The kind of a special character that stands alone; a literal for all others.
Wildcard::Kind Wildcard::kindOf(char c) {
    switch (c) {
        case '#':
            return Kind::kDigit;
        case '@':
            return Kind::kLetter;
        case '.':
            return Kind::kOther;
        case '?':
            return Kind::kAny;
        case '*':
            return Kind::kRun;
        default:
            return Kind::kLiteral;
    }
}

/// Reads one pattern up to the comma that ends it.
Wildcard::Alternative Wildcard::parseAlternative(std::string_view pattern, std::size_t& at) {
    Alternative result;
    result.negated = at < pattern.size() && pattern[at] == '~';
    if (result.negated) ++at;
    while (at < pattern.size() && pattern[at] != ',') {
        Token token{kindOf(pattern[at]), 0, {}};
        if (token.kind != Kind::kLiteral) {
            ++at;
            // Runs that follow one another are one.
            const bool again =
                token.kind == Kind::kRun && !result.tokens.empty() && result.tokens.back().kind == Kind::kRun;
            if (again) continue;
        } else if (std::size_t behind = at + 1; pattern[at] == '[' && parseSet(pattern, behind, token)) {
            at = behind;
        } else {
            if (pattern[at] == '`' && at + 1 < pattern.size()) ++at;
            token = {Kind::kLiteral, nextFolded(pattern, at), {}};
        }
        result.tokens.push_back(std::move(token));
    }
    return result;
}

Wildcard::Wildcard(std::string_view pattern) {
    std::size_t at = 0;
    alternatives_.push_back(parseAlternative(pattern, at));
    while (at < pattern.size()) alternatives_.push_back(parseAlternative(pattern, ++at));
}

bool Wildcard::matchesOne(const Token& token, char32_t character) {
    const auto inRanges = [&] {
        return std::any_of(token.ranges.begin(), token.ranges.end(), [&](const Range& range) {
            return character >= range.first && character <= range.last;
        });
    };
    switch (token.kind) {
        case Kind::kLiteral:
            return character == token.character;
        case Kind::kDigit:
            return isDigit(character);
        case Kind::kLetter:
            return isLetter(character);
        case Kind::kOther:
            return !isDigit(character) && !isLetter(character);
        case Kind::kAny:
            return true;
        case Kind::kSet:
            return inRanges();
        case Kind::kNotSet:
            return !inRanges();
        case Kind::kRun:
            break;
    }
    return false;
}

/// Only the last run is ever retried: what an earlier one took is settled once a later one is reached.
bool Wildcard::matchesAll(const std::vector<Token>& tokens, std::string_view text) {
    constexpr auto kNone = static_cast<std::size_t>(-1);
    std::size_t token = 0;
    std::size_t position = 0;
    std::size_t runToken = kNone;
    std::size_t runPosition = 0;
    while (position < text.size()) {
        if (token < tokens.size() && tokens[token].kind == Kind::kRun) {
            runToken = token++;
            runPosition = position;
            continue;
        }
        std::size_t next = position;
        if (token < tokens.size() && matchesOne(tokens[token], nextFolded(text, next))) {
            ++token;
            position = next;
            continue;
        }
        if (runToken == kNone) return false;
        nextFolded(text, runPosition);
        position = runPosition;
        token = runToken + 1;
    }
    while (token < tokens.size() && tokens[token].kind == Kind::kRun) ++token;
    return token == tokens.size();
}

bool Wildcard::matches(std::string_view text) const {
    return std::any_of(alternatives_.begin(), alternatives_.end(), [&](const Alternative& alternative) {
        return matchesAll(alternative.tokens, text) != alternative.negated;
    });
}

bool matchesWildcard(std::string_view pattern, std::string_view text) {
    return Wildcard(pattern).matches(text);
}

bool hasWildcard(std::string_view pattern) {
    return pattern.find_first_of("#@.*?[,`") != std::string_view::npos ||
           (!pattern.empty() && pattern.front() == '~');
}

}  // namespace drawing
