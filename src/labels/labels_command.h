#pragma once

#include "session/session.h"

namespace labels {

using session::Session;

/// Tells the session how the dialogs of the labelling are made.
void registerForms(Session& session);

/// The command: fills the lists of modes and of decimals, empties the table of the attributes' formats and
/// shows fmLabels once, modally; the dialog brings itself back after each step in the drawing. Raises what
/// the creation of a dialog raises.
void StartLabels(Session& session);

}  // namespace labels
