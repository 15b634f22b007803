#pragma once

#include <string_view>

namespace platform {

/// What the component's version resource says.
struct VersionResource {
    std::string_view productName;
    int major;
    int minor;
    std::string_view legalCopyright;
    std::string_view companyName;
};

inline constexpr VersionResource kVersion{"Vorlane", 1, 0, "Copyright \u00A9 2026", "Merovane"};

}  // namespace platform
