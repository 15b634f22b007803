#include "about/register_forms.h"

#include "about/fm_about.h"
#include "about/fm_help.h"
#include "about/fm_help_hidden.h"

namespace about {

using session::Session;

void registerForms(Session& session) {
    session.registerForm("fmAbout", [](Session& s) { return std::make_unique<fmAbout>(s); });
    session.registerForm("fmHelp", [](Session& s) { return std::make_unique<fmHelp>(s); });
    session.registerForm("fmHelpHidden", [](Session& s) { return std::make_unique<fmHelpHidden>(s); });
}

}  // namespace about
