#pragma once

#include "session/session.h"

namespace labels {

using session::Session;

/// Whether a leader line may start at a label's own pick: with at most one attribute in any mode but the
/// manual one, and none that measures a clicked polygon, which gives no point. Modes count as the session's
/// `LabelTable` has them for the first `rows` attributes, so also one that the list doesn't show any more.
/// Raises kSubscript for more rows than the table has.
bool leaderMayStartAtPick(Session& session, int rows);

}  // namespace labels
