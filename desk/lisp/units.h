#pragma once

#include <cstdint>
#include <string>

namespace lisp {

/// How lengths and angles are written: the values of the host's system variables of that name.
struct UnitStyle {
    std::int32_t mode;       ///< LUNITS 1 to 5, AUNITS 0 to 4
    std::int32_t precision;  ///< decimals, or for fractions the power of two of the denominator; 0 to 15
    std::int32_t zeros;      ///< DIMZIN: 4 leaves out a leading zero, 8 trailing ones
};

/// A length: mode 1 scientific ("1.55E+01"), 2 decimal, 3 feet and decimal inches ("1'-5.50\""), 4 feet and
/// fractional inches ("1'-5 1/2\""), 5 fractional ("17 1/2"). One unit is an inch.
std::string lengthText(double length, const UnitStyle& style);

/// An angle given in radians: mode 0 degrees, 1 degrees, minutes and seconds ("45d30'15\""), 2 grads ("50g"),
/// 3 radians
/// ("0.785r"), 4 bearings ("N 45d0'0\" E").
std::string angleText(double radians, const UnitStyle& style);

}  // namespace lisp
