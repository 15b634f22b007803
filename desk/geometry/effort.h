#pragma once

#include <cstddef>
#include <stdexcept>

namespace geometry {

/// Data that would take far more work than any drafter's.
class TooMuchWork : public std::runtime_error {
  public:
    TooMuchWork() : runtime_error("too much work") {}
};

/// The work that one question may take, in small steps: a second or two for all of it. It bounds what damaged
/// or hostile data can cost where the work grows faster than they do.
class Effort {
  public:
    /// Raises TooMuchWork when all is spent.
    void spend(std::size_t steps) {
        if (steps > left_) throw TooMuchWork();
        left_ -= steps;
    }

  private:
    std::size_t left_ = 250'000'000;
};

}  // namespace geometry
