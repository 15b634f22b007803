#pragma once

#include "desk/dxf/tag_reader.h"
#include "desk/shapes/names.h"

#include <vector>

namespace shapes {

/// The boundary of a HATCH.
struct HatchBoundary {
    /// How islands count (group 75).
    enum class Style { kNormal = 0, kOuter = 1, kIgnore = 2 };
    Style style = Style::kNormal;
    std::vector<Path> loops;  ///< in the plane of the hatch
    Transform toWorld;        ///< from that plane to world coordinates

    std::vector<Path> worldLoops() const;
    /// The hatched area: a loop inside another takes its own away under kNormal and, in the first depth only,
    /// under kOuter; loops deeper count again under kNormal. Under kNormal loops that cut one another count
    /// by the even-odd rule, elsewhere as if they didn't.
    /// Raises kNotApplicable where so many loops lie in or across one another that it would take
    /// more than a second or two.
    double area() const;

  private:
    double areaWithin(geometry::Effort& effort) const;
};

HatchBoundary readHatch(dxf::TagReader tags);

}  // namespace shapes
