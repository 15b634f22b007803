#pragma once

#include "desk/picture/renderer.h"

#include <vector>

namespace picture {

/// An entity under the pick box.
struct Hit {
    EntityId entity = kNoEntity;
    double distance = 0;  ///< device units from the nearest line; half the reach inside of a fill or a text
    bool isFill = false;
};

/// Finds what a space shows at a place by drawing it on canvases that measure instead: what is seen can be
/// picked, with the same detail.
class HitFinder {
  public:
    explicit HitFinder(Picture& picture) : picture_(picture) {}

    /// Entities at most `reach` device units from a place: the nearest first, of equals lines before fills,
    /// then the one drawn last.
    std::vector<Hit> at(BlockId space, const Projection& projection, const Point2& place, double reach);
    /// Entities that lie wholly in a frame, with `crossing` also those that reach into it, in drawing order.
    std::vector<EntityId> within(BlockId space, const Projection& projection, const Frame& frame,
                                 bool crossing);

  private:
    Picture& picture_;
};

}  // namespace picture
