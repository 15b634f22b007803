#include "desk/dxf/tag.h"

#include "desk/dxf/number_text.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace dxf {

namespace {

std::string_view withoutBlanks(std::string_view text) {
    const auto isBlank = [](char character) {
        return character == ' ' || character == '\t' || character == '\r';
    };
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
    return text;
}

template <typename Number>
std::optional<Number> parseWhole(std::string_view text, int base = 10) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

template <typename Value>
Value fromBytes(std::string_view raw) {
    Value value{};
    std::memcpy(&value, raw.data(), std::min(sizeof value, raw.size()));
    return value;
}

double binaryNumber(std::string_view raw) { return fromBytes<double>(raw); }

std::int64_t binaryInteger(ValueType type, std::string_view raw) {
    switch (type) {
        case ValueType::Bool:
            return fromBytes<std::uint8_t>(raw);
        case ValueType::Int16:
            return fromBytes<std::int16_t>(raw);
        case ValueType::Int32:
            return fromBytes<std::int32_t>(raw);
        default:
            return fromBytes<std::int64_t>(raw);
    }
}

bool isInteger(ValueType type) {
    return type == ValueType::Bool || type == ValueType::Int16 || type == ValueType::Int32 ||
           type == ValueType::Int64;
}

std::string hexText(std::string_view bytes) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const char byte : bytes) {
        text.push_back(kDigits[static_cast<unsigned char>(byte) >> 4]);
        text.push_back(kDigits[static_cast<unsigned char>(byte) & 0xF]);
    }
    return text;
}

std::optional<double> tagNumber(const Tag& tag) {
    if (!tag.format->binary) return parseNumber(tag.raw);
    const ValueType type = valueType(tag.code);
    if (type == ValueType::Double) return binaryNumber(tag.raw);
    if (isInteger(type)) return static_cast<double>(binaryInteger(type, tag.raw));
    return parseNumber(tag.raw);
}

[[noreturn]] void failValue(const Tag& tag, const char* wanted) {
    throw basic::Error(basic::kTypeMismatch, "group " + std::to_string(tag.code) + " should hold " + wanted +
                                                 ", not " + quoted(tag.raw));
}

std::optional<std::int64_t> tagInteger(const Tag& tag) {
    const ValueType type = valueType(tag.code);
    if (tag.format->binary && isInteger(type)) return binaryInteger(type, tag.raw);
    if (!tag.format->binary) {
        if (const auto value = parseInteger(tag.raw)) return value;
    }
    // Some programs write whole numbers as "3.0".
    const std::optional<double> value = tagNumber(tag);
    if (!value || std::fabs(*value) >= 9.2e18 || *value != std::trunc(*value)) return std::nullopt;
    return static_cast<std::int64_t>(*value);
}

/// Plain decimals of up to 15 digits: whole number and power of ten are exact then, so their quotient is the
/// nearest value.
std::optional<double> parseDecimal(std::string_view text) {
    constexpr std::size_t kMostDigits = 15;
    constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool negative = text.starts_with('-');
    if (negative) text.remove_prefix(1);
    if (text.size() > kMostDigits + 1) return std::nullopt;
    std::int64_t whole = 0;
    std::size_t digits = 0;
    std::size_t point = text.size();
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto digit = static_cast<unsigned>(text[at] - '0');
        if (digit <= 9) {
            whole = whole * 10 + digit;
            ++digits;
        } else if (text[at] == '.' && point == text.size()) {
            point = at;
        } else {
            return std::nullopt;
        }
    }
    if (digits == 0 || digits > kMostDigits) return std::nullopt;
    const std::size_t decimals = point == text.size() ? 0 : text.size() - point - 1;
    const double value = static_cast<double>(whole) / kPowers[decimals];
    return negative ? -value : value;
}

}  // namespace

std::optional<double> parseNumber(std::string_view text) {
    if (const std::optional<double> plain = parseDecimal(text)) return plain;
    text = withoutBlanks(text);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<std::int64_t> parseInteger(std::string_view text) {
    return parseWhole<std::int64_t>(withoutBlanks(text));
}

Handle parseHandle(std::string_view text) {
    // Handles of ten digits and more are read by the library, which sees an overflow.
    if (text.size() > 9) return parseWhole<Handle>(withoutBlanks(text), 16).value_or(0);
    Handle value = 0;
    for (const char digit : text) {
        const auto decimal = static_cast<unsigned>(digit - '0');
        const auto letter = static_cast<unsigned>((digit | 0x20) - 'a');
        if (decimal > 9 && letter > 5) return parseWhole<Handle>(withoutBlanks(text), 16).value_or(0);
        value = value << 4 | (decimal <= 9 ? decimal : letter + 10);
    }
    return value;
}

std::string_view Tag::text(std::string& scratch) const {
    if (format->binary) {
        const ValueType type = valueType(code);
        if (type == ValueType::Double)
            return scratch = numberText(binaryNumber(raw));
        else if (isInteger(type))
            return scratch = std::to_string(binaryInteger(type, raw));
        else if (type == ValueType::Chunk)
            return scratch = hexText(raw);
    }
    return format->encoding.decode(raw, scratch);
}

std::string Tag::text() const {
    std::string scratch;
    return std::string(text(scratch));
}

double Tag::number() const {
    const std::optional<double> value = tagNumber(*this);
    if (!value) failValue(*this, "a number");
    return *value;
}

double Tag::numberOr(double fallback) const { return tagNumber(*this).value_or(fallback); }

std::int64_t Tag::integer() const {
    const std::optional<std::int64_t> value = tagInteger(*this);
    if (value) return *value;
    if (tagNumber(*this)) throw basic::Error(basic::kOverflow);
    failValue(*this, "a whole number");
}

std::int64_t Tag::integerOr(std::int64_t fallback) const { return tagInteger(*this).value_or(fallback); }

Handle Tag::handle() const { return parseHandle(raw); }

}  // namespace dxf
