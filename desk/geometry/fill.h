#pragma once

#include "desk/geometry/curve.h"
#include "desk/geometry/effort.h"

#include <functional>
#include <vector>

namespace geometry {

/// A closed path as a polygon seen from above, curves in short chords.
class FlatLoop {
  public:
    explicit FlatLoop(const Path& path, const Transform& transform = {});

    /// Whether the point lies inside, by the even-odd rule.
    bool contains(const Point3& point) const;
    /// Whether the other loop lies inside this one, told by most of three of its places so that a shared
    /// border doesn't deceive.
    bool holds(const FlatLoop& other) const;
    /// Whether the areas of both lie partly in one another. Raises TooMuchWork.
    bool cuts(const FlatLoop& other, Effort& effort) const;
    const Box& bounds() const { return bounds_; }
    std::size_t size() const { return points_.size(); }

  private:
    /// Whether some of the loop's places lie inside the other and some outside.
    bool straddles(const FlatLoop& other) const;

    Box bounds_;
    std::vector<Point3> points_;
};

/// Calls `visit` with the places of any two loops whose boxes meet. Raises TooMuchWork.
void forEachMeeting(const std::vector<FlatLoop>& loops, Effort& effort,
                    const std::function<void(std::size_t, std::size_t)>& visit);

/// A filled area: what lies inside an odd number of its loops.
struct Fill {
    std::vector<Path> loops;

    /// Whether the fill, placed by `transform`, covers the point as seen from above.
    bool contains(const Point3& point, const Transform& transform = {}) const;
};

}  // namespace geometry
