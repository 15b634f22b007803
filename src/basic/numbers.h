#pragma once

#include "basic/variant.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace basic {

/// The user's regional settings for numbers. Texts are UTF-8.
struct Regional {
    std::string decimal;    ///< the decimal separator
    std::string thousands;  ///< the thousands separator that conversions accept and pass over

    /// Point and comma.
    static Regional english();
    /// Comma, and a no-break space for thousands; conversions take a blank and a narrow no-break space too.
    static Regional french();
};

/// Plain conversion to text: up to 15 significant digits, the regional decimal separator, no thousands
/// separator, an exponent ("1E+15", "1,5E-05") for very large and very small values, no trailing zeros.
std::string toText(double value, const Regional& regional);
/// The same for a 32-bit float, with 7 digits.
std::string toText(float value, const Regional& regional);
/// A whole number as its digits.
std::string toText(std::int32_t value, const Regional& regional);
/// Any variant of text, number, Boolean ("True", "False") or empty; raises kTypeMismatch for the others.
std::string toText(const Variant& value, const Regional& regional);

/// Whether the whole text is a number under the regional settings: surrounding blanks, a sign before or
/// behind, thousands separators among the whole digits, an exponent. The empty text isn't.
bool isNumeric(std::string_view text, const Regional& regional);

/// The whole text as a number under the regional settings. Raises kTypeMismatch where `isNumeric` is false,
/// kOverflow beyond a 64-bit float. Under a decimal point a comma counts as a thousands separator
/// wherever it stands among the whole digits: "12,5" is 125.
double toDouble(std::string_view text, const Regional& regional);
// Strings would be ambiguous between a view and a variant.
inline double toDouble(const std::string& text, const Regional& regional) {
    return toDouble(std::string_view(text), regional);
}
inline double toDouble(const char* text, const Regional& regional) {
    return toDouble(std::string_view(text), regional);
}
/// Any variant: text by the rule above, numbers as they are, a Boolean as -1 or 0, empty as 0.
double toDouble(const Variant& value, const Regional& regional);

/// The longest number that the text begins with, blanks before it aside: a sign, digits, a point whatever the
/// regional settings, an exponent behind an "E". A text that begins with none gives 0. Raises kOverflow
/// beyond a 64-bit float.
double leadingNumber(std::string_view text);

/// Rounded to 16 bits, a half going to the even neighbour. Raises kOverflow outside -32,768 to 32,767.
std::int16_t toInt16(double value);
/// Rounded to 32 bits in the same way.
std::int32_t toInt32(double value);

/// `value` under a numeric picture of at least one whole digit and exactly `decimals` decimals (0 to 15),
/// rounded with a half going away from zero on the decimal text of up to 15 digits, so 2.675 with two
/// decimals gives 2.68; no thousands separator. With `bareSeparator` the separator stands even without
/// decimals.
std::string toPicture(double value, int decimals, const Regional& regional, bool bareSeparator = false);

}  // namespace basic
