#pragma once

#include "basic/variant.h"
#include "host/object.h"
#include "session/session.h"

#include <concepts>
#include <string>
#include <string_view>

namespace entry {

using basic::Variant;

/// The bridge to the host's Lisp interpreter, reached through the host's Visual Lisp object. Names and
/// expressions go to Lisp as text and are turned into Lisp objects by its own "read". Where no such object
/// was found each operation raises kObjectNotSet.
class VlaxObj {
  public:
    explicit VlaxObj(const session::Session& session);
    ~VlaxObj();
    VlaxObj(const VlaxObj&) = delete;
    VlaxObj& operator=(const VlaxObj&) = delete;

    /// The value of one Lisp form, an empty text if its evaluation fails. Text that Lisp can't read raises
    /// Lisp's error.
    Variant EvalLispExpression(const std::string& Expression);
    /// Gives a symbol a value; an array arrives as a plain Lisp list. Errors of "read" and "set" reach the
    /// caller.
    void SetLispSymbol(const std::string& Symbol, const Variant& Value);
    /// The symbol's value. All errors reach the caller.
    Variant GetLispSymbol(const std::string& Symbol);
    /// The elements of the list that a symbol holds, as an array; nil gives none. All errors reach the
    /// caller.
    Variant GetLispList(const std::string& Symbol);
    /// Sets symbols to nil, from first to last.
    template <std::convertible_to<std::string_view>... Names>
    void NullifySymbol(const Names&... Symbols) {
        (nullify(Symbols), ...);
    }

  private:
    void Class_Initialize(const session::Session& session);
    void Class_Terminate();
    void nullify(std::string_view symbol);
    /// Functions.Item(name).funcall(arguments)
    Variant callLisp(const char* name, host::Arguments arguments);

    host::ObjectPtr application_;  ///< "VL.Application"
    host::ObjectPtr functions_;    ///< the Lisp functions of the active document
};

/// The value of a Lisp symbol as text, read through a bridge of its own.
std::string ReadLispCommand(const session::Session& session, const std::string& Name);

}  // namespace entry
