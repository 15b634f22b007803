#pragma once

#include "desk/lisp/value.h"

#include <string>
#include <string_view>
#include <unordered_map>

namespace lisp {

/// The symbols by name, one for each; names are matched without regard to case.
class SymbolTable {
  public:
    SymbolTable();
    /// Takes every symbol's value away first: a list may hold the very symbol whose value it is.
    ~SymbolTable();
    SymbolTable(const SymbolTable&) = delete;
    SymbolTable& operator=(const SymbolTable&) = delete;

    /// The symbol of that name, made at first use. "NIL" is no symbol: the reader gives nil for it.
    SymbolPtr intern(std::string_view name);
    /// The symbol if it was met before, else nullptr.
    SymbolPtr find(std::string_view name) const;

    // Symbols that the evaluator itself needs.
    const SymbolPtr& truth() const { return truth_; }        ///< T, whose value is itself
    const SymbolPtr& quote() const { return quote_; }        ///< QUOTE
    const SymbolPtr& lambda() const { return lambda_; }      ///< LAMBDA
    const SymbolPtr& slash() const { return slash_; }        ///< the mark before local variables
    const SymbolPtr& vlaTrue() const { return vlaTrue_; }    ///< :VLAX-TRUE, automation's true
    const SymbolPtr& vlaFalse() const { return vlaFalse_; }  ///< :VLAX-FALSE
    const SymbolPtr& silent() const { return silent_; }      ///< the nameless symbol that (princ) returns

  private:
    std::unordered_map<std::string, SymbolPtr> symbols_;
    SymbolPtr truth_, quote_, lambda_, slash_, vlaTrue_, vlaFalse_, silent_;
};

}  // namespace lisp
