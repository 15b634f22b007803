#pragma once

#include "desk/lisp/error.h"
#include "desk/lisp/interpreter.h"
#include "desk/lisp/value.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace lisp {

/// One call of a built-in, its arguments evaluated and counted. The readers of an argument raise
/// "bad argument type" for a value of another type.
struct Call {
    Interpreter& lisp;
    const Subr& subr;
    std::span<const Value> args;

    std::size_t size() const { return args.size(); }
    bool has(std::size_t index) const { return index < args.size(); }
    const Value& operator[](std::size_t index) const { return args[index]; }

    std::int32_t integer(std::size_t index) const;
    /// An integer or a real.
    double number(std::size_t index) const;
    const std::string& text(std::size_t index) const;
    const SymbolPtr& symbol(std::size_t index) const;
    std::vector<Value> list(std::size_t index) const { return listItems(args[index]); }
    /// Two or three reals; a missing third is 0.
    std::array<double, 3> point(std::size_t index) const;
    const VariantBox& variant(std::size_t index) const;
    SafeArray& safeArray(std::size_t index) const;
    /// The host's object, which must not be released.
    host::Object& object(std::size_t index) const;

    /// T or nil.
    Value truth(bool condition) const { return condition ? lisp.truth() : Value(); }
};

/// A row of a family's name table; `most` -1 takes any number of arguments.
struct SubrEntry {
    const char* name;
    int least;
    int most;
    SubrFunction function;
};
using SubrTable = std::span<const SubrEntry>;

/// A row of the special forms' name table.
struct FormEntry {
    const char* name;
    FormFunction form;
};

// The families of built-ins, each in the file of its name.
std::span<const FormEntry> specialForms();
SubrTable listFunctions();
SubrTable listSearchFunctions();
SubrTable mappingFunctions();
SubrTable arithmeticFunctions();
SubrTable transcendentalFunctions();
SubrTable conversionFunctions();
SubrTable stringFunctions();
SubrTable stringSearchFunctions();
SubrTable comparisonFunctions();
SubrTable symbolFunctions();
SubrTable outputFunctions();
SubrTable systemFunctions();
SubrTable errorFunctions();
SubrTable variantFunctions();
SubrTable objectFunctions();

/// The function behind every name "VLA-GET-member", "VLA-PUT-member" and "VLA-member".
Value callVlaMember(Call& call);

}  // namespace lisp
