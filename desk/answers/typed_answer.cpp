#include "desk/answers/typed_answer.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace answers {

namespace {

std::optional<double> parseNumber(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

}  // namespace

std::optional<geometry::Point3> parsePoint(std::string_view text,
                                           const std::optional<geometry::Point3>& base) {
    const bool relative = text.starts_with('@');
    if (relative) text.remove_prefix(1);
    double xyz[3] = {0, 0, 0};
    int count = 0;
    while (true) {
        const std::size_t comma = text.find(',');
        const std::optional<double> number = parseNumber(text.substr(0, comma));
        if (!number || count == 3) return std::nullopt;
        xyz[count++] = *number;
        if (comma == std::string_view::npos) break;
        text.remove_prefix(comma + 1);
    }
    if (count < 2) return std::nullopt;
    const geometry::Point3 point{xyz[0], xyz[1], xyz[2]};
    return relative ? base.value_or(geometry::Point3{}) + point : point;
}

std::optional<double> parseDegrees(std::string_view text) {
    if (text.starts_with('<')) text.remove_prefix(1);
    const std::optional<double> degrees = parseNumber(text);
    if (!degrees) return std::nullopt;
    return *degrees * geometry::kPi / 180;
}

std::optional<drawing::Handle> parseHandleAnswer(std::string_view text) {
    if (!text.starts_with('@') || text.size() < 2 || text.size() > 17) return std::nullopt;
    drawing::Handle handle = 0;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), handle, 16);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return handle;
}

std::vector<std::string_view> words(std::string_view line) {
    constexpr std::string_view kBlanks = " \t";
    std::vector<std::string_view> found;
    for (std::size_t begin = line.find_first_not_of(kBlanks); begin != std::string_view::npos;) {
        const std::size_t end = std::min(line.find_first_of(kBlanks, begin), line.size());
        found.push_back(line.substr(begin, end - begin));
        begin = line.find_first_not_of(kBlanks, end);
    }
    return found;
}

}  // namespace answers
