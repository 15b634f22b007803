#include "desk/console/text_selection.h"

#include "basic/text.h"
#include "desk/console/answers.h"
#include "desk/drawing/geometry.h"
#include "desk/drawing/pick.h"

#include <algorithm>

namespace console {

using drawing::Drawing;
using drawing::EntityId;

namespace {

/// A box about model space: references count with their insertion points, which is enough for a pick box.
drawing::Box roughExtents(const Drawing& drawing) {
    drawing::Box box;
    drawing.forEachEntity(drawing.modelSpace(), [&](EntityId id) {
        if (drawing.type(id) == "INSERT") {
            const drawing::Placement placement = drawing.placement(id);
            box.add(drawing::ocsToWcs(placement.insertion, placement.extrusion));
        } else {
            box.add(drawing::readGeometry(drawing, id).bounds());
        }
        return true;
    });
    return box;
}

}  // namespace

EntityId entityByHandle(const Drawing& drawing, drawing::Handle handle) {
    const EntityId id = drawing.byHandle(handle);
    if (id == drawing::kNoEntity) return id;
    const drawing::BlockId owner = drawing.owner(id);
    const bool inSpace = owner != drawing::kNoBlock && drawing.blocks()[owner].isLayout();
    return inSpace ? drawing.mainEntity(id) : drawing::kNoEntity;
}

EntityId entityAt(const Drawing& drawing, const drawing::Point3& point) {
    const drawing::Box extents = roughExtents(drawing);
    if (extents.empty()) return drawing::kNoEntity;
    const double size = std::max(extents.high.x - extents.low.x, extents.high.y - extents.low.y);
    return drawing::pickEntity(drawing, point, std::max(size / 200, 1e-9)).value_or(drawing::kNoEntity);
}

drawing::Point3 pointOn(const Drawing& drawing, EntityId entity) {
    if (drawing.type(entity) == "INSERT") return drawing.insert(entity).insertion;
    const drawing::Geometry geometry = drawing::readGeometry(drawing, entity);
    if (!geometry.strokes.empty()) return drawing::startPoint(geometry.strokes.front().curve);
    const drawing::Box box = geometry.bounds();
    return box.empty() ? drawing::Point3{} : drawing::lerp(box.low, box.high, 0.5);
}

std::optional<std::vector<EntityId>> Selection::find(std::string_view answer) const {
    const std::vector<std::string_view> parts = words(answer);
    if (parts.empty()) return std::nullopt;
    std::vector<EntityId> found;
    if (parts.size() == 1 && basic::equalIgnoringCase(parts[0], "all")) {
        drawing_.forEachEntity(drawing_.modelSpace(), [&](EntityId id) {
            if (!drawing_.layer(id).frozen) found.push_back(id);
            return true;
        });
        return found;
    }
    const bool window = basic::equalIgnoringCase(parts[0], "w");
    if (window || basic::equalIgnoringCase(parts[0], "c")) {
        if (parts.size() != 3) return std::nullopt;
        const auto first = parsePoint(parts[1], std::nullopt);
        const auto second = parsePoint(parts[2], first);
        if (!first || !second) return std::nullopt;
        return drawing::selectWindow(drawing_, *first, *second, !window);
    }
    if (const auto point = parsePoint(answer, std::nullopt); point && parts.size() == 1) {
        const EntityId id = entityAt(drawing_, *point);
        if (id != drawing::kNoEntity) found.push_back(id);
        return found;
    }
    for (const std::string_view part : parts) {
        const auto handle = parseHandleAnswer(part);
        const EntityId id = handle ? entityByHandle(drawing_, *handle) : drawing::kNoEntity;
        if (id == drawing::kNoEntity) return std::nullopt;
        found.push_back(id);
    }
    return found;
}

std::optional<std::size_t> Selection::add(std::string_view answer) {
    const std::optional<std::vector<EntityId>> found = find(answer);
    if (!found) return std::nullopt;
    for (const EntityId id : *found) {
        if (known_.insert(id).second) entities_.push_back(id);
    }
    return found->size();
}

}  // namespace console
