#pragma once

#include "basic/variant.h"
#include "windows/com/ole.h"

namespace com {

class Border;

/// A VARIANT that clears itself.
struct OleVariant : VARIANT {
    OleVariant() { VariantInit(this); }
    OleVariant(const OleVariant&) = delete;
    OleVariant& operator=(const OleVariant&) = delete;
    ~OleVariant() { VariantClear(this); }
};

/// A VARIANT of automation as the logic's value; references are followed to any depth. Whole numbers of any
/// width become 32-bit integers where they fit, dates, currencies and the rest floats; arrays have one
/// dimension, any element type and any lower bound. Null becomes empty, an error value other than the one of
/// an argument left out too. Raises kTypeMismatch for what has no counterpart.
basic::Variant fromOle(const VARIANT& value, Border& border);

/// The logic's value in `target`, which is initialised and is cleared first; the caller owns what it gets.
/// Arrays are of VT_R8, VT_I2 or VT_VARIANT and begin at 0.
void toOle(const basic::Variant& value, VARIANT& target, Border& border);

/// Puts a value in the place of a parameter that came by reference, in the type that the caller gave it; what
/// stood there is freed. A parameter by value is left alone. Raises kTypeMismatch or kOverflow for a value
/// that the type doesn't take.
void giveBack(const basic::Variant& value, VARIANT& parameter, Border& border);

/// Whether two values are the same: arrays and objects by identity.
bool isSame(const basic::Variant& left, const basic::Variant& right);

}  // namespace com
