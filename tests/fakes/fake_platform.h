#pragma once

#include "basic/error.h"
#include "platform/platform.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace fakes {

/// A platform on real folders of the machine with a registry in memory. It logs what was opened.
class FakePlatform : public platform::Platform {
  public:
    std::map<std::string, platform::RegistryValue> registry;  ///< by key path, backslash, value name
    std::vector<std::string> opened;                          ///< "document|parameters|folder"
    std::vector<std::string> helps;  ///< "file|context", the context empty for the start page
    int commonControls = 0;          ///< calls of initCommonControls
    std::string own = "/nowhere";    ///< the add-in's own folder
    basic::Regional numbers = basic::Regional::english();
    std::vector<std::string> order;  ///< names that come first in an enumeration, in this order

    /// Names `folder` as the install folder of version 1.0.
    void install(const std::string& folder) {
        registry["Software\\Merovane\\Vorlane\\1.0\\InstallPath"] = {platform::kRegistryString,
                                                                     folder + '\0'};
    }

    std::optional<platform::RegistryValue> queryRegistry(platform::RegistryRoot, std::string_view keyPath,
                                                         std::string_view valueName) override {
        const auto found = registry.find(std::string(keyPath) + "\\" + std::string(valueName));
        if (found == registry.end()) return std::nullopt;
        return found->second;
    }
    /// The names of `order` first, then the others by name.
    std::vector<std::string> folderFiles(const std::string& folder) override {
        namespace fs = std::filesystem;
        if (!fs::is_directory(folder)) throw basic::Error(basic::kPathNotFound);
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder))
            if (!entry.is_directory()) names.push_back(entry.path().filename().string());
        const auto rank = [&](const std::string& name) {
            return std::find(order.begin(), order.end(), name) - order.begin();
        };
        std::sort(names.begin(), names.end(), [&](const std::string& a, const std::string& b) {
            return std::pair(rank(a), a) < std::pair(rank(b), b);
        });
        for (std::string& name : names) name = joinPath(folder, name);
        return names;
    }
    std::optional<platform::FileState> fileState(const std::string& path) override {
        namespace fs = std::filesystem;
        if (!fs::is_regular_file(path)) return std::nullopt;
        const auto written = std::chrono::file_clock::to_sys(fs::last_write_time(path));
        return platform::FileState{std::chrono::time_point_cast<std::chrono::system_clock::duration>(written),
                                   fs::file_size(path), 0};
    }
    std::string joinPath(std::string_view folder, std::string_view name) override {
        return std::string(folder) + "/" + std::string(name);
    }
    std::string baseName(std::string_view path) override {
        return std::filesystem::path(path).stem().string();
    }
    std::string ownFolder() override { return own; }
    void openDocument(const std::string& document, const std::string& parameters,
                      const std::string& folder) override {
        opened.push_back(document + "|" + parameters + "|" + folder);
    }
    void showHelp(const std::string& helpFile, std::optional<std::int32_t> context) override {
        helps.push_back(helpFile + "|" + (context ? std::to_string(*context) : ""));
    }
    const basic::Regional& regional() override { return numbers; }
    void initCommonControls() override { ++commonControls; }
};

}  // namespace fakes
