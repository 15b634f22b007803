#pragma once

#include "session/session.h"

namespace about {

/// Tells the session how fmAbout, fmHelp and fmHelpHidden are made.
void registerForms(session::Session& session);

}  // namespace about
