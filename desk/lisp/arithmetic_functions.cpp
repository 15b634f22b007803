// Arithmetic. Integers stay integers until a real joins them; they have 32 bits, and beyond them they wrap
// around as the host's do.

#include "desk/lisp/call.h"

#include <algorithm>
#include <cmath>

namespace lisp {

namespace {

std::int32_t wrapped(std::int64_t number) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

/// Folds the arguments from the second on into the first, in integers as long as both sides are.
template <typename OfIntegers, typename OfReals>
Value fold(Call& call, Value start, std::size_t from, OfIntegers ofIntegers, OfReals ofReals) {
    Value total = std::move(start);
    for (std::size_t i = from; i < call.size(); ++i) {
        const double real = call.number(i);
        if (total.integer() != nullptr && call[i].integer() != nullptr) {
            total = ofIntegers(std::int64_t{*total.integer()}, std::int64_t{*call[i].integer()});
        } else {
            total = ofReals(total.number(), real);
        }
    }
    return total;
}

/// The first argument, checked to be a number.
Value firstNumber(Call& call) {
    call.number(0);
    return call[0];
}

Value sum(std::int64_t a, std::int64_t b) { return wrapped(a + b); }
Value difference(std::int64_t a, std::int64_t b) { return wrapped(a - b); }

Value add(Call& call) {
    return fold(call, Value(0), 0, sum, [](double a, double b) { return Value(a + b); });
}

/// (- a): its negative.
Value subtract(Call& call) {
    if (call.size() == 0) return Value(0);
    const bool isNegation = call.size() == 1;
    return fold(call, isNegation ? Value(0) : firstNumber(call), isNegation ? 0 : 1, difference,
                [](double a, double b) { return Value(a - b); });
}

Value multiply(Call& call) {
    if (call.size() == 0) return Value(0);
    return fold(
        call, firstNumber(call), 1, [](std::int64_t a, std::int64_t b) { return Value(wrapped(a * b)); },
        [](double a, double b) { return Value(a * b); });
}

/// (/ a b...): of integers the whole part.
Value divide(Call& call) {
    if (call.size() == 0) return Value(0);
    return fold(
        call, firstNumber(call), 1,
        [](std::int64_t a, std::int64_t b) {
            if (b == 0) throw LispError("divide by zero");
            return Value(wrapped(a / b));
        },
        [](double a, double b) {
            if (b == 0) throw LispError("divide by zero");
            return Value(a / b);
        });
}

Value remainder(Call& call) {
    if (call.size() == 0) return Value(0);
    return fold(
        call, firstNumber(call), 1,
        [](std::int64_t a, std::int64_t b) {
            if (b == 0) throw LispError("divide by zero");
            return Value(wrapped(a % b));
        },
        [](double a, double b) {
            if (b == 0) throw LispError("divide by zero");
            return Value(std::fmod(a, b));
        });
}

Value increment(Call& call) {
    return call[0].integer() ? sum(*call[0].integer(), 1) : Value(call.number(0) + 1);
}
Value decrement(Call& call) {
    return call[0].integer() ? difference(*call[0].integer(), 1) : Value(call.number(0) - 1);
}

Value absolute(Call& call) {
    if (call[0].integer() != nullptr) return wrapped(std::abs(std::int64_t{*call[0].integer()}));
    return std::fabs(call.number(0));
}

Value smallest(Call& call) {
    if (call.size() == 0) return Value(0);
    return fold(
        call, firstNumber(call), 1,
        [](std::int64_t a, std::int64_t b) { return Value(wrapped(std::min(a, b))); },
        [](double a, double b) { return Value(std::fmin(a, b)); });
}

Value largest(Call& call) {
    if (call.size() == 0) return Value(0);
    return fold(
        call, firstNumber(call), 1,
        [](std::int64_t a, std::int64_t b) { return Value(wrapped(std::max(a, b))); },
        [](double a, double b) { return Value(std::fmax(a, b)); });
}

Value isNumber(Call& call) { return call.truth(call[0].isNumber()); }
Value isZero(Call& call) { return call.truth(call.number(0) == 0); }
Value isMinus(Call& call) { return call.truth(call.number(0) < 0); }

}  // namespace

SubrTable arithmeticFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"+", 0, -1, add},         {"-", 0, -1, subtract},      {"*", 0, -1, multiply},
        {"/", 0, -1, divide},      {"REM", 0, -1, remainder},   {"1+", 1, 1, increment},
        {"1-", 1, 1, decrement},   {"ABS", 1, 1, absolute},     {"MIN", 0, -1, smallest},
        {"MAX", 0, -1, largest},   {"NUMBERP", 1, 1, isNumber}, {"ZEROP", 1, 1, isZero},
        {"MINUSP", 1, 1, isMinus},
    };
    return kTable;
}

}  // namespace lisp
