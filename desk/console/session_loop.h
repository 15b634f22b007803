#pragma once

#include "desk/shell/desk.h"
#include "faces/text/line_source.h"

namespace console {

/// Reads lines at "Command:" and carries them out until QUIT or the end of the input. A person with unsaved
/// changes is asked before it ends; a script is told. A script's line that fails raises ScriptError.
void runCommandLine(shell::Desk& desk, text_face::LineSource& source);

}  // namespace console
