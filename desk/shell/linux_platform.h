#pragma once

#include "platform/platform.h"

#include <filesystem>
#include <functional>
#include <string>

namespace shell {

/// The platform on Linux. The registry's one value is the user's install folder.
class LinuxPlatform : public platform::Platform {
  public:
    using Tell = std::function<void(const std::string& text)>;

    /// Shows a help page with its pictures; false where it can't.
    using ShowPage = std::function<bool(const std::filesystem::path& page)>;

    /// `tell` receives what can't be shown otherwise: an address where there is no desktop to open it, a help
    /// page without `showPage`.
    LinuxPlatform(std::filesystem::path installFolder, basic::Regional regional, Tell tell,
                  ShowPage showPage = {});

    std::optional<platform::RegistryValue> queryRegistry(platform::RegistryRoot root,
                                                         std::string_view keyPath,
                                                         std::string_view valueName) override;
    /// In the order of the names' bytes, so that every start finds the same first language.
    std::vector<std::string> folderFiles(const std::string& folder) override;
    std::optional<platform::FileState> fileState(const std::string& path) override;
    std::string joinPath(std::string_view folder, std::string_view name) override;
    std::string baseName(std::string_view path) override;
    std::string ownFolder() override;
    /// With xdg-open where there is a display; parameters and folder serve nothing here.
    void openDocument(const std::string& document, const std::string& parameters,
                      const std::string& folder) override;
    /// Shows or tells the page, from the folder "help" beside the help file, in the language that is stored.
    void showHelp(const std::string& helpFile, std::optional<std::int32_t> context) override;
    const basic::Regional& regional() override { return regional_; }
    void initCommonControls() override {}

  private:
    std::filesystem::path installFolder_;
    basic::Regional regional_;
    Tell tell_;
    ShowPage showPage_;
};

}  // namespace shell
