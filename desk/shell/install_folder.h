#pragma once

#include <filesystem>
#include <string>

namespace shell {

/// Makes the user's install folder at the first start and keeps it complete: the delivered language files,
/// the help and an empty settings file. A delivered file that the user didn't change is brought up to date
/// with the program; one that the user changed, and every file that wasn't delivered, is left alone. Where no
/// choice of language is stored yet, `language` (a language's display name) is stored. Raises
/// kPermissionDenied and its like, with the folder's name, where the folder can't be written.
void prepareInstallFolder(const std::filesystem::path& folder, const std::filesystem::path& resources,
                          const std::string& language);

/// Stores a choice of language in the settings file, in place of the one of before.
void chooseLanguage(const std::filesystem::path& folder, const std::string& language);

/// The display name of the language that the settings file of an install folder holds; empty for none. Raises
/// the file errors of basic/text_file.h.
std::string storedLanguage(const std::filesystem::path& folder);

}  // namespace shell
