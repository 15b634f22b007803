// Files and the host's system variables.

#include "desk/lisp/call.h"
#include "desk/lisp/conversion.h"

namespace lisp {

namespace {

/// (load file [otherwise]): a file that isn't there gives `otherwise`, called if it is a function; without it
/// an error.
Value load(Call& call) {
    if (const auto file = call.lisp.findFile(call.text(0))) return call.lisp.load(*file);
    if (!call.has(1)) throw LispError("LOAD failed: \"" + call.text(0) + "\"");
    const bool isFunction = call[1].usubr() != nullptr || call[1].subr() != nullptr;
    return isFunction ? call.lisp.apply(call[1], {}) : call[1];
}

Value findFile(Call& call) {
    const auto file = call.lisp.findFile(call.text(0));
    return file ? Value(file->string()) : Value();
}

/// (vl-load-com): the vlax functions are always there.
Value loadCom(Call&) { return {}; }

const std::string& variableName(Call& call) {
    return call[0].symbol() != nullptr ? call[0].symbol()->name : call.text(0);
}

/// (getvar name): nil for a name that the host doesn't know.
Value getVariable(Call& call) {
    const std::string& name = variableName(call);
    if (!call.lisp.variables().get) return {};
    return fromHost(call.lisp, call.lisp.variables().get(name), Shape::Plain);
}

Value setVariable(Call& call) {
    const std::string& name = variableName(call);
    if (!call.lisp.variables().set) throw LispError("system variables can't be set here: " + name);
    call.lisp.variables().set(name, toHost(call[1], Lists::AsArrays));
    return call[1];
}

}  // namespace

SubrTable systemFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"LOAD", 1, 2, load},          {"FINDFILE", 1, 1, findFile},  {"VL-LOAD-COM", 0, 0, loadCom},
        {"GETVAR", 1, 1, getVariable}, {"SETVAR", 2, 2, setVariable},
    };
    return kTable;
}

}  // namespace lisp
