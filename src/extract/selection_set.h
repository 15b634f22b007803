#pragma once

#include "basic/error_state.h"
#include "host/document.h"
#include "session/session.h"

namespace extract {

/// The drawing's first selection set, whatever its name, or a new one "Selx0" in a drawing without any; it
/// stays in the drawing. Errors are ignored, so it may be a view of nothing.
host::SelectionSet firstSelectionSet(const session::Session& session, basic::ErrorState& errors);

}  // namespace extract
