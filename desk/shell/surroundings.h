#pragma once

#include "basic/numbers.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace shell {

/// Reads an environment variable; an unset one gives an empty text. Tests hand in their own.
using ReadVariable = std::function<std::string(const char* name)>;
std::string readEnvironment(const char* name);

/// Whether the user's desktop speaks French: LC_ALL, LC_MESSAGES, LANG, the first that is set.
bool isFrenchDesktop(const ReadVariable& variable);

/// The display name of the language of a code, "fr" or "en"; empty for another code.
std::string languageByCode(std::string_view code);

/// "fr" or "en" as regional settings, nothing for another name.
std::optional<basic::Regional> regionalByName(std::string_view name);
/// The desktop's settings for numbers: LC_ALL, LC_NUMERIC, LANG, the first that is set; French or English.
basic::Regional desktopRegional(const ReadVariable& variable);

/// Where the user's install folder is: "vorlane" below $XDG_DATA_HOME, else below ~/.local/share. Raises
/// kPathNotFound where neither it nor $HOME is set.
std::filesystem::path installFolder(const ReadVariable& variable);

/// Where what must outlive a session lies: "vorlane" below $XDG_STATE_HOME, else below ~/.local/state; empty
/// where neither is set.
std::filesystem::path stateFolder(const ReadVariable& variable);

/// The running program's file, and the delivered resources beside it: ../share/vorlane, or where the build
/// found them.
std::filesystem::path programFile();
std::filesystem::path resourceFolder();

}  // namespace shell
