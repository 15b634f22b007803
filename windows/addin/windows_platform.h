#pragma once

#include "platform/platform.h"

#include <functional>
#include <string>

namespace addin {

/// The platform on Windows. Paths longer than the system's old limit go in the form that has none.
class WindowsPlatform : public platform::Platform {
  public:
    /// `module` is the add-in's own module handle; `language` gives the display name of the current language,
    /// which decides the help's.
    WindowsPlatform(void* module, std::function<std::string()> language);

    /// Where the root asked for has no such value, the current user's own root is asked: an installation for
    /// one user has it there.
    std::optional<platform::RegistryValue> queryRegistry(platform::RegistryRoot root,
                                                         std::string_view keyPath,
                                                         std::string_view valueName) override;
    std::vector<std::string> folderFiles(const std::string& folder) override;
    std::optional<platform::FileState> fileState(const std::string& path) override;
    std::string joinPath(std::string_view folder, std::string_view name) override;
    std::string baseName(std::string_view path) override;
    std::string ownFolder() override;
    void openDocument(const std::string& document, const std::string& parameters,
                      const std::string& folder) override;
    /// In the system's help viewer. The file's numbers open the French pages, the same numbers plus 1,000,000
    /// the English ones, which serve every other language.
    void showHelp(const std::string& helpFile, std::optional<std::int32_t> context) override;
    const basic::Regional& regional() override;
    void initCommonControls() override;

  private:
    void* module_;
    std::function<std::string()> language_;
    basic::Regional regional_;
};

}  // namespace addin
