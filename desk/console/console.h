#pragma once

#include "desk/jobs/options.h"

#include <cstdint>
#include <string>

namespace console {

/// What to do about a failure of that number, beside the number and its own words; empty for nothing.
std::string adviceOn(std::int32_t number);

/// Runs the console; its exit code. Raises UsageError, and basic::Error where it can't begin.
int runConsole(const jobs::Arguments& arguments, const std::string& program);

}  // namespace console
