#include "basic/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace basic {

namespace {

constexpr int kDoubleDigits = 15, kFloatDigits = 7;

/// A value that is no number, as the classic run-time spells it.
std::string notFiniteText(double value, const Regional& regional) {
    const std::string sign = std::signbit(value) ? "-" : "";
    return sign + "1" + regional.decimal + (std::isnan(value) ? "#IND" : "#INF");
}

template <typename Real>
std::string realText(Real value, int digits, const Regional& regional) {
    if (!std::isfinite(value)) return notFiniteText(value, regional);
    if (value == 0) return "0";  // negative zero too
    char buffer[32];
    const char* end =
        std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::general, digits).ptr;
    std::string text;
    for (const char* p = buffer; p != end; ++p) {
        if (*p == '.') {
            text += regional.decimal;
        } else {
            text += *p == 'e' ? 'E' : *p;
        }
    }
    return text;
}

/// The whole numbers that a plain conversion gives without an exponent need no conversion of a float.
bool isPlainWhole(double value) { return std::abs(value) < 1e15 && value == std::trunc(value); }

std::string wholeText(std::int64_t value) {
    char buffer[24];
    const char* end = std::to_chars(std::begin(buffer), std::end(buffer), value).ptr;
    return std::string(static_cast<const char*>(buffer), end);
}

template <typename Integer>
Integer roundedTo(double value) {
    const double rounded = std::nearbyint(value);  // a half to the even neighbour
    const bool fits =
        rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max();
    if (!fits) throw Error(kOverflow);
    return static_cast<Integer>(rounded);
}

/// Decimal digits of a number without its sign: 0.DIGITS times ten to the power of `point`.
struct Decimal {
    std::string digits;
    int point = 0;
};

Decimal decimalOf(double magnitude) {
    char buffer[32];
    const char* const start = buffer;
    const char* const end =
        std::to_chars(buffer, std::end(buffer), magnitude, std::chars_format::scientific, kDoubleDigits - 1)
            .ptr;
    const char* const mark = std::find(start, end, 'e');
    Decimal decimal;
    decimal.digits.push_back(*start);
    decimal.digits.append(start + 2, mark);
    const char* const power = mark[1] == '+' ? mark + 2 : mark + 1;
    std::from_chars(power, end, decimal.point);
    ++decimal.point;  // the point stands before the first digit here, behind it there
    return decimal;
}

/// Cuts behind the given number of decimals, a half and more going up.
void roundDecimal(Decimal& decimal, int decimals) {
    const int kept = decimal.point + decimals;
    if (kept >= static_cast<int>(decimal.digits.size())) return;
    const bool up = kept >= 0 && decimal.digits[static_cast<std::size_t>(kept)] >= '5';
    decimal.digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
    if (!up) return;
    for (auto digit = decimal.digits.rbegin(); digit != decimal.digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return;
        }
        *digit = '0';
    }
    decimal.digits.insert(decimal.digits.begin(), '1');
    ++decimal.point;
}

}  // namespace

Regional Regional::english() { return {".", ","}; }

Regional Regional::french() { return {",", "\u00A0"}; }

std::string toText(double value, const Regional& regional) {
    if (isPlainWhole(value)) return wholeText(static_cast<std::int64_t>(value));
    return realText(value, kDoubleDigits, regional);
}

std::string toText(float value, const Regional& regional) { return realText(value, kFloatDigits, regional); }

std::string toText(std::int32_t value, const Regional&) { return wholeText(value); }

std::string toText(const Variant& value, const Regional& regional) {
    switch (value.kind()) {
        case Variant::Kind::Text:
            return value.text();
        case Variant::Kind::Empty:
            return {};
        case Variant::Kind::Boolean:
            return value.boolean() ? "True" : "False";
        case Variant::Kind::Int16:
        case Variant::Kind::Int32:
        case Variant::Kind::Double:
            return toText(value.number(), regional);
        default:
            throw Error(kTypeMismatch);
    }
}

double toDouble(const Variant& value, const Regional& regional) {
    return value.is(Variant::Kind::Text) ? toDouble(std::string_view(value.text()), regional)
                                         : value.number();
}

std::int16_t toInt16(double value) { return roundedTo<std::int16_t>(value); }

std::int32_t toInt32(double value) { return roundedTo<std::int32_t>(value); }

std::string toPicture(double value, int decimals, const Regional& regional, bool bareSeparator) {
    if (!std::isfinite(value)) return notFiniteText(value, regional);
    decimals = std::max(decimals, 0);
    Decimal decimal = decimalOf(std::abs(value));
    roundDecimal(decimal, decimals);
    const bool zero = decimal.digits.find_first_not_of('0') == std::string::npos;
    const auto digitAt = [&](int place) {
        const bool inside = place >= 0 && place < static_cast<int>(decimal.digits.size());
        return inside ? decimal.digits[static_cast<std::size_t>(place)] : '0';
    };
    std::string text = value < 0 && !zero ? "-" : "";
    if (decimal.point <= 0) text += '0';
    for (int place = 0; place < decimal.point; ++place) text += digitAt(place);
    if (decimals > 0 || bareSeparator) text += regional.decimal;
    for (int place = decimal.point; place < decimal.point + decimals; ++place) text += digitAt(place);
    return text;
}

}  // namespace basic
