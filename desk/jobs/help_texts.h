#pragma once

#include "desk/jobs/options.h"

#include <string>

namespace jobs {

/// What --help prints: of the program with its verbs, or of one verb.
std::string helpText(Verb verb);
/// The manual page vorlane(1) in the language of man pages.
std::string manualPage();
/// The completion of the command line for bash.
std::string bashCompletion();

}  // namespace jobs
