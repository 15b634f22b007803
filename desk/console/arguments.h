#pragma once

#include "desk/jobs/options.h"
#include "desk/shell/desk.h"

#include <string>

namespace console {

/// What the options of the console say.
struct CommandLine {
    std::string drawing;  ///< empty: begins without one
    std::string script;   ///< empty: lines come from the standard input, as with "-"
    bool isScript = false;
    bool quiet = false;
    bool keepGoing = false;
    bool fresh = false;
    std::string settings;  ///< the folder of settings; empty: the user's
    std::string regional;
    std::string language;
};

/// Raises jobs::UsageError.
CommandLine readCommandLine(const jobs::Arguments& arguments);

}  // namespace console
