#pragma once

#include "session/session.h"

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace blocks {

using session::Session;

/// Names of blocks in the order of the host's table of blocks, each stored under a key equal to its own
/// text. Keys are unique without regard to case.
class BlockNames {
  public:
    /// Raises kDuplicateKey for a name that is in the collection already.
    void Add(const std::string& name);

    int Count() const { return static_cast<int>(names_.size()); }
    auto begin() const { return names_.begin(); }
    auto end() const { return names_.end(); }

  private:
    std::vector<std::string> names_;
    std::unordered_set<std::string> keys_;
};

/// All blocks of the drawing but layouts and external references; anonymous blocks and those without any
/// reference are in. No value when no block qualifies, never an empty collection. Raises what the host
/// raises.
std::optional<BlockNames> GetBlockNames(const Session& session);

/// The same, of those blocks whose name at least one entity of the drawing carries, in any space; what lies
/// inside block definitions doesn't count. Selects once for each block into the temporary selection set
/// "sTemp". Raises what the host raises, and then the set stays in the drawing: every later call fails as
/// long as it is there.
std::optional<BlockNames> GetInsertedBlockNames(const Session& session);

}  // namespace blocks
