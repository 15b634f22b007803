#pragma once

#include "basic/error.h"

#include <cstdint>
#include <string>

namespace drawing {

/// Numbers of the failures that the host raises for a drawing, as its automation model counts them.
enum HostError : std::int32_t {
    kInvalidInput = -2145386493,   ///< a value that the object doesn't take, such as a scale of 0
    kKeyNotFound = -2145386476,    ///< no object of that name or handle
    kObjectErased = -2145386420,   ///< a member of an erased object was asked for
    kLockedLayer = -2145386239,    ///< an edit or a deletion on a locked layer
    kNotApplicable = -2145386494,  ///< the object is not of the kind that the operation asks for
};

/// Raises a failure with its standard description, such as "Object was erased", and what it is about.
[[noreturn]] void raise(HostError number, const std::string& subject = {});

}  // namespace drawing
