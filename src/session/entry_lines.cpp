#include "session/entry_lines.h"

#include "basic/error.h"
#include "basic/text.h"
#include "basic/text_file.h"

#include <algorithm>
#include <limits>

namespace session {
namespace {

std::string_view valueIn(std::string_view line) { return line.substr(line.find('=') + 1); }

}  // namespace

EntryLines::EntryLines(const std::string& file) {
    basic::TextReader reader(file);
    while (!reader.atEnd()) {
        if (lines_.size() == std::numeric_limits<std::int16_t>::max()) throw basic::Error(basic::kOverflow);
        const std::string& line = lines_.emplace_back(reader.readLine());
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos) continue;
        keys_.emplace_back(basic::toUpper(std::string_view(line).substr(0, equals)),
                           static_cast<std::uint32_t>(lines_.size() - 1));
    }
    std::sort(keys_.begin(), keys_.end());
}

/// Goes through the key's lines in order until `visit` has enough.
template <typename Visit>
void EntryLines::forEachLine(std::string_view key, Visit visit) const {
    const std::string capitals = basic::toUpper(key);
    auto found =
        std::lower_bound(keys_.begin(), keys_.end(), capitals,
                         [](const Key& left, const std::string& right) { return left.first < right; });
    for (; found != keys_.end() && found->first == capitals; ++found) {
        if (!visit(lines_[found->second])) return;
    }
}

std::string EntryLines::firstValue(std::string_view key) const {
    std::string_view value;
    forEachLine(key, [&](std::string_view line) { return (value = valueIn(line)).empty(); });
    return std::string(value);
}

std::string EntryLines::lastValue(std::string_view key) const {
    std::string_view value;
    forEachLine(key, [&](std::string_view line) {
        value = valueIn(line);
        return true;
    });
    return std::string(value);
}

bool EntryLines::says(std::string_view key, std::string_view entry, bool anyValue) const {
    bool found = false;
    bool all = true;
    forEachLine(key, [&](std::string_view line) {
        found = true;
        return all = line == entry || (anyValue && !valueIn(line).empty());
    });
    return found && all;
}

}  // namespace session
