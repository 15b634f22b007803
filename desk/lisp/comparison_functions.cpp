// Comparison: = /= < <= > >= eq equal.

#include "desk/lisp/call.h"
#include "desk/lisp/comparison.h"

#include <cmath>

namespace lisp {

namespace {

bool equalWithin(const StackGuard& guard, const Value& left, const Value& right, double fuzz) {
    guard.check();
    const Value* first = &left;
    const Value* second = &right;
    while (first->cons() && second->cons()) {
        if (first->cons() == second->cons()) return true;
        if (!equalWithin(guard, first->cons()->first, second->cons()->first, fuzz)) return false;
        first = &first->cons()->rest;
        second = &second->cons()->rest;
    }
    if (first->isNumber() && second->isNumber()) return std::fabs(first->number() - second->number()) <= fuzz;
    return isEq(*first, *second);
}

/// (= a b): numbers by value, strings by content, anything else by eq; so symbols compare, and a number is
/// never equal to a string.
bool equalSign(const Value& left, const Value& right) {
    if (left.isNumber() && right.isNumber()) return left.number() == right.number();
    return isEq(left, right);
}

/// The sign of left - right. Both must be numbers or both strings.
int order(const Value& left, const Value& right) {
    if (left.text() != nullptr && right.text() != nullptr) return left.text()->compare(*right.text());
    for (const Value* value : {&left, &right}) {
        if (!value->isNumber()) throw badArgumentType("numberp", *value);
    }
    return left.number() < right.number() ? -1 : left.number() > right.number() ? 1 : 0;
}

/// Whether `holds` is true of each argument and its successor.
template <typename Relation>
Value chain(Call& call, Relation holds) {
    for (std::size_t i = 1; i < call.size(); ++i) {
        if (!holds(call[i - 1], call[i])) return {};
    }
    return call.lisp.truth();
}

Value equalTo(Call& call) { return chain(call, equalSign); }
/// (/= a b c...): no two arguments side by side are equal; (/= 1 2 1) is true.
Value notEqualTo(Call& call) {
    return chain(call, [](const Value& left, const Value& right) { return !equalSign(left, right); });
}
Value less(Call& call) {
    return chain(call, [](const Value& left, const Value& right) { return order(left, right) < 0; });
}
Value lessOrEqual(Call& call) {
    return chain(call, [](const Value& left, const Value& right) { return order(left, right) <= 0; });
}
Value greater(Call& call) {
    return chain(call, [](const Value& left, const Value& right) { return order(left, right) > 0; });
}
Value greaterOrEqual(Call& call) {
    return chain(call, [](const Value& left, const Value& right) { return order(left, right) >= 0; });
}

Value eq(Call& call) { return call.truth(isEq(call[0], call[1])); }

Value equal(Call& call) { return call.truth(isEqual(call[0], call[1], call.has(2) ? call.number(2) : 0.0)); }

}  // namespace

bool isEq(const Value& left, const Value& right) {
    if (left.text() != nullptr && right.text() != nullptr) return *left.text() == *right.text();
    if (left.object() != nullptr && right.object() != nullptr) {
        return left.isSame(right) ||
               (left.object()->object && left.object()->object == right.object()->object);
    }
    return left.isSame(right);
}

bool isEqual(const Value& left, const Value& right, double fuzz) {
    return equalWithin(StackGuard(StackGuard::kWithinOneCall), left, right, fuzz);
}

SubrTable comparisonFunctions() {
    static constexpr SubrEntry kTable[] = {
        {"=", 1, -1, equalTo}, {"/=", 1, -1, notEqualTo},     {"<", 1, -1, less}, {"<=", 1, -1, lessOrEqual},
        {">", 1, -1, greater}, {">=", 1, -1, greaterOrEqual}, {"EQ", 2, 2, eq},   {"EQUAL", 2, 3, equal},
    };
    return kTable;
}

}  // namespace lisp
