#pragma once

#include "desk/lisp/error.h"

#include <cstddef>
#include <cstdint>

namespace lisp {

/// Keeps recursion inside the thread's stack: measures how far the stack has grown since the guard was made,
/// and raises an error before it runs out, whatever the frames in between.
class StackGuard {
  public:
    explicit StackGuard(std::size_t budget) : base_(here()), budget_(budget) {}

    void check() const {
        const std::uintptr_t now = here();
        const std::uintptr_t used = now < base_ ? base_ - now : now - base_;
        if (used > budget_) throw LispError("internal stack limit reached");
    }

    // Together they leave a quarter of the 8 MB that a thread gets on Linux unless told otherwise.
    static constexpr std::size_t kEvaluation = std::size_t{4} << 20;
    static constexpr std::size_t kWithinOneCall = std::size_t{1} << 20;  ///< reading, comparing

  private:
    static std::uintptr_t here() { return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)); }

    std::uintptr_t base_;
    std::size_t budget_;
};

}  // namespace lisp
