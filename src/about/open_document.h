#pragma once

#include "session/session.h"

#include <string>
#include <string_view>

namespace about {

/// Hands an address to the shell's open action. The outcome isn't looked at.
void OpenDocument(const session::Session& session, const std::string& Url);

/// The address of a page of the product's site; `query` begins with a slash.
std::string siteAddress(std::string_view query);

}  // namespace about
