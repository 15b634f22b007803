#include "desk/lisp/symbols.h"

#include "basic/text.h"

#include <utility>

namespace lisp {

SymbolTable::SymbolTable()
    : truth_(intern("T")),
      quote_(intern("QUOTE")),
      lambda_(intern("LAMBDA")),
      slash_(intern("/")),
      vlaTrue_(intern(":VLAX-TRUE")),
      vlaFalse_(intern(":VLAX-FALSE")),
      silent_(std::make_shared<Symbol>()) {
    for (const SymbolPtr& constant : {truth_, vlaTrue_, vlaFalse_}) {
        constant->value = Value(constant);
        constant->isConstant = true;
    }
}

SymbolTable::~SymbolTable() {
    for (auto& [name, symbol] : symbols_) const Value gone = std::exchange(symbol->value, Value());
}

SymbolPtr SymbolTable::intern(std::string_view name) {
    std::string key = basic::toUpper(name);
    const auto found = symbols_.find(key);
    if (found != symbols_.end()) return found->second;
    const SymbolPtr symbol = std::make_shared<Symbol>();
    symbol->name = key;
    return symbols_.emplace(std::move(key), symbol).first->second;
}

SymbolPtr SymbolTable::find(std::string_view name) const {
    const auto found = symbols_.find(basic::toUpper(name));
    return found == symbols_.end() ? nullptr : found->second;
}

}  // namespace lisp
