#pragma once

#include "desk/picture/names.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace picture {

/// A linetype: dashes (positive), gaps (negative) and dots (0) in drawing units. Texts and shapes in it
/// aren't drawn, their place stays a gap. Continuous without elements.
struct LineType {
    std::vector<double> elements;
    double length = 0;
};

/// The drawing's linetypes by number; 0 is the continuous one.
class LineTypes {
  public:
    using Number = std::uint16_t;
    explicit LineTypes(const Drawing& drawing);

    const LineType& operator[](Number number) const { return all_[number]; }
    /// By name without regard to case; the continuous one for a name that the drawing lacks.
    Number find(std::string_view name) const;
    /// $LTSCALE.
    double scale() const { return scale_; }

  private:
    std::vector<LineType> all_;
    std::unordered_map<std::string, Number> byName_;
    double scale_ = 1;
};

}  // namespace picture
