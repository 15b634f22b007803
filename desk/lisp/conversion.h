#pragma once

#include "basic/variant.h"
#include "desk/lisp/interpreter.h"
#include "desk/lisp/value.h"

#include <string_view>
#include <utility>

namespace lisp {

/// How a value of automation looks in Lisp. Text and numbers are plain in each, objects are VLA-OBJECTs, and
/// an empty variant is nil.
enum class Shape {
    Wrapped,  ///< vla- and vlax-get-property: an array is a variant of a safe array, a Boolean :vlax-true or
              ///< -false
    Bridged,  ///< arguments of funcall: as Wrapped, but a Boolean is a variant too
    Plain,    ///< vlax-get, vlax-invoke: an array is a list, a Boolean -1 or 0
};

/// How a list leaves Lisp.
enum class Lists {
    AsArrays,   ///< to the host's objects; a list of numbers is an array of 64-bit floats
    AsObjects,  ///< as results of funcall: an object that comes back as the same list
};

Value fromHost(Interpreter& lisp, const basic::Variant& value, Shape shape);

/// A value for automation: nil is empty, T and :vlax-true are true. What automation has no value for goes out
/// as an object under Lists::AsObjects and comes back as it was; else it raises "bad argument type".
basic::Variant toHost(const Value& value, Lists lists);

/// A variant of the type that suits the value: an integer is a long, a real a double.
/// Raises "bad argument type" for a list, a function or another symbol than the Booleans.
Value makeVariant(const Value& value);

/// Lisp's names of automation's types, such as VLAX-VBDOUBLE.
inline constexpr std::pair<std::string_view, VariantType> kVariantTypeNames[] = {
    {"VLAX-VBEMPTY", kVtEmpty},     {"VLAX-VBNULL", kVtNull},     {"VLAX-VBINTEGER", kVtInteger},
    {"VLAX-VBLONG", kVtLong},       {"VLAX-VBSINGLE", kVtSingle}, {"VLAX-VBDOUBLE", kVtDouble},
    {"VLAX-VBSTRING", kVtString},   {"VLAX-VBOBJECT", kVtObject}, {"VLAX-VBBOOLEAN", kVtBoolean},
    {"VLAX-VBVARIANT", kVtVariant}, {"VLAX-VBARRAY", kVtArray},
};

}  // namespace lisp
