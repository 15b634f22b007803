#include "desk/jobs/table_output.h"

#include "basic/error.h"

#include <fstream>

namespace jobs {

void writeTable(const std::string& path, const Table& table, const Arguments& arguments,
                const basic::Regional& regional) {
    const std::string wanted = arguments.value("--encoding");
    const bool utf8 = wanted.empty() ? isCsv(path) : wanted == "utf8";
    const Encoding encoding = utf8 ? Encoding::Utf8 : Encoding::CodePage;
    const std::string bytes = isCsv(path) ? toCsv(table, regional.decimal == "," ? ';' : ',', encoding)
                                          : toTabText(table, encoding);
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << bytes;
    file.close();
    if (!file) throw basic::Error(basic::kDeviceError, path + ": can't be written");
}

std::string handleText(drawing::Handle handle) {
    std::string digits;
    do {
        digits.insert(digits.begin(), "0123456789ABCDEF"[handle % 16]);
        handle /= 16;
    } while (handle != 0);
    return digits;
}

}  // namespace jobs
