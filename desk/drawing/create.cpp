#include "desk/drawing/creator.h"
#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

#include <cmath>

namespace drawing {

namespace {

bool isFinite(const Point3& point) {
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

}  // namespace

EntityId Drawing::insertBlock(BlockId block, const Point3& point, const Vector3& scale, double rotation) {
    if (block >= blocks_.size() || blocks_[block].isErased) raise(kKeyNotFound, "no such block");
    if (blocks_[block].isLayout()) raise(kInvalidInput, blocks_[block].name + " is a space");
    if (!isFinite(point) || !isFinite(scale) || !std::isfinite(rotation)) raise(kInvalidInput);
    if (scale.x == 0 || scale.y == 0 || scale.z == 0) raise(kInvalidInput, "a scale factor of 0");
    const UndoStep step(*this);
    Placement placement;
    placement.insertion = point;
    placement.scale = scale;
    placement.rotation = rotation;
    return addToModelSpace(creator_->insert(block, placement));
}

EntityId Drawing::addLine(const Point3& start, const Point3& end) {
    if (!isFinite(start) || !isFinite(end)) raise(kInvalidInput);
    const UndoStep step(*this);
    return addToModelSpace(creator_->line(start, end));
}

EntityId Drawing::addToModelSpace(EntityId id) {
    blocks_[modelSpace()].entities.push_back(id);
    store_->indexName(id);
    noteChange();
    return id;
}

}  // namespace drawing
