#include "desk/jobs/report.h"

#include "basic/text.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <iomanip>
#include <ostream>
#include <sstream>

namespace jobs {

namespace {

using State = Result::State;

/// "onLockedLayers" as "on locked layers".
std::string words(const std::string& name) {
    std::string text;
    for (const char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (std::isupper(byte) != 0) {
            text += ' ';
            text += static_cast<char>(std::tolower(byte));
        } else {
            text += c;
        }
    }
    return text;
}

/// "rows" and "rowsWithoutReference" as of one.
std::string singular(const std::string& name) {
    for (const char* plural : {"rows", "blocks", "references", "findings"}) {
        const std::string_view word = plural;
        if (name.starts_with(word))
            return std::string(word.substr(0, word.size() - 1)) + name.substr(word.size());
    }
    return name.ends_with("Rows") ? name.substr(0, name.size() - 1) : name;
}

std::string countsText(const std::vector<std::pair<std::string, std::int64_t>>& counts) {
    std::string text;
    for (const auto& [name, number] : counts) {
        text.append(text.empty() ? "" : ", ")
            .append(std::to_string(number))
            .append(" ")
            .append(words(number == 1 ? singular(name) : name));
    }
    return text;
}

std::string secondsText(double seconds) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(seconds < 10 ? 1 : 0) << seconds << " s";
    return text.str();
}

const char* stateName(State state) {
    switch (state) {
        case State::Done:
            return "done";
        case State::Unchanged:
            return "unchanged";
        case State::Failed:
            break;
    }
    return "failed";
}

void writeCounts(std::ostream& output, const std::vector<std::pair<std::string, std::int64_t>>& counts) {
    output << "{";
    for (std::size_t i = 0; i < counts.size(); ++i)
        output << (i > 0 ? ", " : "") << jsonString(counts[i].first) << ": " << counts[i].second;
    output << "}";
}

void writeRows(std::ostream& output, const Table& table) {
    output << ", \"rows\": [";
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        output << (row > 0 ? ", {" : "{");
        for (std::size_t i = 0; i < table.headers.size(); ++i) {
            output << (i > 0 ? ", " : "") << jsonString(table.headers[i]) << ": "
                   << jsonString(table.rows[row][i]);
        }
        output << "}";
    }
    output << "]";
}

}  // namespace

std::string jsonString(std::string_view text) {
    constexpr char32_t kFirstControl = 0x20;
    std::string quoted = "\"";
    for (std::size_t position = 0; position < text.size();) {
        char32_t character = basic::nextCharacter(text, position);
        if (character == '"' || character == '\\') {
            quoted += '\\';
            quoted += static_cast<char>(character);
        } else if (character < kFirstControl) {
            std::ostringstream code;
            code << "\\u" << std::hex << std::setw(4) << std::setfill('0')
                 << static_cast<unsigned>(character);
            quoted += code.str();
        } else {
            if (character >= 0xDC00 && character <= 0xDFFF) character = 0xFFFD;
            basic::appendCharacter(quoted, character);
        }
    }
    return quoted + "\"";
}

Report::Report(const Arguments& arguments, std::size_t drawings, std::ostream& output, std::ostream& errors)
    : arguments_(arguments), drawings_(drawings), output_(output), errors_(errors) {}

void Report::add(const Result& result) {
    (result.state == State::Done ? done_ : result.state == State::Unchanged ? unchanged_ : failed_) += 1;
    if (result.state != State::Failed) {
        for (const auto& [name, number] : result.counts) {
            const auto total = std::find_if(totals_.begin(), totals_.end(),
                                            [&key = name](const auto& entry) { return entry.first == key; });
            if (total == totals_.end()) {
                totals_.emplace_back(name, number);
            } else {
                total->second += number;
            }
        }
    }
    if (arguments_.has("--json")) {
        results_.push_back(result);
    } else {
        clearProgress();
        tell(result);
    }
    progress();
}

void Report::tell(const Result& result) {
    const bool failed = result.state == State::Failed;
    if (arguments_.has("--quiet") && !failed) return;
    std::ostream& stream = failed ? errors_ : output_;
    if (failed) output_.flush();
    stream << result.drawing << ": " << state(result) << "\n";
    for (const std::string& note : result.notes) stream << "  " << note << "\n";
    tellTable(result);
    stream.flush();
}

std::string Report::state(const Result& result) const {
    if (result.state == State::Failed) return "FAILED: " + result.reason;
    const std::string counts = countsText(result.counts);
    if (result.state == State::Unchanged)
        return "unchanged: " + result.reason + (counts.empty() ? "" : " (" + counts + ")");
    const bool dry = arguments_.has("--dry-run");
    const std::string place = result.output.empty() ? "" : "-> " + result.output;
    return (dry ? "would do: " : "") + counts + (counts.empty() || place.empty() ? "" : " ") + place;
}

/// A list of a drawing. The table of an extraction goes into a file instead.
void Report::tellTable(const Result& result) {
    if (arguments_.verb != kList) return;
    const Table& table = result.table;
    std::vector<std::size_t> widths(table.headers.size());
    const auto widen = [&](const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i) widths[i] = std::max(widths[i], cells[i].size());
    };
    const auto line = [&](const std::vector<std::string>& cells) {
        std::string text = " ";
        for (std::size_t i = 0; i < cells.size(); ++i) {
            text.append(" ").append(cells[i]);
            if (i + 1 < cells.size()) text.append(widths[i] - cells[i].size() + 1, ' ');
        }
        output_ << text << "\n";
    };
    widen(table.headers);
    for (const auto& row : table.rows) widen(row);
    if (!table.rows.empty()) line(table.headers);
    for (const auto& row : table.rows) line(row);
}

void Report::clearProgress() {
    if (!progressUp_) return;
    std::fputs("\r\x1B[K", stderr);
    progressUp_ = false;
}

void Report::progress() {
    using std::chrono::steady_clock;
    constexpr auto kPause = std::chrono::milliseconds(100);
    const std::size_t finished = done_ + unchanged_ + failed_;
    const auto now = steady_clock::now();
    if (!shows_ || finished == drawings_ || now - lastProgress_ < kPause) return;
    lastProgress_ = now;
    const double seconds = std::chrono::duration<double>(now - start_).count();
    std::ostringstream line;
    line << "\r\x1B[K" << finished << " of " << drawings_;
    if (finished > 0 && seconds > 0) {
        const double rate = static_cast<double>(finished) / seconds;
        line << ", " << std::fixed << std::setprecision(1) << rate << " a second, "
             << secondsText(static_cast<double>(drawings_ - finished) / rate) << " left";
    }
    // Past the stream, which shows control characters instead of sending them.
    std::fputs(line.str().c_str(), stderr);
    progressUp_ = true;
}

std::string Report::summary(std::size_t done, double seconds) const {
    std::string text = std::to_string(drawings_) + (drawings_ == 1 ? " drawing: " : " drawings: ");
    text += std::to_string(done_) + " done, " + std::to_string(unchanged_) + " unchanged, " +
            std::to_string(failed_) + " failed";
    if (done < drawings_) text += ", " + std::to_string(drawings_ - done) + " not begun (broken off)";
    const std::string counts = countsText(totals_);
    if (!counts.empty()) text += "; " + counts;
    return text + "; " + secondsText(seconds);
}

void Report::finish(std::size_t done, double seconds) {
    clearProgress();
    if (arguments_.has("--json")) {
        writeJson(done, seconds);
    } else if (drawings_ > 1 && !arguments_.has("--quiet")) {
        output_ << summary(done, seconds) << "\n";
    }
    output_.flush();
}

void Report::writeJson(std::size_t done, double seconds) {
    output_ << "{\n  \"verb\": " << jsonString(textOf(arguments_.verb).name)
            << ",\n  \"dryRun\": " << (arguments_.has("--dry-run") ? "true" : "false")
            << ",\n  \"drawings\": [";
    for (std::size_t i = 0; i < results_.size(); ++i) {
        const Result& result = results_[i];
        output_ << (i > 0 ? "," : "") << "\n    {\"drawing\": " << jsonString(result.drawing)
                << ", \"state\": \"" << stateName(result.state) << "\"";
        if (!result.reason.empty()) output_ << ", \"reason\": " << jsonString(result.reason);
        if (!result.output.empty()) output_ << ", \"output\": " << jsonString(result.output);
        output_ << ", \"counts\": ";
        writeCounts(output_, result.counts);
        output_ << ", \"notes\": [";
        for (std::size_t n = 0; n < result.notes.size(); ++n)
            output_ << (n > 0 ? ", " : "") << jsonString(result.notes[n]);
        output_ << "]";
        if (arguments_.verb == kList && !result.table.headers.empty()) writeRows(output_, result.table);
        output_ << ", \"seconds\": " << std::fixed << std::setprecision(3) << result.seconds << "}";
    }
    output_ << "\n  ],\n  \"summary\": {\"drawings\": " << drawings_ << ", \"done\": " << done_
            << ", \"unchanged\": " << unchanged_ << ", \"failed\": " << failed_
            << ", \"notBegun\": " << drawings_ - done << ", \"counts\": ";
    writeCounts(output_, totals_);
    output_ << ", \"seconds\": " << std::fixed << std::setprecision(3) << seconds << "}\n}\n";
}

}  // namespace jobs
