#include "extract/block_data_file.h"

#include "basic/error_state.h"

namespace extract {
namespace {

constexpr std::string_view kTab = "\t";
constexpr std::string_view kTitle = "Données du bloc ";

std::string columnLine(const forms::ColumnHeaders& headers) {
    // Without any column there is no first header to begin with, and the line is empty.
    std::string line = headers.count() > 0 ? headers.item(1).text : "";
    for (int i = 2; i <= headers.count(); ++i) line.append(kTab).append(headers.item(i).text);
    return line;
}

/// One field a column, set or not.
void fillRowLine(std::string& line, const forms::ListItem& row, int columns) {
    line = row.text();
    for (int i = 1; i < columns; ++i) line.append(kTab).append(row.subItem(i));
}

}  // namespace

void writeBlockData(const std::string& path, const std::string& blockName, const forms::ListView& table) {
    basic::ErrorState errors;  // errors are ignored throughout
    std::optional<basic::TextWriter> file;
    errors.skip([&] { file.emplace(path, basic::TextWriter::Mode::Replace); });
    if (!file) return;
    errors.skip([&] { file->writeLine(std::string(kTitle).append(kTab).append(blockName)); });
    errors.skip([&] { file->writeLine(columnLine(table.columnHeaders())); });
    const int columns = table.columnHeaders().count();
    const forms::ListItems& rows = table.listItems();
    std::string line;
    for (int i = 1; i <= rows.count(); ++i) {
        errors.skip([&] { fillRowLine(line, rows.item(i), columns); });
        errors.skip([&] { file->writeLine(line); });
    }
    errors.skip([&] { file->close(); });
}

BlockDataReader::BlockDataReader(const std::string& path) {
    basic::ErrorState errors;
    errors.skip([&] { file_.emplace(path); });
}

bool BlockDataReader::next() {
    // A file that isn't open never comes to its end: reading stops here, so that the dialog comes back.
    if (!file_ || file_->atEnd()) return false;
    basic::ErrorState errors;
    errors.skip([&] { splitFieldsInto(fields_, kTab, file_->readLine()); });
    return true;
}

}  // namespace extract
