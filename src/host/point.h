#pragma once

#include "basic/variant.h"

#include <array>

namespace host {

/// X, Y, Z in drawing units.
using Point = std::array<double, 3>;

basic::Variant toVariant(const Point& point);
/// The point in `value`, an array of floats or of variants with numbers; what follows the third element is
/// ignored. Raises kSubscript for fewer elements, kTypeMismatch for another value.
Point toPoint(const basic::Variant& value);

}  // namespace host
