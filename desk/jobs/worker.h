#pragma once

#include "desk/jobs/result.h"
#include "desk/jobs/targets.h"
#include "desk/shell/desk.h"

namespace jobs {

/// Does the job of a command line on one drawing from opening to saving, with a desk of its own: the drawing
/// is whole in the end, or untouched. Raises nothing.
Result runJob(const Arguments& arguments, const shell::DeskOptions& options, const Target& target);

}  // namespace jobs
