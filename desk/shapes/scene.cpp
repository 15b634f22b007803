#include "desk/shapes/scene.h"

namespace shapes {

void Scene::follow() {
    if (seen_ == drawing_.journalEnd()) return;
    const drawing::Changes changes = drawing_.changesSince(seen_);
    seen_ = drawing_.journalEnd();
    // A definition that came or went decides whether a reference shows anything.
    const bool all = changes.everything || (!changes.blocks.empty() && blocks_.lackedBlock());
    if (all) blocks_.clear();
    const std::vector<bool> outdated = all ? std::vector<bool>() : blocks_.forget(changes.blocks);
    blocks_.forgetLarge(changes.entities);
    for (auto& [space, index] : spaces_) {
        if (all) {
            index.build();
        } else {
            index.update(changes.entities, outdated);
        }
    }
}

BlockShapes& Scene::blocks() {
    follow();
    return blocks_;
}

SpaceIndex& Scene::space(BlockId space) {
    follow();
    const auto [found, isNew] = spaces_.try_emplace(space, blocks_, space);
    if (isNew) found->second.build();
    return found->second;
}

Scene& sceneOf(const Drawing& drawing) {
    std::unique_ptr<drawing::Companion>& companion = drawing.companion();
    if (!companion) companion = std::make_unique<Scene>(drawing);
    return static_cast<Scene&>(*companion);
}

}  // namespace shapes
