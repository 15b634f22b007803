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

/// A first word that is no drawing but may be meant for a verb. Raises jobs::UsageError.
void refuseUnknownVerb(const jobs::Arguments& arguments);

/// Raises jobs::UsageError.
CommandLine readCommandLine(const jobs::Arguments& arguments);

}  // namespace console
