#include "desk/shell/html_text.h"

#include "basic/text.h"

#include <charconv>
#include <vector>

namespace shell {

namespace {

constexpr std::size_t kColumns = 78;

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

std::size_t columnsOf(std::string_view text) {
    std::size_t columns = 0;
    for (std::size_t position = 0; position < text.size(); ++columns) basic::nextCharacter(text, position);
    return columns;
}

/// The character of an entity's name, without ampersand and semicolon; empty for an unknown one.
std::string entity(std::string_view name) {
    if (name == "lt") return "<";
    if (name == "gt") return ">";
    if (name == "amp") return "&";
    if (name == "quot") return "\"";
    if (name == "nbsp") return " ";
    if (!name.starts_with('#')) return {};
    const bool hex = name.size() > 1 && (name[1] == 'x' || name[1] == 'X');
    unsigned code = 0;
    const char* end = name.data() + name.size();
    const auto read = std::from_chars(name.data() + (hex ? 2 : 1), end, code, hex ? 16 : 10);
    std::string character;
    if (read.ec == std::errc() && read.ptr == end) basic::appendCharacter(character, code);
    return character;
}

std::string decoded(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t start = text.find('&');
        result += text.substr(0, start);
        if (start == std::string_view::npos) break;
        text.remove_prefix(start);
        const std::size_t end = text.find(';');
        const std::string character = end == std::string_view::npos ? "" : entity(text.substr(1, end - 1));
        result += character.empty() ? "&" : character;
        text.remove_prefix(character.empty() ? 1 : end + 1);
    }
    return result;
}

/// Gathers the words of a block and writes it out, wrapped, when the block ends.
class Writer {
  public:
    void add(std::string_view text) {
        for (const char c : text) {
            if (!isBlank(c)) {
                block_ += c;
            } else if (!block_.empty() && block_.back() != ' ') {
                block_ += ' ';
            }
        }
    }

    /// Ends the block: its first line begins with `first`, the further ones with as many blanks.
    void end(std::string_view first, char underline = 0) {
        if (!block_.empty() && block_.back() == ' ') block_.pop_back();
        if (block_.empty()) return;
        const std::size_t width = columnsOf(block_);
        wrap(first);
        if (underline != 0) result_ += std::string(std::min(width, kColumns), underline) + "\n";
        block_.clear();
    }

    void emptyLine() {
        if (!result_.empty() && !result_.ends_with("\n\n")) result_ += '\n';
    }

    std::string take() { return std::move(result_); }

  private:
    void wrap(std::string_view first) {
        const std::string margin(first.size(), ' ');
        std::string line(first);
        std::string_view words = block_;
        for (bool fresh = true; !words.empty(); fresh = false) {
            const std::string_view word = words.substr(0, words.find(' '));
            if (!fresh && columnsOf(line) + 1 + columnsOf(word) > kColumns) {
                result_ += line + "\n";
                line = margin;
                fresh = true;
            }
            if (!fresh) line += ' ';
            line += word;
            words.remove_prefix(std::min(words.size(), word.size() + 1));
        }
        result_ += line + "\n";
    }

    std::string block_;
    std::string result_;
};

class Converter {
  public:
    std::string convert(std::string_view html) {
        while (!html.empty()) {
            const std::size_t open = html.find('<');
            if (skipped_.empty()) writer_.add(decoded(html.substr(0, open)));
            if (open == std::string_view::npos) break;
            const std::size_t close = html.find('>', open);
            if (close == std::string_view::npos) break;
            tag(html.substr(open + 1, close - open - 1));
            html.remove_prefix(close + 1);
        }
        writer_.end("");
        return writer_.take();
    }

  private:
    void tag(std::string_view tag) {
        const bool closing = tag.starts_with('/');
        if (closing) tag.remove_prefix(1);
        const std::string_view name = tag.substr(0, tag.find_first_of(" \t\r\n/"));
        if (!skipped_.empty()) {
            if (closing && name == skipped_) skipped_ = {};
        } else if (closing) {
            end(name);
        } else {
            begin(name, tag);
        }
    }

    void begin(std::string_view name, std::string_view tag) {
        if (name == "head" || (name == "p" && tag.find("class=\"nav\"") != std::string_view::npos)) {
            skipped_ = name;
        } else if (name == "ul" || name == "ol") {
            lists_.push_back(name == "ol" ? 1 : 0);
        } else if (name == "h1" || name == "h2" || name == "p") {
            writer_.emptyLine();
        }
    }

    void end(std::string_view name) {
        if (name == "h1") {
            writer_.end("", '=');
        } else if (name == "h2") {
            writer_.end("", '-');
        } else if (name == "p") {
            writer_.end("");
        } else if (name == "li") {
            writer_.end(bullet());
        } else if (name == "th") {
            writer_.end("  ");
        } else if (name == "td") {
            writer_.end("      ");
        } else if ((name == "ul" || name == "ol") && !lists_.empty()) {
            lists_.pop_back();
        }
    }

    /// What an entry of the innermost list begins with.
    std::string bullet() {
        if (lists_.empty() || lists_.back() == 0) return "  - ";
        return "  " + std::to_string(lists_.back()++) + ". ";
    }

    Writer writer_;
    std::vector<int> lists_;    ///< the open lists: the next number, 0 for one without numbers
    std::string_view skipped_;  ///< the element whose text is left out
};

}  // namespace

std::string htmlToText(std::string_view html) { return Converter().convert(html); }

}  // namespace shell
