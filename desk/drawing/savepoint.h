#pragma once

#include "desk/drawing/drawing.h"

#include <vector>

namespace drawing {

/// A place within an undo step, to which work can be taken back that failed on its way: what it added to
/// block definitions and tables, and what it erased of them. Content of the spaces isn't followed.
class Savepoint {
  public:
    explicit Savepoint(Drawing& drawing);
    void takeBack();

  private:
    Drawing& drawing_;
    std::vector<bool> erased_;  ///< of each record that there is
    Handle nextHandle_;
    std::size_t additions_, blocks_, changedBlocks_, layers_;
};

}  // namespace drawing
