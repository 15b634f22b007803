#pragma once

#include "desk/lisp/value.h"

#include <cstddef>
#include <string>

namespace lisp {

enum class Style {
    Readable,  ///< strings in quotes with escapes, as prin1 and the command line show a value
    Plain,     ///< strings as they are, as princ
};

/// Lists may share their parts, and be far longer as text than in memory.
constexpr std::size_t kLongestText = std::size_t{64} << 20;

/// A value as text. Beyond `most` bytes, and beyond some hundred levels of nesting, "..." stands for the
/// rest.
std::string printed(const Value& value, Style style, std::size_t most = kLongestText);

/// A real as Lisp shows it: six digits, always with a decimal point ("2.0", "1.0e+20").
std::string printedReal(double number);

}  // namespace lisp
