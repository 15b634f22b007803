#pragma once

#include "desk/jobs/options.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace jobs {

/// Exit codes of the program.
enum ExitCode {
    kDone = 0,
    kFailed = 1,        ///< a drawing failed, or a script stopped
    kNotStarted = 2,    ///< a wrong option, a drawing or script that can't be read
    kInterrupted = 130  ///< Ctrl-C
};

/// Runs a verb on its drawings. Raises UsageError before anything is done.
int runVerb(const Arguments& arguments, std::ostream& output, std::ostream& errors);

}  // namespace jobs
