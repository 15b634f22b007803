#include "faces/text/line_source.h"

#include <istream>
#include <ostream>

namespace text_face {

namespace {
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
}  // namespace

void LineSource::showPrompt(std::ostream& output, std::string_view prompt) { output << prompt << std::flush; }

std::optional<std::string> LineSource::readCounted() {
    std::optional<std::string> line = read();
    if (line) {
        ++lineNumber_;
        line_ = *line;
    }
    return line;
}

void LineSource::fail(std::string_view text) {
    if (interactive()) return;
    // One line, whatever the text of a message box.
    std::string reason;
    for (const char character : text) {
        if (character != '\r') reason += character == '\n' ? ' ' : character;
    }
    reason.resize(reason.find_last_not_of(' ') + 1);
    const std::string told = "line " + std::to_string(lineNumber_) + ": " + line_ + ": " + reason;
    if (errors_ == nullptr) throw ScriptError(told);
    ++failures_;
    *errors_ << prefix_ << told << std::endl;
}

std::optional<std::string> LineSource::next(std::ostream& output, std::string_view prompt) {
    if (interactive()) showPrompt(output, prompt);
    std::optional<std::string> line = readCounted();
    completion_ = nullptr;
    if (line && !interactive() && echo_) output << prompt << *line << '\n';
    return line;
}

std::optional<std::string> LineSource::nextAct(std::ostream& output, std::string_view prompt) {
    while (true) {
        if (interactive()) showPrompt(output, prompt);
        std::optional<std::string> line = readCounted();
        if (!line) break;
        const std::size_t start = line->find_first_not_of(" \t");
        if (start == std::string::npos) continue;
        const bool comment = (*line)[start] == ';';
        if (!interactive() && echo_) output << (comment ? std::string_view() : prompt) << *line << '\n';
        if (comment) continue;
        completion_ = nullptr;
        return line->substr(start);
    }
    completion_ = nullptr;
    return std::nullopt;
}

std::optional<std::string> StreamLines::read() {
    std::string line;
    if (!std::getline(input_, line)) {
        if (input_.bad() && !interactive_) throw ScriptError("the script can't be read on");
        return std::nullopt;
    }
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (!started_ && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    started_ = true;
    return line;
}

void refuseLine(LineSource& source, std::ostream& output, std::string_view reason) {
    output << (source.interactive() ? "? " : "! ") << reason << '\n';
    source.fail(reason);
}

void endedWhile(std::string_view waiting) {
    throw ScriptError("the script ended while " + std::string(waiting) + " was waiting");
}

}  // namespace text_face
