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

}  // namespace

std::optional<double> parseNumber(std::string_view text) {
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

Handle parseHandle(std::string_view text) { return parseWhole<Handle>(withoutBlanks(text), 16).value_or(0); }

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
