#pragma once

#include "basic/variant.h"
#include "session/session.h"

#include <cstdint>
#include <string>

namespace language {

using session::Session;

/// Builds the list of languages from the language folder, or from "Languages" in the add-in's own folder
/// where no folder is set, and makes the current language's name of the settings current. Raises
/// kPathNotFound for a missing folder, kOverflow beyond 32,767 languages, and the file errors of a language
/// file that can't be read.
void LoadLanguages(Session& session);

/// Makes the language of that name current, compared exactly, and saves the choice at once; a name that the
/// list lacks falls to its first language. Raises nothing: with an empty list all stays as it was.
void SetLanguage(Session& session, const std::string& Name);

/// Reads or writes an entry of a language file, as `IniValue` does for the settings. An empty `File` means
/// the current language's file and comes back as its path. A write replaces an existing entry only if it is
/// empty.
std::string LngValue(const Session& session, const std::string& Key, std::string& File, std::int16_t Mode,
                     const std::string& Value);

/// The message of that number in the current language, empty if its file lacks it. Raises a file error where
/// no language is current.
std::string GetMsg(const Session& session, std::int32_t Id);

/// The text of `Key` with each pair of backslashes as a line break and each "{n}" as element n of `Args`.
std::string LngFormat(const Session& session, const std::string& Key, const basic::Array& Args);

}  // namespace language
