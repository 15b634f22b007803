#include "about/open_document.h"

#include "about/product.h"
#include "platform/platform.h"

namespace about {

void OpenDocument(const session::Session& session, const std::string& Url) {
    // Parameters and folder go as the text "0", not as empty ones.
    session.platform().openDocument(Url, "0", "0");
}

std::string siteAddress(std::string_view query) { return std::string(kSite) + std::string(query); }

}  // namespace about
