// Numbers from and to text.

#include "desk/lisp/call.h"
#include "desk/lisp/units.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace lisp {

namespace {

/// A whole-numbered system variable, or its default where the host doesn't know it.
std::int32_t setting(Call& call, const char* name, std::int32_t otherwise) {
    if (!call.lisp.variables().get) return otherwise;
    const basic::Variant value = call.lisp.variables().get(name);
    return value.isNumber() ? value.integer() : otherwise;
}

/// The optional mode and precision behind a number.
UnitStyle styleOf(Call& call, const char* modeVariable, std::int32_t mode, const char* precisionVariable,
                  std::int32_t precision) {
    UnitStyle style{};
    style.mode = call.has(1) ? call.integer(1) : setting(call, modeVariable, mode);
    style.precision = call.has(2) ? call.integer(2) : setting(call, precisionVariable, precision);
    style.zeros = setting(call, "DIMZIN", 0);
    if (style.precision < 0 || style.precision > 15)
        throw badArgumentValue("precision", Value(style.precision));
    return style;
}

/// (rtos number [mode [precision]]), by LUNITS, LUPREC and DIMZIN.
Value realToText(Call& call) {
    const double number = call.number(0);
    const UnitStyle style = styleOf(call, "LUNITS", 2, "LUPREC", 4);
    if (style.mode < 1 || style.mode > 5) throw badArgumentValue("units mode", Value(style.mode));
    return lengthText(number, style);
}

/// (angtos angle [mode [precision]]), by AUNITS, AUPREC and DIMZIN.
Value angleToText(Call& call) {
    const double radians = call.number(0);
    const UnitStyle style = styleOf(call, "AUNITS", 0, "AUPREC", 0);
    if (style.mode < 0 || style.mode > 4) throw badArgumentValue("units mode", Value(style.mode));
    return angleText(radians, style);
}

/// The number that a text begins with, 0 where it begins with none.
double leading(const std::string& text) {
    const std::size_t start = text.find_first_not_of(" \t\r\n+");
    if (start == std::string::npos) return 0;
    double number = 0;
    const auto result = std::from_chars(text.data() + start, text.data() + text.size(), number);
    return result.ec == std::errc() && std::isfinite(number) ? number : 0;
}

Value textToReal(Call& call) { return leading(call.text(0)); }

/// (atoi text): the whole number that the text begins with, held within 32 bits.
Value textToInteger(Call& call) {
    const double whole = std::trunc(leading(call.text(0)));
    if (whole >= std::numeric_limits<std::int32_t>::max()) return std::numeric_limits<std::int32_t>::max();
    if (whole <= std::numeric_limits<std::int32_t>::min()) return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(whole);
}

Value integerToText(Call& call) { return std::to_string(call.integer(0)); }

}  // namespace

SubrTable conversionFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"ATOI", 1, 1, textToInteger}, {"ATOF", 1, 1, textToReal},    {"ITOA", 1, 1, integerToText},
        {"RTOS", 1, 3, realToText},    {"ANGTOS", 1, 3, angleToText},
    };
    return kTable;
}

}  // namespace lisp
