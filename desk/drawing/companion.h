#pragma once

namespace drawing {

/// Something derived from a drawing that is kept beside it, so that all who look at the drawing share it and
/// it goes when the drawing goes.
class Companion {
  public:
    virtual ~Companion() = default;
};

}  // namespace drawing
