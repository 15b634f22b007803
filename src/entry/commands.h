#pragma once

#include "session/session.h"

#include <string_view>

namespace entry {

using session::Session;

// The starters of the commands that this room owns itself. Each shows its dialog once, modally, with fmOwner
// as owner.

void StartHelp(Session& session);
void StartAbout(Session& session);

/// Runs the command of that code, compared as text ("01" is none); any other code does nothing, without a
/// message.
void runCommand(Session& session, std::string_view CmdCode);

}  // namespace entry
