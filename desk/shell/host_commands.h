#pragma once

#include "desk/shell/desk.h"

#include <string>
#include <string_view>

namespace shell {

/// A command of the host itself: OPEN f, SAVE [f], LIST, U, QUIT.
struct HostCommand {
    std::string_view name;
    /// Runs with what stands behind the name. Raises basic::Error.
    Desk::Outcome (*run)(Desk& desk, const std::string& rest);
};

/// The command of a name in capitals; null if there is none.
const HostCommand* findHostCommand(std::string_view name);

}  // namespace shell
