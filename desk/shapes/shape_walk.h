#pragma once

#include "desk/shapes/block_shapes.h"
#include "desk/shapes/names.h"

#include <cstddef>
#include <functional>
#include <utility>

namespace shapes {

/// Copies of an array: columns and rows from 0, the ends behind the last ones.
struct CellRange {
    int columnBegin = 0;
    int columnEnd = 1;
    int rowBegin = 0;
    int rowEnd = 1;
};
/// The copies of a placed block whose box, `first` at column and row 0, may meet `area`; `columnStep` and
/// `rowStep` lead from a copy to the next.
CellRange cellsNear(const Placement& placement, const Box& first, const Vector3& columnStep,
                    const Vector3& rowStep, const Rectangle& area);

/// The items that the walks of one question may look at. Blocks nested in blocks and arrays of arrays may
/// multiply beyond all bounds; what lies behind the bound isn't found.
class WalkBudget {
  public:
    /// Each entity of a space brings its own share, so that a large drawing is looked through to its end.
    void addEntity() { left_ += kForEntity; }
    bool spend() { return left_ > 0 && left_-- > 0; }

  private:
    static constexpr std::size_t kForEntity = 1000;
    std::size_t left_ = 4'000'000;
};

/// Goes through what a placed block draws, nested blocks included, where it may meet a rectangle.
class ShapeWalk {
  public:
    /// What is visited: a geometry and its place in the world. Returning false ends the walk.
    using Visit = std::function<bool(const Geometry&, const Transform&)>;

    /// Which copies of arrays are gone through: those near the rectangle, or those at the corners of the
    /// array, which suffice to tell how far it reaches.
    enum class Copies { Near, Corners };

    ShapeWalk(BlockShapes& shapes, const Rectangle& area, Copies copies, WalkBudget& budget, Visit visit)
        : shapes_(shapes), area_(area), copies_(copies), budget_(budget), visit_(std::move(visit)) {}

    /// Walks one reference of the space. `showsZero` is false where its layer is off, so that the content on
    /// layer 0 isn't drawn. Returns false where the visitor ended the walk.
    bool walk(const Placed& placed, bool showsZero);
    /// The same for what an entity of the space draws by itself.
    bool walk(const BlockShape& shape) { return walkItems(shape, {}, true, 0); }

  private:
    bool walk(const Placed& placed, const Transform& outer, bool showsZero, int depth);
    bool walkArray(const Placed& placed, const Transform& outer, bool showsZero, int depth);
    bool walkCopy(const Placed& placed, const Transform& toWorld, bool showsZero, int depth);
    bool walkItems(const BlockShape& shape, const Transform& toWorld, bool showsZero, int depth);
    bool walkItem(const ShapeItem& item, const Transform& toWorld, bool showsZero, int depth);
    bool maySpend();
    bool mayMeet(const Box& box) const;

    BlockShapes& shapes_;
    Rectangle area_;
    Copies copies_;
    WalkBudget& budget_;
    std::size_t near_ = 0;  ///< items that a look at a place has come by
    Visit visit_;
};

}  // namespace shapes
