#include "faces/text/line_source.h"

#include <istream>
#include <ostream>

namespace text_face {

namespace {
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
}  // namespace

std::optional<std::string> LineSource::readCounted() {
    std::optional<std::string> line = read();
    if (line) ++lineNumber_;
    return line;
}

std::optional<std::string> LineSource::next(std::ostream& output, std::string_view prompt) {
    if (interactive()) output << prompt << std::flush;
    std::optional<std::string> line = readCounted();
    if (line && !interactive()) output << prompt << *line << '\n';
    return line;
}

std::optional<std::string> LineSource::nextAct(std::ostream& output, std::string_view prompt) {
    while (true) {
        if (interactive()) output << prompt << std::flush;
        std::optional<std::string> line = readCounted();
        if (!line) return std::nullopt;
        const std::size_t start = line->find_first_not_of(" \t");
        if (start == std::string::npos) continue;
        const bool comment = (*line)[start] == ';';
        if (!interactive()) output << (comment ? std::string_view() : prompt) << *line << '\n';
        if (!comment) return line->substr(start);
    }
}

std::optional<std::string> StreamLines::read() {
    std::string line;
    if (!std::getline(input_, line)) return std::nullopt;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!started_ && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    started_ = true;
    return line;
}

void refuseLine(const LineSource& source, std::ostream& output, std::string_view line,
                std::string_view reason) {
    if (source.interactive()) {
        output << "? " << reason << '\n';
        return;
    }
    throw ScriptError("line " + std::to_string(source.lineNumber()) + ": " + std::string(line) + ": " +
                      std::string(reason));
}

void endedWhile(std::string_view waiting) {
    throw ScriptError("the script ended while " + std::string(waiting) + " was waiting");
}

}  // namespace text_face
