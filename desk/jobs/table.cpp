#include "desk/jobs/table.h"

#include "basic/code_page.h"
#include "basic/error.h"
#include "basic/text.h"
#include "basic/text_file.h"

#include <algorithm>
#include <map>
#include <optional>

namespace jobs {

namespace {

constexpr std::string_view kTitle = "Données du bloc ";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string encoded(const std::string& text, Encoding encoding) {
    return encoding == Encoding::Utf8 ? text : basic::toCodePage(text);
}

bool isUtf8(std::string_view bytes) {
    for (std::size_t position = 0; position < bytes.size();) {
        const char32_t character = basic::nextCharacter(bytes, position);
        if (character >= 0xDC00 && character <= 0xDFFF) return false;  // an ill-formed byte
    }
    return true;
}

/// The records of separated text. A quote counts only at the start of a field.
std::vector<std::vector<std::string>> split(std::string_view text, char separator) {
    std::vector<std::vector<std::string>> records(1);
    std::string field;
    bool quoted = false;
    const auto endField = [&] {
        records.back().push_back(std::move(field));
        field.clear();
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quoted) {
            if (c == '"' && i + 1 < text.size() && text[i + 1] == '"') {
                field += text[++i];
            } else if (c == '"') {
                quoted = false;
            } else {
                field += c;
            }
        } else if (c == '"' && field.empty() && separator != '\t') {
            quoted = true;
        } else if (c == separator) {
            endField();
        } else if (c == '\r' || c == '\n') {
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
            endField();
            records.emplace_back();
        } else {
            field += c;
        }
    }
    if (field.empty() && records.back().empty()) {
        records.pop_back();
    } else {
        endField();
    }
    return records;
}

bool isTitle(std::string_view line) {
    if (line.starts_with('"')) line.remove_prefix(1);
    return line.starts_with(kTitle.substr(0, kTitle.size() - 1));
}

std::string_view lineAt(std::string_view text, std::size_t begin) {
    return text.substr(begin, std::min(text.find_first_of("\r\n", begin), text.size()) - begin);
}

/// The separator that a line of headers has most of.
char separatorOf(std::string_view line) {
    char best = '\t';
    std::ptrdiff_t most = 0;
    for (const char candidate : {'\t', ';', ','}) {
        const auto count = std::count(line.begin(), line.end(), candidate);
        if (count > most) {
            most = count;
            best = candidate;
        }
    }
    return best;
}

std::string quoted(const std::string& field, char separator) {
    const bool plain = field.find_first_of(std::string("\"\r\n") + separator) == std::string::npos &&
                       !field.starts_with(' ') && !field.ends_with(' ');
    return plain ? field : '"' + basic::replaceAll(field, "\"", "\"\"") + '"';
}

}  // namespace

int Table::column(std::string_view header) const {
    for (std::size_t i = 0; i < headers.size(); ++i) {
        if (basic::equalIgnoringCase(headers[i], header)) return static_cast<int>(i);
    }
    return -1;
}

bool isCsv(std::string_view path) {
    return path.size() > 4 && basic::equalIgnoringCase(path.substr(path.size() - 4), ".csv");
}

std::string toTabText(const Table& table, Encoding encoding) {
    std::string text = std::string(kTitle).append("\t").append(table.block).append(kLineEnd);
    const auto addLine = [&](const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (i > 0) text += '\t';
            // A tab or a line end inside a value would be a column or a row of its own.
            for (const char c : cells[i]) text += c == '\t' || c == '\r' || c == '\n' ? ' ' : c;
        }
        text += kLineEnd;
    };
    addLine(table.headers);
    for (const auto& row : table.rows) addLine(row);
    return encoded(std::move(text), encoding);
}

std::string toCsv(const Table& table, char separator, Encoding encoding) {
    std::string text;
    const auto addLine = [&](const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (i > 0) text += separator;
            text += quoted(cells[i], separator);
        }
        text += kLineEnd;
    };
    addLine(table.headers);
    for (const auto& row : table.rows) addLine(row);
    return encoded(std::move(text), encoding);
}

Table readTable(const std::string& path) {
    std::string text = basic::readBytes(path);
    if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
    if (!isUtf8(text)) text = basic::fromCodePage(text);

    std::string_view rest = text;
    const bool titled = isTitle(rest);
    std::size_t headerLine = 0;
    if (titled) {
        headerLine = lineAt(rest, 0).size();
        while (headerLine < rest.size() && (rest[headerLine] == '\r' || rest[headerLine] == '\n'))
            ++headerLine;
    }
    const char separator = separatorOf(lineAt(rest, headerLine));
    std::vector<std::vector<std::string>> records = split(rest, separator);
    Table table;
    if (titled && !records.empty()) {
        if (records.front().size() > 1) table.block = records.front()[1];
        records.erase(records.begin());
    }
    if (records.empty()) throw basic::Error(basic::kInputPastEnd, path + ": no line of column headers");
    table.headers = std::move(records.front());
    for (std::size_t i = 1; i < records.size(); ++i) {
        // A blank line is no row.
        if (records[i].size() > 1 || !records[i].front().empty()) table.rows.push_back(std::move(records[i]));
    }
    return table;
}

void appendTable(Table& table, const Table& other, std::string_view before) {
    if (table.block.empty()) table.block = other.block;
    // Several columns of one header are matched in their order.
    std::map<std::string, int> seen;
    std::vector<std::size_t> target;
    const auto occurrence = [&](const std::string& header, int wanted) {
        int found = 0;
        for (std::size_t i = 0; i < table.headers.size(); ++i) {
            if (table.headers[i] == header && found++ == wanted) return static_cast<int>(i);
        }
        return -1;
    };
    for (const std::string& header : other.headers) {
        int at = occurrence(header, seen[header]++);
        if (at < 0) {
            const int place = table.column(before);
            at = place < 0 || table.rows.empty() ? static_cast<int>(table.headers.size()) : place;
            table.headers.insert(table.headers.begin() + at, header);
            for (auto& row : table.rows) {
                if (row.size() > static_cast<std::size_t>(at)) row.insert(row.begin() + at, std::string());
            }
            for (std::size_t& earlier : target) earlier += earlier >= static_cast<std::size_t>(at) ? 1 : 0;
        }
        target.push_back(static_cast<std::size_t>(at));
    }
    for (const auto& row : other.rows) {
        std::vector<std::string> cells(table.headers.size());
        for (std::size_t i = 0; i < row.size() && i < target.size(); ++i) cells[target[i]] = row[i];
        table.rows.push_back(std::move(cells));
    }
}

namespace {

/// A sign, digits, and digits behind one of the separators; nothing for a text of another form, or of more
/// digits than a spreadsheet keeps.
std::optional<double> plainNumber(std::string_view text, std::string_view separators) {
    constexpr int kMostDigits = 15;
    std::string number;
    int digits = 0;
    bool separated = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            number += c;
            ++digits;
        } else if (i == 0 && (c == '-' || c == '+')) {
            if (c == '-') number += c;
        } else if (!separated && digits > 0 && separators.find(c) != std::string_view::npos) {
            separated = true;
            number += '.';
        } else {
            return std::nullopt;
        }
    }
    if (digits == 0 || digits > kMostDigits) return std::nullopt;
    return basic::leadingNumber(number);
}

}  // namespace

std::string forSpreadsheet(const std::string& value, const basic::Regional& regional) {
    if (value.empty()) return value;
    const bool truth = basic::equalIgnoringCase(value, "true") || basic::equalIgnoringCase(value, "false");
    const bool startsLikeNumber = std::string_view("0123456789+-=@.,'").find(value[0]) != std::string::npos;
    if (!truth && (!startsLikeNumber || plainNumber(value, regional.decimal))) return value;
    return "'" + value;
}

std::string fromSpreadsheet(const std::string& cell) {
    return cell.starts_with('\'') ? cell.substr(1) : cell;
}

bool isSameNumber(std::string_view left, std::string_view right) {
    const std::optional<double> first = plainNumber(left, ".,");
    return first && first == plainNumber(right, ".,");
}

}  // namespace jobs
