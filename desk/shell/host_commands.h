#pragma once

#include "desk/shell/desk.h"

#include <string>
#include <string_view>
#include <vector>

namespace shell {

/// A command of the host itself.
struct HostCommand {
    std::string_view name;
    std::string_view usage;  ///< what may stand behind the name, such as "[NAME]"
    std::string_view help;   ///< one line
    /// Runs with what stands behind the name. Raises basic::Error.
    Desk::Outcome (*run)(Desk& desk, const std::string& rest);
};

/// The command of a name in capitals; null if there is none.
const HostCommand* findHostCommand(std::string_view name);

std::vector<std::string> hostCommandNames();
/// The list that HELP prints.
std::string commandHelp();

}  // namespace shell
