#pragma once

#include "host/object.h"

#include <memory>

namespace lisp {

class Interpreter;

/// The object behind "VL.Application": its ActiveDocument has the collection Functions, whose Item(name) is a
/// function of Lisp with the method funcall(arguments). Once the interpreter is gone each call raises an
/// error.
host::ObjectPtr makeLispApplication(std::weak_ptr<Interpreter> interpreter);

}  // namespace lisp
