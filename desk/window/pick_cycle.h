#pragma once

#include "desk/drawing/ids.h"

#include <vector>

namespace window {

/// What lies under the pick box, and which of it is meant. Tab goes on to the next; a cursor that moves on to
/// other things starts anew, one that still has the chosen thing under it keeps it.
class PickCycle {
  public:
    void update(std::vector<drawing::EntityId> hits) {
        const drawing::EntityId before = chosen();
        const bool wasCycled = cycled_;
        hits_ = std::move(hits);
        at_ = 0;
        cycled_ = false;
        if (!wasCycled) return;
        for (std::size_t i = 0; i < hits_.size(); ++i) {
            if (hits_[i] != before) continue;
            at_ = i;
            cycled_ = true;
        }
    }
    void clear() { update({}); }
    /// False where there is nothing to go on to.
    bool next() {
        if (hits_.size() < 2) return false;
        at_ = (at_ + 1) % hits_.size();
        cycled_ = true;
        return true;
    }
    drawing::EntityId chosen() const { return hits_.empty() ? drawing::kNoEntity : hits_[at_]; }
    /// The one that `next` would give; kNoEntity where there is none.
    drawing::EntityId following() const {
        return hits_.size() < 2 ? drawing::kNoEntity : hits_[(at_ + 1) % hits_.size()];
    }
    std::size_t count() const { return hits_.size(); }
    std::size_t place() const { return at_; }

  private:
    std::vector<drawing::EntityId> hits_;
    std::size_t at_ = 0;
    bool cycled_ = false;
};

}  // namespace window
