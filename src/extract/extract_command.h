#pragma once

#include "session/session.h"

namespace extract {

using session::Session;

/// Tells the session how the dialogs of extraction and re-insertion are made.
void registerForms(Session& session);

/// The command of the re-insertion: shows fmReInsert until it has been closed by its button; any other way
/// out brings it back. The extraction has no starter, its dialog comes back by itself.
void StartReInsert(Session& session);

}  // namespace extract
