#include "desk/dxf/version.h"

#include <array>
#include <charconv>

namespace dxf {

namespace {

struct Release {
    int number;
    Version version;
    std::string_view name;
};

constexpr std::array kReleases{
    Release{1004, Version::R9, "R9"},       Release{1006, Version::R10, "R10"},
    Release{1009, Version::R12, "R12"},     Release{1012, Version::R13, "R13"},
    Release{1014, Version::R14, "R14"},     Release{1015, Version::R2000, "R2000"},
    Release{1018, Version::R2004, "R2004"}, Release{1021, Version::R2007, "R2007"},
    Release{1024, Version::R2010, "R2010"}, Release{1027, Version::R2013, "R2013"},
    Release{1032, Version::R2018, "R2018"},
};

/// The digits behind "AC", or -1.
int versionNumber(std::string_view acadVer) {
    if (acadVer.size() < 3 || !acadVer.starts_with("AC")) return -1;
    int number = -1;
    const auto [end, error] = std::from_chars(acadVer.data() + 2, acadVer.data() + acadVer.size(), number);
    // "AC1.50" and "AC2.10" are the numbers of releases before R9.
    if (error != std::errc()) return -1;
    return end != acadVer.data() + acadVer.size() && *end == '.' ? 0 : number;
}

}  // namespace

Version versionFromText(std::string_view acadVer) {
    const int number = versionNumber(acadVer);
    if (number < 0) return Version::R12;
    Version version = Version::R9;
    for (const Release& release : kReleases)
        if (number >= release.number) version = release.version;
    return version;
}

bool isKnownVersion(std::string_view acadVer) {
    const int number = versionNumber(acadVer);
    return number >= 0 && number <= kReleases.back().number;
}

std::string_view versionName(Version version) { return kReleases[static_cast<std::size_t>(version)].name; }

}  // namespace dxf
