// Symbols, types and evaluation as functions.

#include "desk/lisp/call.h"

namespace lisp {

namespace {

Value set(Call& call) {
    call.lisp.assign(*call.symbol(0), call[1]);
    return call[1];
}

/// (read [text]): the first form of the text.
Value read(Call& call) { return call.has(0) ? call.lisp.read(call.text(0)) : Value(); }

Value eval(Call& call) { return call.lisp.evaluate(call[0]); }

/// (type x): a symbol such as INT; nil for nil.
Value type(Call& call) {
    if (call[0].isNil()) return {};
    return Value(call.lisp.symbols().intern(typeName(call[0])));
}

Value boundp(Call& call) {
    const Symbol* symbol = call[0].symbol();
    return call.truth(symbol != nullptr && symbol->value.isTrue());
}

}  // namespace

SubrTable symbolFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"SET", 2, 2, set},   {"READ", 0, 1, read},     {"EVAL", 1, 1, eval},
        {"TYPE", 1, 1, type}, {"BOUNDP", 1, 1, boundp},
    };
    return kTable;
}

}  // namespace lisp
