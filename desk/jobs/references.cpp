#include "desk/jobs/references.h"

#include "basic/text.h"
#include "desk/answers/typed_selection.h"
#include "desk/jobs/dialog_run.h"

#include <algorithm>
#include <unordered_set>

namespace jobs {

using drawing::EntityId;

std::vector<EntityId> References::all() const {
    std::vector<EntityId> both;
    std::merge(free.begin(), free.end(), locked.begin(), locked.end(), std::back_inserter(both));
    return both;
}

References findReferences(const drawing::Drawing& drawing, std::string_view block) {
    References found;
    const drawing::BlockTable& blocks = drawing.blocks();
    for (drawing::BlockId space = 0; space < blocks.size(); ++space) {
        if (blocks[space].isErased) continue;
        drawing.forEachEntity(space, [&](EntityId id) {
            if (drawing.type(id) != "INSERT" || !basic::equalIgnoringCase(drawing.name(id), block))
                return true;
            if (!blocks[space].isLayout()) {
                ++found.insideBlocks;
            } else {
                (drawing.isOnLockedLayer(id) ? found.locked : found.free).push_back(id);
            }
            return true;
        });
    }
    std::sort(found.free.begin(), found.free.end());
    std::sort(found.locked.begin(), found.locked.end());
    return found;
}

std::vector<EntityId> inZones(const drawing::Drawing& drawing, const std::vector<EntityId>& entities,
                              const std::vector<std::string>& zones) {
    answers::Selection selection(drawing);
    for (const std::string& zone : zones) {
        try {
            selection.add(zone);
        } catch (const answers::AnswerError& error) {
            throw JobError("--zone " + zone + ": " + error.what());
        }
    }
    const std::unordered_set<EntityId> inside(selection.entities().begin(), selection.entities().end());
    std::vector<EntityId> kept;
    std::copy_if(entities.begin(), entities.end(), std::back_inserter(kept),
                 [&](EntityId id) { return inside.contains(id); });
    return kept;
}

std::string blockNamed(const drawing::Drawing& drawing, std::string_view name) {
    const drawing::BlockId id = drawing.blocks().find(name);
    if (id == drawing::kNoBlock || drawing.blocks()[id].isErased || drawing.blocks()[id].isLayout())
        return {};
    return drawing.blocks()[id].name;
}

bool isDrawingFile(std::string_view name) {
    if (name.size() < 5) return false;
    const std::string_view extension = name.substr(name.size() - 4);
    return basic::equalIgnoringCase(extension, ".dxf") || basic::equalIgnoringCase(extension, ".dwg");
}

}  // namespace jobs
