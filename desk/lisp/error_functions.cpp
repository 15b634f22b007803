// Failures as values, and leaving.

#include "desk/lisp/call.h"

namespace lisp {

namespace {

/// (vl-catch-all-apply f [arguments]): the call's value, or an error object if it failed. It catches an exit
/// too.
Value catchAllApply(Call& call) {
    try {
        return call.lisp.apply(call[0], call.has(1) ? call.list(1) : std::vector<Value>());
    } catch (const basic::Error& error) {
        return Value(std::make_shared<const CaughtError>(CaughtError{errorMessage(error)}));
    }
}

Value isError(Call& call) { return call.truth(call[0].caught() != nullptr); }

Value messageOf(Call& call) {
    if (call[0].caught() == nullptr) throw badArgumentType("VL-CATCH-ALL-APPLY-ERROR", call[0]);
    return call[0].caught()->message;
}

/// (exit), (quit): end the running routine, not the program.
Value quit(Call&) { throw LispError("quit / exit abort"); }

}  // namespace

SubrTable errorFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"VL-CATCH-ALL-APPLY", 1, 2, catchAllApply},
        {"VL-CATCH-ALL-ERROR-P", 1, 1, isError},
        {"VL-CATCH-ALL-ERROR-MESSAGE", 1, 1, messageOf},
        {"EXIT", 0, 0, quit},
        {"QUIT", 0, 0, quit},
    };
    return kTable;
}

}  // namespace lisp
