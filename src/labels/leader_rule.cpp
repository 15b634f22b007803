#include "labels/leader_rule.h"

#include "labels/label_table.h"
#include "labels/value_modes.h"

namespace labels {

bool leaderMayStartAtPick(Session& session, int rows) {
    int count = 0;
    for (int i = 0; i < rows; ++i) {
        const int mode = labelMode(session, i);
        if (isPolygonMode(mode)) return false;
        if (mode != kManual && ++count > 1) return false;
    }
    return true;
}

}  // namespace labels
