#include "desk/drawing/compiled_filter.h"
#include "desk/drawing/inside.h"

#include <algorithm>

namespace drawing {

namespace {

bool isInSpace(const Drawing& drawing, EntityId id) {
    const Record record = Inside::store(drawing).record(id);
    return !record.has(kPart) && record.owner != kNoBlock && drawing.blocks()[record.owner].isLayout() &&
           !record.has(kErased);
}

}  // namespace

std::vector<EntityId> Drawing::select(const Filter& filter) const {
    const CompiledFilter compiled(*this, filter);
    std::vector<EntityId> found;
    const auto take = [&](EntityId id) {
        if (isInSpace(*this, id) && compiled.passes(id)) found.push_back(id);
    };
    if (compiled.names()) {
        for (NameKey name : *compiled.names()) {
            for (EntityId id : store_->named(name)) take(id);
        }
        if (compiled.names()->size() > 1) std::sort(found.begin(), found.end());
    } else {
        for (EntityId id = 0; id < store_->count(); ++id) take(id);
    }
    return found;
}

std::vector<EntityId> Drawing::select(const Filter& filter, const std::vector<EntityId>& among) const {
    const CompiledFilter compiled(*this, filter);
    std::vector<EntityId> found;
    for (EntityId id : among) {
        if (id < store_->count() && isInSpace(*this, id) && compiled.passes(id)) found.push_back(id);
    }
    return found;
}

}  // namespace drawing
