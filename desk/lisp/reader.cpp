#include "desk/lisp/reader.h"

#include "basic/code_page.h"
#include "basic/text.h"
#include "desk/lisp/error.h"

#include <algorithm>
#include <charconv>

namespace lisp {

namespace {

bool isBlank(char character) { return static_cast<unsigned char>(character) <= ' '; }

bool endsAtom(char character) {
    return isBlank(character) || std::string_view("()'\";").find(character) != std::string_view::npos;
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

std::size_t digitsFrom(std::string_view token, std::size_t position) {
    std::size_t end = position;
    while (end < token.size() && isDigit(token[end])) ++end;
    return end - position;
}

enum class Number { No, Integer, Real };

/// Whether a token is a number: [sign]digits, or with a point, or with an exponent. "1+" and "-" are symbols.
Number numberKind(std::string_view token) {
    std::size_t position = !token.empty() && (token[0] == '+' || token[0] == '-') ? 1 : 0;
    const std::size_t whole = digitsFrom(token, position);
    position += whole;
    if (position == token.size()) return whole > 0 ? Number::Integer : Number::No;
    std::size_t decimals = 0;
    if (token[position] == '.') {
        decimals = digitsFrom(token, ++position);
        position += decimals;
    }
    if (whole + decimals == 0) return Number::No;
    if (position < token.size() && (token[position] == 'e' || token[position] == 'E')) {
        ++position;
        if (position < token.size() && (token[position] == '+' || token[position] == '-')) ++position;
        const std::size_t exponent = digitsFrom(token, position);
        if (exponent == 0) return Number::No;
        position += exponent;
    }
    return position == token.size() ? Number::Real : Number::No;
}

std::optional<Value> numberFrom(std::string_view token) {
    const Number kind = numberKind(token);
    if (kind == Number::No) return std::nullopt;
    if (token[0] == '+') token.remove_prefix(1);
    const char* end = token.data() + token.size();
    if (kind == Number::Integer) {
        std::int32_t whole = 0;
        if (std::from_chars(token.data(), end, whole).ec == std::errc()) return Value(whole);
    }
    double real = 0;  // also an integer beyond 32 bits, which the host reads as a real
    if (std::from_chars(token.data(), end, real).ec != std::errc()) {
        throw LispError("floating-point number out of range on input: " + std::string(token));
    }
    return Value(real);
}

}  // namespace

Reader::Reader(std::string_view text, SymbolTable& symbols)
    : text_(text), symbols_(symbols), guard_(StackGuard::kWithinOneCall) {}

std::optional<Value> Reader::next() {
    formStart_ = position_;
    if (!skipBlanks()) return std::nullopt;
    formStart_ = position_;
    return readForm();
}

int Reader::formLine() const {
    return 1 + static_cast<int>(std::count(text_.begin(), text_.begin() + formStart_, '\n'));
}

bool Reader::skipBlanks() {
    while (!atEnd()) {
        if (isBlank(text_[position_])) {
            ++position_;
        } else if (text_[position_] != ';') {
            return true;
        } else if (position_ + 1 < text_.size() && text_[position_ + 1] == '|') {
            skipBlockComment();
        } else {
            position_ = std::min(text_.find('\n', position_), text_.size());
        }
    }
    return false;
}

void Reader::skipBlockComment() {
    const std::size_t end = text_.find("|;", position_ + 2);
    if (end == std::string_view::npos) throw IncompleteInput("unclosed comment on input");
    position_ = end + 2;
}

Value Reader::readForm() {
    guard_.check();
    switch (text_[position_]) {
        case '(':
            ++position_;
            return readList();
        case ')':
            ++position_;
            throw LispError("extra right paren on input");
        case '\'':
            ++position_;
            return readQuoted();
        case '"':
            ++position_;
            return readString();
        default:
            return readAtom();
    }
}

Value Reader::readQuoted() {
    if (!skipBlanks()) throw IncompleteInput("malformed list on input");
    return makeList({Value(symbols_.quote()), readForm()});
}

Value Reader::readList() {
    ListBuilder items;
    while (true) {
        if (!skipBlanks()) throw IncompleteInput("malformed list on input");
        if (text_[position_] == ')') {
            ++position_;
            return items.take();
        }
        const bool isDot =
            text_[position_] == '.' && (position_ + 1 == text_.size() || endsAtom(text_[position_ + 1]));
        if (!isDot) {
            items.add(readForm());
            continue;
        }
        if (items.size() == 0) throw LispError("misplaced dot on input");
        ++position_;
        if (!skipBlanks()) throw IncompleteInput("malformed list on input");
        if (text_[position_] == ')') throw LispError("misplaced dot on input");
        Value tail = readForm();
        if (!skipBlanks()) throw IncompleteInput("malformed list on input");
        if (text_[position_] != ')') throw LispError("extra cdrs in dotted pair on input");
        ++position_;
        return items.take(std::move(tail));
    }
}

Value Reader::readString() {
    std::string out;
    while (!atEnd()) {
        const char character = text_[position_++];
        if (character == '"') return Value(std::move(out));
        if (character != '\\') {
            out += character;
        } else if (!atEnd()) {
            readEscape(out);
        }
    }
    throw IncompleteInput("malformed string on input");
}

void Reader::readEscape(std::string& out) {
    const char character = text_[position_];
    if (character >= '0' && character <= '7') {  // up to three octal digits: a character of the code page
        unsigned code = 0;
        for (int i = 0; i < 3 && !atEnd() && text_[position_] >= '0' && text_[position_] <= '7'; ++i) {
            code = code * 8 + static_cast<unsigned>(text_[position_++] - '0');
        }
        const char byte = static_cast<char>(code & 0xFF);
        out += basic::fromCodePage(std::string_view(&byte, 1));
        return;
    }
    ++position_;
    switch (character) {
        case 'n':
            out += '\n';
            break;
        case 't':
            out += '\t';
            break;
        case 'r':
            out += '\r';
            break;
        case 'e':
            out += '\x1B';
            break;
        case 'U': {  // \U+XXXX, a character by its number
            unsigned code = 0;
            if (position_ + 5 <= text_.size() && text_[position_] == '+' &&
                std::from_chars(&text_[position_ + 1], &text_[position_ + 1] + 4, code, 16).ptr ==
                    &text_[position_ + 1] + 4) {
                basic::appendCharacter(out, static_cast<char32_t>(code));
                position_ += 5;
            } else {
                out += 'U';
            }
            break;
        }
        default:
            out += character;
    }
}

Value Reader::readAtom() {
    const std::size_t start = position_;
    while (!atEnd() && !endsAtom(text_[position_])) ++position_;
    const std::string_view token = text_.substr(start, position_ - start);
    if (const std::optional<Value> number = numberFrom(token)) return *number;
    if (token == ".") throw LispError("misplaced dot on input");
    if (basic::equalIgnoringCase(token, "nil")) return Value();
    return Value(symbols_.intern(token));
}

}  // namespace lisp
