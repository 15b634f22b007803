// Roots, powers, angles and the geometry of points. Angles are in radians.

#include "desk/lisp/call.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace lisp {

namespace {

LispError undefinedFor(const Value& argument) { return badArgumentValue("function undefined", argument); }

Value squareRoot(Call& call) {
    if (call.number(0) < 0) throw undefinedFor(call[0]);
    return std::sqrt(call.number(0));
}

Value sine(Call& call) { return std::sin(call.number(0)); }
Value cosine(Call& call) { return std::cos(call.number(0)); }

/// (atan y [x]): of y, or of y over x in its quadrant.
Value arcTangent(Call& call) {
    return call.has(1) ? std::atan2(call.number(0), call.number(1)) : std::atan(call.number(0));
}

Value exponential(Call& call) { return std::exp(call.number(0)); }

Value naturalLogarithm(Call& call) {
    if (call.number(0) <= 0) throw undefinedFor(call[0]);
    return std::log(call.number(0));
}

bool fitsInteger(double number) {
    return number >= std::numeric_limits<std::int32_t>::min() &&
           number <= std::numeric_limits<std::int32_t>::max();
}

/// (expt base power): an integer from integers where it is whole and fits, else a real.
Value power(Call& call) {
    const double result = std::pow(call.number(0), call.number(1));
    if (std::isnan(result)) throw undefinedFor(call[0]);
    const bool isWhole = call[0].integer() && call[1].integer() && *call[1].integer() >= 0;
    if (isWhole && fitsInteger(result)) return static_cast<std::int32_t>(result);
    return result;
}

/// (fix x): towards zero; a number beyond 32 bits stays a real.
Value fix(Call& call) {
    const double whole = std::trunc(call.number(0));
    if (fitsInteger(whole)) return static_cast<std::int32_t>(whole);
    return whole;
}

Value toReal(Call& call) { return call.number(0); }

Value distance(Call& call) {
    const auto a = call.point(0);
    const auto b = call.point(1);
    return std::hypot(b[0] - a[0], b[1] - a[1], b[2] - a[2]);
}

/// (angle from to): in the plane, from 0 to below two pi.
Value angle(Call& call) {
    const auto a = call.point(0);
    const auto b = call.point(1);
    const double radians = std::atan2(b[1] - a[1], b[0] - a[0]);
    return radians < 0 ? radians + 2 * std::numbers::pi : radians;
}

/// (polar point angle distance): in the plane; a third coordinate stays.
Value polar(Call& call) {
    const auto from = call.point(0);
    const double radians = call.number(1);
    const double reach = call.number(2);
    ListBuilder point;
    point.add(from[0] + reach * std::cos(radians));
    point.add(from[1] + reach * std::sin(radians));
    if (listItems(call[0]).size() == 3) point.add(from[2]);
    return point.take();
}

}  // namespace

SubrTable transcendentalFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"SQRT", 1, 1, squareRoot},   {"SIN", 1, 1, sine},        {"COS", 1, 1, cosine},
        {"ATAN", 1, 2, arcTangent},   {"EXP", 1, 1, exponential}, {"LOG", 1, 1, naturalLogarithm},
        {"EXPT", 2, 2, power},        {"FIX", 1, 1, fix},         {"FLOAT", 1, 1, toReal},
        {"DISTANCE", 2, 2, distance}, {"ANGLE", 2, 2, angle},     {"POLAR", 3, 3, polar},
    };
    return kTable;
}

}  // namespace lisp
