#pragma once

#include "basic/numbers.h"

#include <string>
#include <string_view>
#include <vector>

namespace jobs {

/// A table of texts: one line of headers, rows of cells.
struct Table {
    std::string block;  ///< the block that a block data file's title names; empty for none
    std::vector<std::string> headers;
    std::vector<std::vector<std::string>> rows;

    /// The column of a header without regard to case, -1 for none.
    int column(std::string_view header) const;
};

enum class Encoding { CodePage, Utf8 };

/// Whether a file of that name is comma-separated rather than tab-separated text.
bool isCsv(std::string_view path);

/// The bytes of a block data file: tab-separated, with its title line.
std::string toTabText(const Table& table, Encoding encoding);
/// The bytes of a .csv file: no title line, fields quoted where they must be.
std::string toCsv(const Table& table, char separator, Encoding encoding);

/// Reads either form: a title line may be there or not, the separator (tab, semicolon, comma) is that of the
/// line of headers, quoted fields may hold line ends. UTF-8 where the bytes are, else the single-byte code
/// page. Raises basic::Error with the file's name where it can't be read or has no headers.
Table readTable(const std::string& path);

/// Adds `other` behind: columns are matched by header, new ones go in before the column `before`.
void appendTable(Table& table, const Table& other, std::string_view before);

/// A value as a cell: what a spreadsheet would take for something else (1/2, 1E5, =A, a decimal of the other
/// separator) gets an apostrophe in front, as does what begins with one. `fromSpreadsheet` takes it away.
std::string forSpreadsheet(const std::string& value, const basic::Regional& regional);
std::string fromSpreadsheet(const std::string& cell);
/// Whether both texts are the same plain number, written in different ways: 007 and 7, 85.580 and 85,58.
bool isSameNumber(std::string_view left, std::string_view right);

}  // namespace jobs
