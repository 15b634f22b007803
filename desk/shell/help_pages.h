#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace shell {

/// The page that a help context number opens, of the folder `help` with its tables contexts.txt and
/// languages.txt: in the language of that display name, else in English, also where that language lacks the
/// page. No number means the start page. Nothing where the tables know no such page.
std::optional<std::filesystem::path> helpPage(const std::filesystem::path& help,
                                              std::optional<std::int32_t> context, std::string_view language);

}  // namespace shell
