#include "desk/lisp/units.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace lisp {

namespace {

constexpr int kLeadingZero = 4;
constexpr int kTrailingZeros = 8;
constexpr double kInchesPerFoot = 12;

/// A picture of a number, without the zeros that the style leaves out.
std::string decimalText(double number, int decimals, std::int32_t zeros) {
    char digits[400];
    std::snprintf(digits, sizeof digits, "%.*f", decimals, number);
    std::string text = digits;
    if ((zeros & kTrailingZeros) && text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
    }
    if (zeros & kLeadingZero) {
        const std::size_t first = text.front() == '-' ? 1 : 0;
        if (text.compare(first, 2, "0.") == 0) text.erase(first, 1);
    }
    const bool isZero = text.find_first_of("123456789") == std::string::npos;
    if (isZero && text.front() == '-') text.erase(0, 1);
    return text.empty() || text == "." ? "0" : text;
}

std::string scientificText(double number, int decimals) {
    char digits[40];
    std::snprintf(digits, sizeof digits, "%.*E", decimals, number);
    return digits;
}

std::string wholeText(double whole) { return decimalText(whole, 0, 0); }

/// A number not below 0 in whole units and a reduced fraction.
struct Fraction {
    Fraction(double number, int precision) {
        denominator = std::int64_t{1} << std::min(precision, 15);
        const double parts = std::round(number * static_cast<double>(denominator));
        whole = std::floor(parts / static_cast<double>(denominator));
        numerator = static_cast<std::int64_t>(parts - whole * static_cast<double>(denominator));
        while (numerator != 0 && numerator % 2 == 0) {
            numerator /= 2;
            denominator /= 2;
        }
    }
    std::string text() const {
        const std::string part = std::to_string(numerator) + "/" + std::to_string(denominator);
        if (numerator == 0) return wholeText(whole);
        return whole == 0 ? part : wholeText(whole) + " " + part;
    }

    double whole;
    std::int64_t numerator, denominator;
};

/// Feet and inches: feet only where there are any.
std::string feetText(double feet, const std::string& inches) {
    return feet == 0 ? inches + "\"" : wholeText(feet) + "'-" + inches + "\"";
}

std::string engineeringText(double length, const UnitStyle& style) {
    const double scale = std::pow(10.0, style.precision);
    const double rounded = std::round(length * scale) / scale;
    const double feet = std::floor(rounded / kInchesPerFoot);
    return feetText(feet, decimalText(rounded - feet * kInchesPerFoot, style.precision, style.zeros));
}

std::string architecturalText(double length, int precision) {
    Fraction inches(length, precision);
    const double feet = std::floor(inches.whole / kInchesPerFoot);
    inches.whole -= feet * kInchesPerFoot;
    const bool isBareFraction = feet != 0 && inches.whole == 0 && inches.numerator != 0;
    return feetText(feet, (isBareFraction ? "0 " : "") + inches.text());
}

/// Degrees with as many of minutes, seconds and decimals of seconds as the precision asks for.
std::string sexagesimalText(double degrees, int precision) {
    const int decimals = std::max(0, precision - 4);
    const double perDegree = precision == 0 ? 1 : precision <= 2 ? 60 : 3600 * std::pow(10.0, decimals);
    double parts = std::round(degrees * perDegree);
    if (precision == 0) return wholeText(parts) + "d";
    double seconds = 0;
    if (precision > 2) {
        const double perMinute = 60 * std::pow(10.0, decimals);
        seconds = std::fmod(parts, perMinute) / std::pow(10.0, decimals);
        parts = std::floor(parts / perMinute);
    }
    std::string text = wholeText(std::floor(parts / 60)) + "d" + wholeText(std::fmod(parts, 60)) + "'";
    return precision > 2 ? text + decimalText(seconds, decimals, 0) + "\"" : text;
}

/// North or south, the acute angle from there, east or west.
std::string bearingText(double degrees, int precision) {
    const bool isNorth = degrees <= 180;
    const bool isEast = degrees < 90 || degrees > 270;
    const double fromAxis = isNorth ? std::fabs(90 - degrees) : std::fabs(270 - degrees);
    return std::string(isNorth ? "N " : "S ") + sexagesimalText(fromAxis, precision) + (isEast ? " E" : " W");
}

}  // namespace

std::string lengthText(double length, const UnitStyle& style) {
    const std::string sign = length < 0 ? "-" : "";
    const double size = std::fabs(length);
    switch (style.mode) {
        case 1:
            return scientificText(length, style.precision);
        case 3:
            return sign + engineeringText(size, style);
        case 4:
            return sign + architecturalText(size, style.precision);
        case 5:
            return sign + Fraction(size, style.precision).text();
        default:
            return decimalText(length, style.precision, style.zeros);
    }
}

std::string angleText(double radians, const UnitStyle& style) {
    constexpr double kTurn = 2 * std::numbers::pi;
    double positive = std::fmod(radians, kTurn);
    if (positive < 0) positive += kTurn;
    const double degrees = positive / kTurn * 360;
    switch (style.mode) {
        case 1:
            return sexagesimalText(degrees, style.precision);
        case 2:
            return decimalText(positive / kTurn * 400, style.precision, style.zeros) + "g";
        case 3:
            return decimalText(positive, style.precision, style.zeros) + "r";
        case 4:
            return bearingText(degrees, style.precision);
        default:
            return decimalText(degrees, style.precision, style.zeros);
    }
}

}  // namespace lisp
