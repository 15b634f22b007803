#pragma once

#include "desk/drawing/curve.h"
#include "desk/drawing/ids.h"
#include "desk/drawing/vector.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace drawing {

class BlockShapes;
class Drawing;

/// Finds entities of model space by where they are, as seen from above. Only what is drawn can be picked:
/// invisible entities and those on layers off or frozen can't, those on locked layers can. A reference is
/// found by all that its block draws, nested blocks and arrays included, and by its attributes. The first
/// look after a change of the drawing goes through all entities, the next ones only through their boxes.
class Picker {
  public:
    explicit Picker(const Drawing& drawing);
    ~Picker();
    Picker(const Picker&) = delete;
    Picker& operator=(const Picker&) = delete;

    /// The entity nearest to `point`, at most `tolerance` away. A filled area or a text that covers the point
    /// counts as half the tolerance away, so that a line drawn over it can be picked; of equals the one
    /// drawn last is taken.
    std::optional<EntityId> at(const Point3& point, double tolerance);

    /// The entities that lie wholly in the rectangle between two corners, in drawing order; with `crossing`
    /// those that reach into it too.
    std::vector<EntityId> window(const Point3& corner, const Point3& opposite, bool crossing);

  private:
    /// An entity that draws something, and the box about it.
    struct Entry {
        EntityId id = kNoEntity;
        Box bounds;
    };
    void refresh();

    const Drawing& drawing_;
    std::unique_ptr<BlockShapes> shapes_;
    std::vector<Entry> entries_;  ///< in drawing order
    std::uint64_t revision_ = 0;  ///< of the drawing when these were made
};

/// One pick.
std::optional<EntityId> pickEntity(const Drawing& drawing, const Point3& point, double tolerance);
std::vector<EntityId> selectWindow(const Drawing& drawing, const Point3& corner, const Point3& opposite,
                                   bool crossing);

/// Whether an entity of a space draws anything: it is visible and its layer shown. A reference on a layer
/// that is off still draws what its block has on other layers.
bool mayDraw(const Drawing& drawing, EntityId id);

}  // namespace drawing
