#include "session/entry_file.h"

#include "basic/error.h"
#include "basic/path.h"
#include "basic/text.h"
#include "basic/text_file.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

namespace session {
namespace {

namespace fs = std::filesystem;
using basic::TextReader;
using basic::TextWriter;

/// A key as lines are compared with it: in capitals, with its "=".
struct Wanted {
    explicit Wanted(std::string_view key) : text(basic::toUpper(key) + "=") {
        for (std::size_t position = 0; position < text.size(); ++length) basic::nextCharacter(text, position);
    }

    std::string text;
    std::size_t length = 0;  ///< in characters
};

/// The rest of a line behind the key and its "=", nothing for a line that doesn't begin so. The "=" is part
/// of the comparison, so that a key never matches a longer one.
std::optional<std::string_view> valueOf(std::string_view line, const Wanted& wanted) {
    std::size_t position = 0;
    for (std::size_t count = 0; count < wanted.length; ++count) {
        if (position >= line.size()) return std::nullopt;
        basic::nextCharacter(line, position);
    }
    if (line[position - 1] != '=' || basic::toUpper(line.substr(0, position)) != wanted.text)
        return std::nullopt;
    return line.substr(position);
}

/// Whether the file's last line lacks its end, so that a line appended to it would run on from it. A lone
/// line feed ends no line.
bool endsUnfinished(const std::string& path) {
    std::ifstream file(basic::toPath(path), std::ios::binary | std::ios::ate);
    const std::streamoff size = file.tellg();
    if (size <= 0) return false;
    std::string tail(static_cast<std::size_t>(std::min<std::streamoff>(size, 2)), ' ');
    file.seekg(-static_cast<std::streamoff>(tail.size()), std::ios::end);
    file.read(tail.data(), static_cast<std::streamsize>(tail.size()));
    return tail.back() != '\r' && tail != "\r\n";
}

void appendLine(const std::string& path, const std::string& line) {
    const bool unfinished = endsUnfinished(path);
    TextWriter writer(path, TextWriter::Mode::Append);
    if (unfinished) writer.writeLine("");
    writer.writeLine(line);
    writer.close();
}

void writeLines(const std::string& path, const std::vector<std::string>& lines) {
    TextWriter writer(path, TextWriter::Mode::Replace);
    for (const std::string& line : lines) writer.writeLine(line);
    writer.close();
}

/// Writes all lines to a file beside the old one and puts it in the old one's place, so that a full disk
/// doesn't cost the old lines. Where nothing can be put beside it or in its place, the file itself is
/// written.
void rewrite(const std::string& path, const std::vector<std::string>& lines) {
    TextWriter(path, TextWriter::Mode::Append).close();  // refused here, if it may not be written at all
    std::error_code failure;
    const fs::path target = fs::canonical(basic::toPath(path), failure);
    fs::path besidePath = target;
    besidePath += "~";
    const std::string beside = basic::fromPath(besidePath);
    if (failure || fs::exists(besidePath, failure)) return writeLines(path, lines);
    try {
        TextWriter(beside, TextWriter::Mode::Replace).close();
    } catch (const basic::Error&) {
        return writeLines(path, lines);
    }
    try {
        writeLines(beside, lines);
    } catch (...) {
        fs::remove(besidePath, failure);
        throw;
    }
    fs::permissions(besidePath, fs::status(target, failure).permissions(), failure);
    fs::rename(besidePath, target, failure);
    if (failure) {
        fs::remove(besidePath, failure);
        writeLines(path, lines);
    }
}

/// Reads or writes line by line.
std::string passOver(const std::string& file, const std::string& key, const std::string& entry,
                     std::int16_t mode, const std::string& value, Overwrite overwrite) {
    const Wanted wanted(key);
    const bool writing = mode == -1;
    std::string result;
    std::vector<std::string> lines;
    bool found = false;
    bool changed = false;
    {
        TextReader reader(file);
        std::int32_t count = 0;
        // Reading stops at the first value that isn't empty: a bare "key=" lets a later line of the key
        // speak.
        while (!reader.atEnd() && (result.empty() || mode != 0)) {
            std::string line = reader.readLine();
            if (++count > std::numeric_limits<std::int16_t>::max()) throw basic::Error(basic::kOverflow);
            if (const auto rest = valueOf(line, wanted)) {
                found = true;
                result = *rest;
                if (writing && line != entry && (overwrite == Overwrite::Always || result.empty())) {
                    line = entry;
                    changed = true;
                }
            }
            if (writing) lines.push_back(std::move(line));
        }
    }
    if (!writing) return result;
    if (!found) appendLine(file, entry);
    if (changed) rewrite(file, lines);  // lines that say it already aren't written again
    return value;
}

}  // namespace

/// The file's lines, null where a pass over it has to do: it can't be read, has too many lines or is of a
/// size that no such file has, or was changed so lately that the next change might bear the same time (two
/// seconds apart on the coarsest file systems).
const EntryLines* EntryFiles::kept(const std::string& file) {
    constexpr std::uint64_t kLargest = 1 << 20;
    constexpr std::chrono::seconds kSettled{2};
    const std::optional<platform::FileState> state = platform_.fileState(file);
    const auto known = known_.find(file);
    if (known != known_.end()) {
        if (state == known->second.state) return &known->second.lines;
        known_.erase(known);
    }
    if (!state || state->size > kLargest || std::chrono::system_clock::now() - state->changed < kSettled)
        return nullptr;
    try {
        EntryLines lines(file);
        if (platform_.fileState(file) != state) return nullptr;
        return &known_.emplace(file, Known{*state, std::move(lines)}).first->second.lines;
    } catch (const basic::Error&) {
        return nullptr;  // the pass raises it where the look-up comes to it
    }
}

bool EntryFiles::hasBareLineFeeds(const std::string& file) {
    if (const EntryLines* lines = kept(file)) return lines->firstHasLineFeed();
    TextReader reader(file);
    return !reader.atEnd() && reader.readLine().find('\n') != std::string::npos;
}

std::string EntryFiles::value(const std::string& key, const std::string& file, std::int16_t mode,
                              const std::string& value, Overwrite overwrite) {
    if (key.empty()) return {};
    const std::string trimmed(basic::trim(key));
    const bool writing = mode == -1;
    const std::string entry = trimmed + "=" + value;
    if (const EntryLines* lines = EntryLines::canFind(trimmed) ? kept(file) : nullptr) {
        if (!writing) return mode == 0 ? lines->firstValue(trimmed) : lines->lastValue(trimmed);
        if (lines->says(trimmed, entry, overwrite == Overwrite::EmptyOnly)) return value;
    }
    return passOver(file, trimmed, entry, mode, value, overwrite);
}

}  // namespace session
