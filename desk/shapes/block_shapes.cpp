#include "desk/shapes/block_shapes.h"

#include "desk/drawing/work_watch.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace shapes {

namespace {

/// Beyond this no drafter nests blocks; it keeps a damaged drawing from exhausting the stack.
constexpr int kDeepestNesting = 100;

/// A geometry of more strokes is taken apart.
constexpr std::size_t kMostStrokes = 64;
/// An entity of more bytes is kept as it was read, so many of them at most.
constexpr std::size_t kLargeEntity = 20'000;
constexpr std::size_t kMostKept = 8;

/// A number whose order keeps what is near together: the bits of both coordinates in turn.
std::uint32_t placeOnCurve(const Box& box, const Box& all) {
    const auto cell = [](double at, double low, double high) {
        const double share = high > low ? (at - low) / (high - low) : 0;
        return static_cast<std::uint32_t>(std::clamp(share, 0.0, 1.0) * 0xFFFF);
    };
    const Point3 middle = box.empty() ? all.low : (box.low + box.high) / 2;
    const std::uint32_t x = cell(middle.x, all.low.x, all.high.x);
    const std::uint32_t y = cell(middle.y, all.low.y, all.high.y);
    std::uint32_t place = 0;
    for (int bit = 15; bit >= 0; --bit) place = place << 2 | (x >> bit & 1) << 1 | (y >> bit & 1);
    return place;
}

}  // namespace

void BlockShape::add(ShapeItem item) {
    bounds.add(item.bounds);
    isEndless = isEndless || item.isEndless;
    std::vector<Stroke>& strokes = item.geometry.strokes;
    while (strokes.size() > kMostStrokes) {
        ShapeItem part;
        part.onLayerZero = item.onLayerZero;
        const auto from = strokes.end() - static_cast<std::ptrdiff_t>(kMostStrokes);
        part.geometry.strokes.assign(std::make_move_iterator(from), std::make_move_iterator(strokes.end()));
        strokes.erase(from, strokes.end());
        part.bounds = part.geometry.bounds();
        items.push_back(std::move(part));
    }
    items.push_back(std::move(item));
}

void BlockShape::arrange() {
    if (items.size() > 2 * kStretch) {
        std::vector<std::pair<std::uint32_t, std::size_t>> order;
        for (std::size_t i = 0; i < items.size(); ++i)
            order.emplace_back(placeOnCurve(items[i].bounds, bounds), i);
        std::sort(order.begin(), order.end());
        std::vector<ShapeItem> arranged;
        arranged.reserve(items.size());
        for (const auto& [place, number] : order) arranged.push_back(std::move(items[number]));
        items = std::move(arranged);
    }
    stretches.assign((items.size() + kStretch - 1) / kStretch, {});
    for (std::size_t i = 0; i < items.size(); ++i) stretches[i / kStretch].add(items[i].bounds);
}

BlockShapes::BlockShapes(const Drawing& drawing) : drawing_(drawing) { clear(); }

void BlockShapes::clear() {
    textStyles_ = TextStyles(drawing_);
    large_.clear();
    shapes_.clear();
    shapes_.resize(drawing_.blocks().size());
    open_.assign(shapes_.size(), false);
    lackedBlock_ = false;
}

std::optional<Placed> BlockShapes::placed(EntityId id) {
    std::optional<Placed> placed = readPlaced(drawing_, id);
    if (!placed && drawing_.type(id) == "INSERT") lackedBlock_ = true;
    return placed;
}

std::vector<bool> BlockShapes::forget(const std::vector<BlockId>& changed) {
    if (changed.empty()) return {};
    textStyles_ = TextStyles(drawing_);  // with a new definition come the styles of its texts
    shapes_.resize(drawing_.blocks().size());
    open_.resize(shapes_.size());
    std::vector<std::vector<BlockId>> holders(shapes_.size());
    for (BlockId block = 0; block < shapes_.size(); ++block) {
        if (!shapes_[block]) continue;
        for (const ShapeItem& item : shapes_[block]->items) {
            if (item.placed) holders[item.placed->block].push_back(block);
        }
    }
    std::vector<bool> outdated(shapes_.size());
    std::vector<BlockId> open = changed;
    while (!open.empty()) {
        const BlockId block = open.back();
        open.pop_back();
        if (outdated[block]) continue;
        outdated[block] = true;
        shapes_[block].reset();
        open.insert(open.end(), holders[block].begin(), holders[block].end());
    }
    return outdated;
}

const BlockShape& BlockShapes::of(BlockId block) {
    static const BlockShape kEmpty;
    if (block >= shapes_.size() || open_[block] || depth_ >= kDeepestNesting) return kEmpty;
    if (!shapes_[block]) {
        open_[block] = true;
        ++depth_;
        auto shape = std::make_unique<BlockShape>(read(block));
        --depth_;
        open_[block] = false;
        shapes_[block] = std::move(shape);
    }
    return *shapes_[block];
}

BlockShape BlockShapes::read(BlockId block) {
    BlockShape shape;
    drawing::WorkSteps steps;
    drawing_.forEachEntity(block, [&](EntityId id) {
        steps.step(id, drawing_.firstFree());
        addEntity(shape, id);
        return true;
    });
    shape.arrange();
    return shape;
}

const BlockShape* BlockShapes::large(EntityId id) {
    const auto found =
        std::find_if(large_.begin(), large_.end(), [&](const auto& kept) { return kept.first == id; });
    if (found != large_.end()) {
        std::rotate(found, found + 1, large_.end());
        return large_.back().second.get();
    }
    if (drawing_.bytes(id).size() < kLargeEntity && drawing_.parts(id).count < kLargeEntity / 50)
        return nullptr;
    if (drawing_.type(id) == "INSERT") return nullptr;
    ShapeItem item;
    item.geometry = readGeometry(drawing_, id, textStyles_);
    item.bounds = item.geometry.bounds();
    auto shape = std::make_unique<BlockShape>();
    shape->add(std::move(item));
    shape->arrange();
    if (large_.size() == kMostKept) large_.erase(large_.begin());
    large_.emplace_back(id, std::move(shape));
    return large_.back().second.get();
}

void BlockShapes::prepareLarge(BlockId space) {
    drawing_.forEachEntity(space, [&](EntityId id) {
        if (drawing_.isDisplayed(id)) large(id);
        return large_.size() < kMostKept;
    });
}

void BlockShapes::forgetLarge(const std::vector<EntityId>& changed) {
    std::erase_if(large_, [&](const auto& kept) {
        return std::binary_search(changed.begin(), changed.end(), kept.first);
    });
}

void BlockShapes::addEntity(BlockShape& shape, EntityId id) {
    const Layer& layer = drawing_.layer(id);
    ShapeItem item;
    item.onLayerZero = drawing_.layerName(id) == "0";
    item.placed = placed(id);
    // What is on layer 0 follows the layer of the reference instead.
    if (!item.onLayerZero && (layer.frozen || (layer.off && !item.placed))) return;
    if (drawing_.isInvisible(id)) return;
    item.hidesZero = !item.onLayerZero && layer.off;
    if (drawing_.type(id) == "ATTDEF") {
        if (!drawing_.attribute(id).isConstant()) return;
        item.geometry = readConstantText(drawing_, id, textStyles_);
    } else {
        item.geometry = readGeometry(drawing_, id, textStyles_);
    }
    addInsertions(*this, id, item.placed, item.geometry);
    forEachShownAttribute(drawing_, id,
                          [&](EntityId attribute) { addAttribute(*this, attribute, item.geometry); });
    item.bounds = item.geometry.bounds();
    item.isEndless = !item.geometry.endless.empty();
    if (item.placed) {
        item.bounds.add(placedBounds(*this, *item.placed));
        item.isEndless = item.isEndless || of(item.placed->block).isEndless;
    }
    // A placed block that draws nothing yet may come to draw something.
    if (item.bounds.empty() && !item.placed) return;
    shape.add(std::move(item));
}

void addAttribute(const BlockShapes& shapes, EntityId attribute, Geometry& geometry) {
    Geometry text = readGeometry(shapes.drawing(), attribute, shapes.textStyles());
    std::move(text.texts.begin(), text.texts.end(), std::back_inserter(geometry.texts));
    addInsertions(shapes, attribute, std::nullopt, geometry);
}

void addInsertions(const BlockShapes& shapes, EntityId id, const std::optional<Placed>& placed,
                   Geometry& geometry) {
    const Drawing& drawing = shapes.drawing();
    if (placed) {
        const Point3& base = drawing.blocks()[placed->block].basePoint;
        geometry.insertions.push_back(placedTransform(shapes, *placed, 0, 0).apply(base));
    } else if (const std::optional<Point3> place = readTextInsertion(drawing, id)) {
        geometry.insertions.push_back(*place);
    }
}

Box placedBounds(BlockShapes& shapes, const Placed& placed) {
    const Box& own = shapes.of(placed.block).bounds;
    Box result;
    for (int column : {0, std::max(placed.placement.columns, 1) - 1}) {
        for (int row : {0, std::max(placed.placement.rows, 1) - 1}) {
            result.add(own.transformed(placedTransform(shapes, placed, column, row)));
        }
    }
    return result;
}

Transform placedTransform(const BlockShapes& shapes, const Placed& placed, int column, int row) {
    const Point3& base = shapes.drawing().blocks()[placed.block].basePoint;
    return referenceTransform(placed.placement, base, column, row);
}

}  // namespace shapes
