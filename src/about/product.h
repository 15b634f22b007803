#pragma once

#include "platform/version.h"

#include <string>
#include <string_view>

namespace about {

// What the add-in says about itself. Name, version, copyright and company come from its version resource.

/// The address of the product's site, without a slash at the end. The build sets it: VORLANE_SITE.
inline constexpr std::string_view kSite = VORLANE_SITE;

/// The product notice of fmAbout: one text for every language, so it speaks both.
inline constexpr std::string_view kNotice =
    "Vorlane gère les références de bloc d'un dessin : remplacement, étiquetage, extraction et "
    "réinsertion.\r\n"
    "Logiciel libre sous licence MIT, livré sans aucune garantie.\r\n"
    "\r\n"
    "Vorlane manages the block references of a drawing: replacement, labelling, extraction and "
    "re-insertion.\r\n"
    "Free software under the MIT licence, without any warranty.";

inline std::string copyrightLine() {
    return std::string(platform::kVersion.legalCopyright).append(" ").append(platform::kVersion.companyName);
}

}  // namespace about
