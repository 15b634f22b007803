#include "desk/answers/typed_selection.h"

#include "basic/text.h"
#include "desk/answers/typed_answer.h"
#include "desk/shapes/geometry.h"
#include "desk/shapes/pick.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace answers {

using drawing::Drawing;
using drawing::EntityId;

namespace {

/// The half side of the pick box; negative in an empty drawing.
double pickBox(const Drawing& drawing) {
    constexpr double kPart = 200;
    const geometry::Box extents = shapes::extentsOf(drawing, drawing.modelSpace());
    if (extents.empty()) return -1;
    return std::max(extents.high.x - extents.low.x, extents.high.y - extents.low.y) / kPart;
}

}  // namespace

EntityId entityByHandle(const Drawing& drawing, drawing::Handle handle) {
    const EntityId id = drawing.byHandle(handle);
    if (id == drawing::kNoEntity) return id;
    const drawing::BlockId owner = drawing.owner(id);
    const bool inSpace = owner != drawing::kNoBlock && drawing.blocks()[owner].isLayout();
    return inSpace ? drawing.mainEntity(id) : drawing::kNoEntity;
}

EntityId entityAt(const Drawing& drawing, const geometry::Point3& point) {
    const double box = pickBox(drawing);
    return box < 0 ? drawing::kNoEntity
                   : shapes::pickEntity(drawing, point, std::max(box, 1e-9)).value_or(drawing::kNoEntity);
}

geometry::Point3 pointOn(const Drawing& drawing, EntityId entity) {
    if (drawing.type(entity) == "INSERT") return drawing.insert(entity).insertion;
    const shapes::Geometry shape = shapes::readGeometry(drawing, entity);
    if (!shape.strokes.empty()) return geometry::startPoint(shape.strokes.front().curve);
    const geometry::Box box = shape.bounds();
    return box.empty() ? geometry::Point3{} : geometry::lerp(box.low, box.high, 0.5);
}

EntityId firstReference(const Drawing& drawing, std::string_view block) {
    EntityId found = drawing::kNoEntity;
    const drawing::BlockTable& blocks = drawing.blocks();
    const auto lookIn = [&](drawing::BlockId space) {
        drawing.forEachEntity(space, [&](EntityId id) {
            if (drawing.type(id) == "INSERT" && basic::equalIgnoringCase(drawing.name(id), block)) found = id;
            return found == drawing::kNoEntity;
        });
    };
    lookIn(drawing.modelSpace());
    for (drawing::BlockId space = 0; space < blocks.size() && found == drawing::kNoEntity; ++space) {
        if (blocks[space].isPaperSpace && !blocks[space].isErased) lookIn(space);
    }
    return found;
}

std::vector<EntityId> Selection::findAll() const {
    std::vector<EntityId> found;
    drawing_.forEachEntity(drawing_.modelSpace(), [&](EntityId id) {
        if (!drawing_.layer(id).frozen) found.push_back(id);
        return true;
    });
    return found;
}

std::vector<EntityId> Selection::findLast() const {
    EntityId last = drawing::kNoEntity;
    drawing_.forEachEntity(drawing_.modelSpace(), [&](EntityId id) {
        if (drawing_.isDisplayed(id)) last = id;
        return true;
    });
    return last == drawing::kNoEntity ? std::vector<EntityId>{} : std::vector<EntityId>{last};
}

/// Walks the line in steps of a pick box: what lies in one of the boxes touches the fence.
std::vector<EntityId> Selection::findFence(const std::vector<std::string_view>& corners) const {
    constexpr int kMostSteps = 2000;
    std::vector<geometry::Point3> points;
    for (const std::string_view corner : corners) {
        const auto point = parsePoint(corner, points.empty() ? std::nullopt : std::optional(points.back()));
        if (!point) throw AnswerError("\"" + std::string(corner) + "\" is no point");
        points.push_back(*point);
    }
    if (points.size() < 2) throw AnswerError("a fence needs two points or more");
    const double step = std::max(pickBox(drawing_), 1e-9);
    std::vector<EntityId> found;
    std::unordered_set<EntityId> known;
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const double length = std::hypot(points[i + 1].x - points[i].x, points[i + 1].y - points[i].y);
        const int steps =
            std::clamp(static_cast<int>(std::min(length / step, 1.0 * kMostSteps)) + 1, 1, kMostSteps);
        for (int k = 0; k < steps; ++k) {
            const auto from = geometry::lerp(points[i], points[i + 1], static_cast<double>(k) / steps);
            const auto to = geometry::lerp(points[i], points[i + 1], (k + 1.0) / steps);
            for (const EntityId id : shapes::selectWindow(drawing_, from, to, true)) {
                if (known.insert(id).second) found.push_back(id);
            }
        }
    }
    return found;
}

std::vector<EntityId> Selection::findHandles(const std::vector<std::string_view>& parts) const {
    std::vector<EntityId> found;
    for (const std::string_view part : parts) {
        const auto handle = parseHandleAnswer(part);
        if (!handle && part.starts_with('@'))
            throw AnswerError("\"" + std::string(part.substr(1)) + "\" is no handle");
        if (!handle) {
            throw AnswerError(
                "is no selection: all, w x,y x,y, c x,y x,y, f x,y x,y..., p, l, r, a, first NAME, "
                "@HANDLE..., a point, or esc");
        }
        const EntityId id = entityByHandle(drawing_, *handle);
        if (id == drawing::kNoEntity)
            throw AnswerError("no entity of the drawing has the handle " + std::string(part.substr(1)));
        found.push_back(id);
    }
    return found;
}

std::vector<EntityId> Selection::find(std::string_view answer) const {
    const std::vector<std::string_view> parts = words(answer);
    const auto is = [&](const char* word) { return basic::equalIgnoringCase(parts[0], word); };
    if (parts.size() == 1) {
        if (is("all")) return findAll();
        if (is("l")) return findLast();
        if (is("p")) {
            std::vector<EntityId> alive;
            std::copy_if(previous_.begin(), previous_.end(), std::back_inserter(alive),
                         [&](EntityId id) { return !drawing_.isErased(id); });
            return alive;
        }
        if (const auto point = parsePoint(answer, std::nullopt)) {
            const EntityId id = entityAt(drawing_, *point);
            return id == drawing::kNoEntity ? std::vector<EntityId>{} : std::vector<EntityId>{id};
        }
    } else if (is("w") || is("c")) {
        const auto first = parts.size() == 3 ? parsePoint(parts[1], std::nullopt) : std::nullopt;
        const auto second = first ? parsePoint(parts[2], first) : std::nullopt;
        if (!second) throw AnswerError("a window needs two corners, such as w 0,0 10,5");
        return shapes::selectWindow(drawing_, *first, *second, is("c"));
    } else if (is("f")) {
        return findFence({parts.begin() + 1, parts.end()});
    } else if (is("first")) {
        const std::string_view name = basic::trim(answer.substr(answer.find_first_of(" \t")));
        const EntityId id = firstReference(drawing_, name);
        if (id == drawing::kNoEntity) throw AnswerError("no reference of " + std::string(name));
        return {id};
    }
    return findHandles(parts);
}

std::size_t Selection::add(std::string_view answer) {
    const std::vector<std::string_view> parts = words(answer);
    if (parts.empty()) throw AnswerError("is no selection");
    const bool mode = basic::equalIgnoringCase(parts[0], "r") || basic::equalIgnoringCase(parts[0], "a");
    if (mode) {
        removing_ = basic::equalIgnoringCase(parts[0], "r");
        if (parts.size() == 1) return 0;
        answer = basic::trim(answer.substr(answer.find_first_of(" \t")));
    }
    const std::vector<EntityId> found = find(answer);
    for (const EntityId id : found) {
        if (removing_) {
            if (known_.erase(id) > 0) std::erase(entities_, id);
        } else if (known_.insert(id).second) {
            entities_.push_back(id);
        }
    }
    return found.size();
}

}  // namespace answers
