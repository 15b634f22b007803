#pragma once

#include "desk/drawing/ids.h"

#include <cstdint>
#include <vector>

namespace drawing {

/// What changed since a place in a drawing's journal, each once.
struct Changes {
    /// A layer changed, or too much: what was derived from the drawing has to be made anew.
    bool everything = false;
    /// Main entities of spaces that are new, changed, erased or back again, in rising order.
    std::vector<EntityId> entities;
    /// Definitions whose content or base point changed, in rising order.
    std::vector<BlockId> blocks;
};

/// Records in the order in which they were touched, for those who keep something derived from the drawing and
/// follow it. It remembers the last million: who comes later than that begins anew.
class Journal {
  public:
    /// The place behind the last change.
    std::uint64_t end() const { return seen_ = count(); }
    void note(EntityId id);
    /// Those touched since a place; nothing where the journal no longer reaches back to it.
    const EntityId* since(std::uint64_t place) const {
        return place < dropped_ ? nullptr : touched_.data() + (place - dropped_);
    }

  private:
    static constexpr std::size_t kMost = 1'000'000;
    std::uint64_t count() const { return dropped_ + touched_.size(); }

    std::vector<EntityId> touched_;
    std::uint64_t dropped_ = 0;
    mutable std::uint64_t seen_ = 0;  ///< up to where somebody has looked
};

inline void Journal::note(EntityId id) {
    // Once is enough until somebody has looked.
    if (!touched_.empty() && touched_.back() == id && seen_ != count()) return;
    if (touched_.size() == kMost) {
        dropped_ += touched_.size();
        touched_.clear();
    }
    touched_.push_back(id);
}

}  // namespace drawing
