#pragma once

#include "desk/lisp/value.h"

#include <string>

namespace shell {

/// A Lisp value as it would be typed at a prompt of the drawing: a point as "x,y,z", an entity's object as
/// "@HANDLE", a selection set or a list of entities as all their handles, a text or number as it stands; the
/// empty text for nil. Raises kTypeMismatch for any other value, and for lists nested more than 100 deep or
/// of more than a million values.
std::string promptAnswer(const lisp::Value& value);

}  // namespace shell
