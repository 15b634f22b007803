// Printing to the command line.

#include "desk/lisp/call.h"
#include "desk/lisp/printer.h"

namespace lisp {

namespace {

/// (princ): without an argument nothing is printed, and the nameless symbol keeps the command line from
/// showing a value.
Value printAs(Call& call, Style style) {
    if (!call.has(0)) return Value(call.lisp.symbols().silent());
    call.lisp.output() << printed(call[0], style);
    return call[0];
}

Value princ(Call& call) { return printAs(call, Style::Plain); }
Value prin1(Call& call) { return printAs(call, Style::Readable); }

/// (print x): on a new line, with a blank behind.
Value print(Call& call) {
    if (!call.has(0)) return Value(call.lisp.symbols().silent());
    call.lisp.output() << '\n' << printed(call[0], Style::Readable) << ' ';
    return call[0];
}

Value terpri(Call& call) {
    call.lisp.output() << '\n';
    return {};
}

Value prompt(Call& call) {
    call.lisp.output() << call.text(0);
    return {};
}

}  // namespace

SubrTable outputFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"PRINC", 0, 1, princ},   {"PRIN1", 0, 1, prin1},   {"PRINT", 0, 1, print},
        {"TERPRI", 0, 0, terpri}, {"PROMPT", 1, 1, prompt},
    };
    return kTable;
}

}  // namespace lisp
