#pragma once

#include "desk/lisp/value.h"

namespace lisp {

/// (eq): the same node, or numbers of one type or strings that are equal.
bool isEq(const Value& left, const Value& right);

/// (equal): numbers that differ by at most `fuzz`, whatever their types; lists whose elements are equal; else
/// eq. Lists nested too deep for the stack raise an error.
bool isEqual(const Value& left, const Value& right, double fuzz = 0);

}  // namespace lisp
