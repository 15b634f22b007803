#include "desk/lisp/symbols.h"

#include "basic/text.h"

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
    std::vector<Value> values;
    values.reserve(symbols_.size());
    for (auto& [name, symbol] : symbols_) {
        values.push_back(std::move(symbol->value));
        symbol->value = Value();
    }
}

SymbolPtr SymbolTable::intern(std::string_view name) {
    std::string key = basic::toUpper(name);
    SymbolPtr& symbol = symbols_[key];
    if (!symbol) {
        symbol = std::make_shared<Symbol>();
        symbol->name = std::move(key);
    }
    return symbol;
}

SymbolPtr SymbolTable::find(std::string_view name) const {
    const auto found = symbols_.find(basic::toUpper(name));
    return found == symbols_.end() ? nullptr : found->second;
}

}  // namespace lisp
