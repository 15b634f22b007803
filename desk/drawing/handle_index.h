#pragma once

#include "desk/drawing/ids.h"

#include <vector>

namespace drawing {

/// Objects by handle: one flat table with open addressing.
class HandleIndex {
  public:
    /// Enters a handle; false if another object has it already (which then keeps it).
    bool add(Handle handle, EntityId id);
    /// Enters a handle that may stand there already for an object that is gone.
    void put(Handle handle, EntityId id);
    EntityId find(Handle handle) const;
    void reserve(std::size_t count);

  private:
    std::size_t slot(Handle handle) const;
    void grow(std::size_t capacity);

    std::vector<Handle> keys_;  ///< 0 is a free slot
    std::vector<EntityId> ids_;
    std::size_t count_ = 0;
};

}  // namespace drawing
