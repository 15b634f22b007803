#pragma once

#include "basic/variant.h"
#include "windows/com/ole.h"

namespace com {

class Border;

/// The elements of a one-dimensional array, whatever its lower bound: floats and 16-bit integers as such, any
/// other type as an array of variants. No array at all is an empty one. Raises kTypeMismatch for more
/// dimensions and for elements that have no counterpart.
basic::Variant fromOleArray(SAFEARRAY* array, VARTYPE type, Border& border);

// New arrays from 0; the caller owns them.
SAFEARRAY* toOleArray(const basic::Doubles& elements);
SAFEARRAY* toOleArray(const basic::Shorts& elements);
SAFEARRAY* toOleArray(const basic::Array& elements, Border& border);

}  // namespace com
