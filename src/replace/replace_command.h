#pragma once

#include "session/session.h"

namespace replace {

using session::Session;

/// Tells the session how the dialogs of the replacement are made.
void registerForms(Session& session);

/// The command: takes the drawing's first selection set, or makes the set "SS1" if the drawing has none,
/// empties it and shows fmReplace until it is hidden for good. The dialog asks for another showing, with the
/// replacement block that it has found, by its flag. Raises what the host raises.
void RunReplaceCommand(Session& session);

}  // namespace replace
