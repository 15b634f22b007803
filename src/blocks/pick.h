#pragma once

#include "host/document.h"
#include "host/entities.h"
#include "session/session.h"

#include <string>
#include <string_view>

namespace blocks {

using session::Session;

/// Lets the user pick a block reference, with `prompt` at the host's command line. Whatever goes wrong,
/// Escape included, brings a message box: OK picks again, Cancel gives a view of nothing. Raises nothing.
host::BlockReference PickBlockReference(const Session& session, const std::string& prompt);

/// Empties `set` and lets the user fill it on screen with references of the block `name`. Raises what the
/// host raises, so also for Escape.
void SelectBlockReferencesOnScreen(const host::SelectionSet& set, std::string_view name);

}  // namespace blocks
