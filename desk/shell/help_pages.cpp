#include "desk/shell/help_pages.h"

#include "basic/code_page.h"

#include <fstream>

namespace shell {

namespace fs = std::filesystem;

namespace {

constexpr const char* kOtherwise = "en";

/// The second word of the table's line that begins with `number`.
std::string pageOf(const fs::path& table, std::int32_t number) {
    std::ifstream file(table);
    std::string page, rest;
    for (std::int32_t context = 0; file >> context >> page; std::getline(file, rest)) {
        if (context == number) return page;
    }
    return {};
}

/// The folder of the language of that name: a line is a folder, a blank, a name. A user may have saved the
/// table with any line ends, in UTF-8 or in the single-byte code page.
std::string folderOf(const fs::path& table, std::string_view language) {
    std::ifstream file(table);
    std::string folder, name;
    while (file >> folder && std::getline(file >> std::ws, name)) {
        if (name.ends_with('\r')) name.pop_back();
        if (name == language || basic::fromCodePage(name) == language) return folder;
    }
    return kOtherwise;
}

}  // namespace

std::optional<fs::path> helpPage(const fs::path& help, std::optional<std::int32_t> context,
                                 std::string_view language) {
    const std::string name = pageOf(help / "contexts.txt", context.value_or(0));
    if (name.empty()) return std::nullopt;
    for (const std::string& folder : {folderOf(help / "languages.txt", language), std::string(kOtherwise)}) {
        const fs::path page = help / folder / (name + ".html");
        std::error_code error;
        if (fs::is_regular_file(page, error)) return page;
    }
    return std::nullopt;
}

}  // namespace shell
