#include "desk/drawing/block_uses.h"

#include "desk/drawing/inside.h"

namespace drawing {

namespace {

/// Stands for "not looked at yet" among the homes.
constexpr BlockId kUnknownHome = kNoBlock - 1;

constexpr int kExtendedHandle = 1005;

bool isPointer(int code) {
    switch (dxf::handleRole(code)) {
        case dxf::HandleRole::None:
        case dxf::HandleRole::Own:
            return false;
        default:
            return true;
    }
}

}  // namespace

BlockUses::BlockUses(const Drawing& drawing)
    : drawing_(drawing),
      store_(Inside::store(drawing)),
      homes_(store_.count(), kNoBlock),
      uses_(drawing.blocks().size()) {
    findHomes();
    for (EntityId id = 0; id < store_.count(); ++id) {
        if (!store_.isErased(id)) readUses(id);
    }
    readVariables();
}

bool BlockUses::mayGo(BlockId block) const {
    const Block& definition = drawing_.blocks()[block];
    return !definition.isErased && !definition.isLayout() && !definition.isXRef();
}

void BlockUses::findHomes() {
    for (EntityId id = 0; id < store_.count(); ++id) {
        const Record record = store_.record(id);
        if (record.has(kObject)) {
            homes_[id] = kUnknownHome;
        } else if (record.owner != kNoBlock) {
            homes_[id] = record.has(kPart) ? store_.record(record.owner).owner : record.owner;
        }
    }
    const BlockTable& blocks = drawing_.blocks();
    for (BlockId block = 0; block < blocks.size(); ++block) {
        for (const EntityId frame : {blocks[block].record, blocks[block].begin, blocks[block].end}) {
            if (frame != kNoEntity) homes_[frame] = block;
        }
    }
    for (EntityId id = 0; id < store_.count(); ++id) {
        if (homes_[id] == kUnknownHome) homeOfObject(id);
    }
}

BlockId BlockUses::homeOfObject(EntityId object) {
    // Up to the first owner whose home is known; one that leads back to where it began has none.
    std::vector<EntityId> way;
    EntityId at = object;
    while (at != kNoEntity && homes_[at] == kUnknownHome) {
        homes_[at] = kNoBlock;
        way.push_back(at);
        at = drawing_.byHandle(Inside::ownerHandle(drawing_, at));
    }
    const BlockId home = at == kNoEntity ? kNoBlock : homes_[at];
    for (const EntityId each : way) homes_[each] = home;
    return home;
}

void BlockUses::use(BlockId user, BlockId used) {
    if (used == kNoBlock || used == user || !mayGo(used)) return;
    std::vector<BlockId>& uses = user == kNoBlock || !mayGo(user) ? rootUses_ : uses_[user];
    if (uses.empty() || uses.back() != used) uses.push_back(used);
}

void BlockUses::readUses(EntityId id) {
    const Record record = store_.record(id);
    const BlockTable& blocks = drawing_.blocks();
    const BlockId user = homes_[id];
    const bool isEntity = record.owner != kNoBlock && !record.has(kPart) && !record.has(kObject);
    if (isEntity && record.name != kNoName && record.type != kAttDef)
        use(user, blocks.ofName(store_.names.key(record.name)));
    bool begun = false;
    dxf::TagReader reader = store_.reader(id);
    for (dxf::Tag tag; reader.next(tag); begun = true) {
        // Dimension styles of R12 name their arrow blocks.
        if (record.type == kDimStyleEntry && begun && tag.code >= 5 && tag.code <= 7)
            use(user, blocks.find(tag.text()));
        if (!isPointer(tag.code) && tag.code != kExtendedHandle) continue;
        const EntityId target = store_.handles.find(tag.handle());
        if (target != kNoEntity) use(user, homes_[target]);
    }
}

void BlockUses::readVariables() {
    for (const char* name : {"$DIMBLK", "$DIMBLK1", "$DIMBLK2", "$DIMLDRBLK"}) {
        const std::string block = drawing_.header().text(name).value_or("");
        if (block.empty()) continue;
        use(kNoBlock, drawing_.blocks().find(block));
        use(kNoBlock, drawing_.blocks().find("_" + block));  // the names of the host's own arrows
    }
}

std::vector<BlockId> BlockUses::unused() const {
    std::vector<bool> used(uses_.size(), false);
    std::vector<BlockId> open = rootUses_;
    while (!open.empty()) {
        const BlockId block = open.back();
        open.pop_back();
        if (used[block]) continue;
        used[block] = true;
        open.insert(open.end(), uses_[block].begin(), uses_[block].end());
    }
    std::vector<BlockId> unused;
    for (BlockId block = 0; block < used.size(); ++block) {
        if (!used[block] && mayGo(block)) unused.push_back(block);
    }
    return unused;
}

}  // namespace drawing
