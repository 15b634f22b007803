#pragma once

#include "host/entities.h"
#include "session/session.h"

#include <string_view>

namespace blocks {

using session::Session;

/// Inserts a reference of the block `name`, or of the drawing file of that path, into model space at 0, 0, 0
/// with scale factors 1 and rotation 0, all passed as 16-bit integers. It is made to be read and deleted in
/// the same act. Raises what the host raises.
host::BlockReference insertTrial(const Session& session, std::string_view name);

/// The same for a block's name; the empty name gives a view of nothing without asking the host. The caller
/// deletes the reference.
host::BlockReference InsertTrialReference(const Session& session, std::string_view name);

}  // namespace blocks
