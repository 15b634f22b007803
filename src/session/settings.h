#pragma once

#include "basic/variant.h"
#include "platform/platform.h"
#include "session/session.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace session {

/// Modes of `IniValue` and its like. Any other mode reads the whole file and gives the key's last value.
inline constexpr std::int16_t kReadEntry = 0;
inline constexpr std::int16_t kWriteEntry = -1;

/// Reads or writes the entry `Key` of a key=value text file. An empty `File` means the settings file and
/// comes back as its path; `Value` counts in writing only, there is no default value. A write to a file that
/// doesn't exist fails like a read. Raises the file errors of basic/text_file.h, and kOverflow beyond 32,767
/// lines.
std::string IniValue(const Session& session, const std::string& Key, std::string& File, std::int16_t Mode,
                     const std::string& Value);

// The two common uses, on the settings file.
std::string readSetting(const Session& session, const std::string& key);
void writeSetting(const Session& session, const std::string& key, const std::string& value);

/// The key of a cell of `VTable`: "V_", row, "_", column.
std::string tableKey(int row, int column);

/// Prefix of the add-in's keys in the registry.
inline constexpr std::string_view kRegistryPrefix = "Software\\Merovane\\";

/// A registry value as text: a string up to its first NUL, a binary value as the decimal text of its first 16
/// bits. Empty for an absent value and for any other type.
basic::Variant ReadRegistryValue(platform::Platform& platform, platform::RegistryRoot Root,
                                 const std::string& KeyPath, const std::string& ValueName);

}  // namespace session
