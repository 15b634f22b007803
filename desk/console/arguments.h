#pragma once

#include "basic/numbers.h"

#include <optional>
#include <string>
#include <vector>

namespace console {

/// The program's command line: DRAWING [--script FILE] [--regional fr|en].
struct CommandLine {
    std::string drawing;
    std::string script;  ///< empty: lines come from the standard input
    std::optional<basic::Regional> regional;
    bool help = false;
};

/// Raises std::invalid_argument with a text that says what is wrong.
CommandLine parseCommandLine(const std::vector<std::string>& arguments);

extern const char* const kUsage;

}  // namespace console
