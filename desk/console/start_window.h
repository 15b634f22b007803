#pragma once

#include "desk/jobs/options.h"

#include <string>
#include <vector>

namespace console {

/// Whether a command line without a verb means the window: there is a display, a window program is installed
/// beside this one, and nothing asks for the terminal (--console, --script, lines from a pipe or a file).
bool wantsWindow(const jobs::Arguments& arguments);

/// Becomes the window program, with the same words. Comes back only where it can't be started.
void startWindow(const std::vector<std::string>& words);

}  // namespace console
