#pragma once

#include "desk/lisp/stack_guard.h"
#include "desk/lisp/symbols.h"

#include <optional>
#include <string_view>

namespace lisp {

/// Reads the forms of a text one after the other. Faults raise LispError with the host's texts, such as
/// "malformed list on input"; where more text could mend it, IncompleteInput.
class Reader {
  public:
    /// `text` must stay as long as the reader.
    Reader(std::string_view text, SymbolTable& symbols);

    /// The next form; none at the text's end.
    std::optional<Value> next();
    /// The line, from 1, on which the form read last begins, also when reading it failed.
    int formLine() const;

  private:
    Value readForm();
    Value readList();
    Value readQuoted();
    Value readString();
    void readEscape(std::string& out);
    Value readAtom();
    /// Passes over blanks and comments; false at the end.
    bool skipBlanks();
    void skipBlockComment();
    bool atEnd() const { return position_ >= text_.size(); }

    std::string_view text_;
    SymbolTable& symbols_;
    std::size_t position_ = 0;
    std::size_t formStart_ = 0;
    StackGuard guard_;
};

}  // namespace lisp
