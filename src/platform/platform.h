#pragma once

#include "basic/numbers.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// The registry's root keys in use, by their numbers on Windows.
enum class RegistryRoot : std::uint32_t { LocalMachine = 0x80000002 };  ///< HKEY_LOCAL_MACHINE

/// Types of a registry value that are told apart.
enum RegistryType : std::uint32_t { kRegistryString = 1, kRegistryBinary = 3 };

/// A registry value as the query gives it. The bytes of a string are UTF-8 and may end in a NUL.
struct RegistryValue {
    std::uint32_t type = 0;
    std::string bytes;
};

/// What tells that a file isn't what it was.
struct FileState {
    std::chrono::system_clock::time_point changed;  ///< as finely as the file system counts
    std::uint64_t size = 0;
    std::uint64_t number = 0;  ///< another one for a file that took its place
    bool operator==(const FileState&) const = default;
};

/// The few things that the logic asks of the operating system. Paths and texts are UTF-8.
class Platform {
  public:
    virtual ~Platform() = default;

    /// The value `valueName` of the key `keyPath` below `root`, key parts parted by backslashes. Nothing
    /// where key or value is absent.
    virtual std::optional<RegistryValue> queryRegistry(RegistryRoot root, std::string_view keyPath,
                                                       std::string_view valueName) = 0;

    /// The full paths of a folder's files, without its folders, in the order in which the system enumerates
    /// them. Raises kPathNotFound where there is no such folder.
    virtual std::vector<std::string> folderFiles(const std::string& folder) = 0;
    /// Nothing for what isn't there or is no file, such as a folder or a pipe.
    virtual std::optional<FileState> fileState(const std::string& path) = 0;
    /// `folder`, the system's separator, `name`: always in this form, so that an empty folder gives a path
    /// that leads nowhere, never a file of the current folder.
    virtual std::string joinPath(std::string_view folder, std::string_view name) = 0;
    /// The last part of a path without its last extension: "/plans/porte.v2.dxf" gives "porte.v2".
    virtual std::string baseName(std::string_view path) = 0;
    /// The folder of the add-in itself, where it was loaded from.
    virtual std::string ownFolder() = 0;

    /// The shell's open action on a document or an address, with a normal show state. The outcome isn't told.
    virtual void openDocument(const std::string& document, const std::string& parameters,
                              const std::string& folder) = 0;
    /// Opens a help file at the topic of a help context number, or at its start page.
    virtual void showHelp(const std::string& helpFile, std::optional<std::int32_t> context) = 0;

    /// The user's settings for numbers, as they are now.
    virtual const basic::Regional& regional() = 0;

    /// Called as each dialog is set up, for systems whose list views and the like must be initialised first.
    virtual void initCommonControls() = 0;
};

}  // namespace platform
