#include "extract/split_fields.h"

#include "basic/error.h"
#include "basic/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace extract {
namespace {

constexpr std::size_t kMost = std::numeric_limits<std::int16_t>::max();

bool isOneCharacter(std::string_view text) {
    if (text.empty()) return false;
    std::size_t position = 0;
    basic::nextCharacter(text, position);
    return position == text.size();
}

bool isTooLong(std::string_view text) {
    if (text.size() <= kMost) return false;
    std::size_t characters = 0;
    for (std::size_t position = 0; position < text.size(); ++characters) basic::nextCharacter(text, position);
    return characters > kMost;
}

std::size_t countOf(std::string_view delimiter, std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = text.find(delimiter); at != text.npos;
         at = text.find(delimiter, at + delimiter.size()))
        ++count;
    return count;
}

}  // namespace

void splitFieldsInto(Fields& fields, std::string_view delimiter, std::string_view text) {
    if (isTooLong(text)) throw basic::Error(basic::kOverflow);
    if (!isOneCharacter(delimiter)) {
        fields.assign(1, std::string(text));
        return;
    }
    const std::size_t count = countOf(delimiter, text) + 1;
    if (count > kMost) throw basic::Error(basic::kOverflow);
    fields.resize(count);
    for (std::string& field : fields) {
        const std::size_t end = std::min(text.find(delimiter), text.size());
        field.assign(text.substr(0, end));
        text.remove_prefix(std::min(end + delimiter.size(), text.size()));
    }
}

Fields SplitFields(std::string_view delimiter, std::string_view text) {
    Fields fields;
    splitFieldsInto(fields, delimiter, text);
    return fields;
}

}  // namespace extract
