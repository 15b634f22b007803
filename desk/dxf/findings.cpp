#include "desk/dxf/findings.h"

#include "desk/dxf/number_text.h"

#include <algorithm>

namespace dxf {

void Findings::resolve(std::string_view bytes, bool binary) {
    std::stable_sort(list_.begin(), list_.end(),
                     [](const Finding& left, const Finding& right) { return left.offset < right.offset; });
    if (binary) return;
    std::size_t line = 1;
    std::size_t at = 0;
    for (Finding& finding : list_) {
        const std::size_t offset = std::min(finding.offset, bytes.size());
        line +=
            static_cast<std::size_t>(std::count(bytes.begin() + static_cast<std::ptrdiff_t>(at),
                                                bytes.begin() + static_cast<std::ptrdiff_t>(offset), '\n'));
        at = offset;
        finding.line = line;
    }
}

std::string toText(const Finding& finding) {
    std::string text(finding.kind.code);
    text +=
        finding.line != 0 ? " " + std::to_string(finding.line) : " byte " + std::to_string(finding.offset);
    text += ": ";
    if (finding.handle != 0) text += "handle " + handleText(finding.handle) + ": ";
    return text + finding.reason;
}

std::size_t lineOf(std::string_view bytes, std::size_t offset) {
    const std::string_view before = bytes.substr(0, offset);
    return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

std::string quoted(std::string_view raw) {
    constexpr std::size_t kLongest = 24;
    std::string text = "\"";
    for (const char character : raw.substr(0, kLongest)) {
        const bool printable = character >= ' ' && character <= '~';
        text.push_back(printable ? character : '?');
    }
    if (raw.size() > kLongest) text += "...";
    return text + "\"";
}

}  // namespace dxf
