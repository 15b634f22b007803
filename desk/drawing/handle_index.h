#pragma once

#include "desk/drawing/ids.h"

#include <array>
#include <vector>

namespace drawing {

/// Objects by handle. Handles run in rows from low numbers on: pages of neighbours hold them, found by a
/// directory. The few that lie far beyond what the drawing's size lets expect go to a table with open
/// addressing.
class HandleIndex {
  public:
    /// Enters a handle; false if another object has it already (which then keeps it).
    bool add(Handle handle, EntityId id);
    /// Enters a handle that may stand there already for an object that is gone.
    void put(Handle handle, EntityId id);
    EntityId find(Handle handle) const;
    void reserve(std::size_t count);

  private:
    static constexpr std::size_t kPage = 16;
    using Page = std::array<EntityId, kPage>;

    bool isNear(Handle handle) const;
    /// The place of a near handle, made where it is missing.
    EntityId& place(Handle handle);
    bool addFar(Handle handle, EntityId id);
    std::size_t slot(Handle handle) const;
    void grow(std::size_t capacity);

    std::vector<std::uint32_t> directory_;  ///< number + 1 of the page of each row; 0 for none
    std::vector<Page> pages_;
    std::vector<Handle> keys_;  ///< the far ones; 0 is a free slot
    std::vector<EntityId> ids_;
    std::size_t farCount_ = 0;
};

}  // namespace drawing
