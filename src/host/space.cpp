#include "host/space.h"

namespace host {

BlockReference Space::InsertBlock(const Variant& point, const Variant& name, const Variant& xScale,
                                  const Variant& yScale, const Variant& zScale,
                                  const Variant& rotation) const {
    return BlockReference(invoke("InsertBlock", {point, name, xScale, yScale, zScale, rotation}));
}

Entity Space::AddLine(const Variant& start, const Variant& end) const {
    return Entity(invoke("AddLine", {start, end}));
}

}  // namespace host
