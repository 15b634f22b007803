// Strings and characters. Positions count characters, not bytes.

#include "basic/text.h"
#include "desk/lisp/call.h"
#include "desk/lisp/printer.h"

namespace lisp {

namespace {

std::int32_t countCharacters(std::string_view text) {
    std::int32_t count = 0;
    for (std::size_t position = 0; position < text.size(); ++count) basic::nextCharacter(text, position);
    return count;
}

/// The byte at which the character `index` (from 0) begins, the text's end behind the last.
std::size_t byteOf(std::string_view text, std::int32_t index) {
    std::size_t position = 0;
    for (std::int32_t i = 0; i < index && position < text.size(); ++i) basic::nextCharacter(text, position);
    return position;
}

Value concatenate(Call& call) {
    std::string joined;
    for (std::size_t i = 0; i < call.size(); ++i) joined += call.text(i);
    return joined;
}

/// (strlen text...): of all together.
Value length(Call& call) {
    std::int32_t total = 0;
    for (std::size_t i = 0; i < call.size(); ++i) total += countCharacters(call.text(i));
    return total;
}

/// (substr text start [length]): the first character is 1.
Value substring(Call& call) {
    const std::string_view text = call.text(0);
    const std::int32_t start = call.integer(1);
    if (start < 1) throw badArgumentValue("positive", call[1]);
    const std::string_view tail = text.substr(byteOf(text, start - 1));
    if (!call.has(2) || call[2].isNil()) return std::string(tail);
    if (call.integer(2) < 0) throw badArgumentValue("positive", call[2]);
    return std::string(tail.substr(0, byteOf(tail, call.integer(2))));
}

/// (strcase text [small]): in capitals, or in small letters.
Value changeCase(Call& call) {
    const bool isSmall = call.has(1) && call[1].isTrue();
    return isSmall ? basic::toLower(call.text(0)) : basic::toUpper(call.text(0));
}

Value codeOfFirst(Call& call) {
    std::size_t position = 0;
    if (call.text(0).empty()) return Value(0);
    return static_cast<std::int32_t>(basic::nextCharacter(call.text(0), position));
}

std::string characterText(const Value& code) {
    if (code.integer() == nullptr) throw badArgumentType("fixnump", code);
    if (*code.integer() < 1 || *code.integer() > 0x10FFFF) throw badArgumentValue("character code", code);
    std::string text;
    basic::appendCharacter(text, static_cast<char32_t>(*code.integer()));
    return text;
}

Value characterOf(Call& call) { return characterText(call[0]); }

Value plainText(Call& call) { return printed(call[0], Style::Plain); }
Value readableText(Call& call) { return printed(call[0], Style::Readable); }

}  // namespace

SubrTable stringFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"STRCAT", 0, -1, concatenate},
        {"STRLEN", 0, -1, length},
        {"SUBSTR", 2, 3, substring},
        {"STRCASE", 1, 2, changeCase},
        {"ASCII", 1, 1, codeOfFirst},
        {"CHR", 1, 1, characterOf},
        {"VL-PRINC-TO-STRING", 1, 1, plainText},
        {"VL-PRIN1-TO-STRING", 1, 1, readableText},
    };
    return kTable;
}

}  // namespace lisp
