#include "desk/shapes/shape_walk.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace shapes {

namespace {

constexpr int kDeepest = 100;
/// A look at a place, which follows the mouse, stops after so many items, long before the budget of its
/// question does.
constexpr std::size_t kMostNear = 20'000;

/// The whole numbers from `low` to `high` among 0 to `count` - 1, as begin and end.
std::pair<int, int> within(double low, double high, int count) {
    if (!(low <= high)) return {0, count};  // no numbers, of coordinates beyond measure
    const double last = count;
    // The slack keeps a box that just touches the area from being lost to rounding.
    const double begin = std::clamp(std::ceil(low - 1e-6), 0.0, last);
    const double end = std::clamp(std::floor(high + 1e-6) + 1, begin, last);
    return {static_cast<int>(begin), static_cast<int>(end)};
}

}  // namespace

CellRange cellsNear(const Placement& placement, const Box& first, const Vector3& columnStep,
                    const Vector3& rowStep, const Rectangle& area) {
    const int columns = std::max(placement.columns, 1);
    const int rows = std::max(placement.rows, 1);
    // A single row may have any spacing; a step upright on it makes the plane whole.
    const Vector3 u = columns > 1 ? columnStep : Vector3{rowStep.y, -rowStep.x, 0};
    const Vector3 v = rows > 1 ? rowStep : Vector3{-u.y, u.x, 0};
    const double plane = crossXY(u, v);

    CellRange cells{0, columns, 0, rows};
    if (plane == 0 || !std::isfinite(plane)) return cells;

    // Offsets by which the first box meets the area, in steps: the corners give their range.
    double range[4] = {Box::kFar, -Box::kFar, Box::kFar, -Box::kFar};
    for (const double x : {area.low.x - first.high.x, area.high.x - first.low.x}) {
        for (const double y : {area.low.y - first.high.y, area.high.y - first.low.y}) {
            const double column = crossXY({x, y, 0}, v) / plane;
            const double row = crossXY(u, {x, y, 0}) / plane;
            range[0] = std::min(range[0], column);
            range[1] = std::max(range[1], column);
            range[2] = std::min(range[2], row);
            range[3] = std::max(range[3], row);
        }
    }
    if (columns > 1) std::tie(cells.columnBegin, cells.columnEnd) = within(range[0], range[1], columns);
    if (rows > 1) std::tie(cells.rowBegin, cells.rowEnd) = within(range[2], range[3], rows);
    return cells;
}

bool ShapeWalk::walk(const Placed& placed, bool showsZero) { return walk(placed, {}, showsZero, 0); }

bool ShapeWalk::maySpend() { return budget_.spend() && (copies_ != Copies::Near || ++near_ <= kMostNear); }

bool ShapeWalk::mayMeet(const Box& box) const {
    return !box.empty() && box.low.x <= area_.high.x && box.high.x >= area_.low.x &&
           box.low.y <= area_.high.y && box.high.y >= area_.low.y;
}

bool ShapeWalk::walk(const Placed& placed, const Transform& outer, bool showsZero, int depth) {
    if (depth > kDeepest) return true;
    const bool isArray = placed.placement.columns > 1 || placed.placement.rows > 1;
    if (isArray) return walkArray(placed, outer, showsZero, depth);
    return walkCopy(placed, outer * placedTransform(shapes_, placed, 0, 0), showsZero, depth);
}

bool ShapeWalk::walkArray(const Placed& placed, const Transform& outer, bool showsZero, int depth) {
    const auto copy = [&](int column, int row) {
        return outer * placedTransform(shapes_, placed, column, row);
    };
    const Placement& placement = placed.placement;
    if (copies_ == Copies::Corners) {
        const int lastColumn = std::max(placement.columns, 1) - 1;
        const int lastRow = std::max(placement.rows, 1) - 1;
        return walkCopy(placed, copy(0, 0), showsZero, depth) &&
               walkCopy(placed, copy(lastColumn, 0), showsZero, depth) &&
               walkCopy(placed, copy(0, lastRow), showsZero, depth) &&
               walkCopy(placed, copy(lastColumn, lastRow), showsZero, depth);
    }
    const Transform first = copy(0, 0);
    const Vector3 columnStep = copy(1, 0).origin - first.origin;
    const Vector3 rowStep = copy(0, 1).origin - first.origin;
    const Box box = shapes_.of(placed.block).bounds.transformed(first);
    const CellRange all{0, std::max(placement.columns, 1), 0, std::max(placement.rows, 1)};
    const CellRange cells =
        shapes_.of(placed.block).isEndless ? all : cellsNear(placement, box, columnStep, rowStep, area_);
    for (int column = cells.columnBegin; column < cells.columnEnd; ++column) {
        for (int row = cells.rowBegin; row < cells.rowEnd; ++row) {
            if (!walkCopy(placed, copy(column, row), showsZero, depth)) return false;
        }
    }
    return true;
}

bool ShapeWalk::walkCopy(const Placed& placed, const Transform& toWorld, bool showsZero, int depth) {
    if (!maySpend()) return false;
    const BlockShape& shape = shapes_.of(placed.block);
    if (!shape.isEndless && !mayMeet(shape.bounds.transformed(toWorld))) return true;
    return walkItems(shape, toWorld, showsZero, depth);
}

bool ShapeWalk::walkItems(const BlockShape& shape, const Transform& toWorld, bool showsZero, int depth) {
    for (std::size_t stretch = 0; stretch < shape.stretches.size(); ++stretch) {
        if (!shape.isEndless && !mayMeet(shape.stretches[stretch].transformed(toWorld))) continue;
        const std::size_t begin = stretch * BlockShape::kStretch;
        const std::size_t end = std::min(begin + BlockShape::kStretch, shape.items.size());
        for (std::size_t i = begin; i < end; ++i) {
            if (!maySpend() || !walkItem(shape.items[i], toWorld, showsZero, depth)) return false;
        }
    }
    return true;
}

bool ShapeWalk::walkItem(const ShapeItem& item, const Transform& toWorld, bool showsZero, int depth) {
    if (!item.isEndless && !mayMeet(item.bounds.transformed(toWorld))) return true;
    // A reference on layer 0 hands on what holds for it; its own text stands on layer 0 itself.
    const bool shown = showsZero || !item.onLayerZero;
    const bool hasOwn = !item.geometry.empty() || !item.geometry.insertions.empty();
    if (shown && hasOwn) {
        near_ += item.geometry.strokes.size();
        if (!visit_(item.geometry, toWorld)) return false;
    }
    if (!item.placed) return true;
    const bool inner = item.onLayerZero ? showsZero : !item.hidesZero;
    return walk(*item.placed, toWorld, inner, depth + 1);
}

}  // namespace shapes
