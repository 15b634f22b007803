#include "desk/drawing/block_table.h"

#include "basic/text.h"

namespace drawing {

BlockId BlockTable::find(std::string_view name) const {
    const auto found = byName_.find(basic::toLower(name));
    return found == byName_.end() ? kNoBlock : found->second;
}

BlockId BlockTable::add(Block block) {
    const auto id = static_cast<BlockId>(blocks_.size());
    if (byName_.try_emplace(basic::toLower(block.name), id).second) enterName(block.nameKey, id);
    blocks_.push_back(std::move(block));
    return id;
}

void BlockTable::enterName(NameKey name, BlockId id) {
    if (name == NameKey::None) return;
    if (indexOf(name) >= ofName_.size()) ofName_.resize(indexOf(name) + 1, kNoBlock);
    ofName_[indexOf(name)] = id;
}

void BlockTable::setSpaces(BlockId model, BlockId paper) {
    modelSpace_ = model;
    paperSpace_ = paper;
    // The names of R12, under which older files and scripts know the spaces.
    byName_.try_emplace("$model_space", model);
    byName_.try_emplace("$paper_space", paper);
}

void BlockTable::setErased(BlockId id, bool erased) {
    Block& block = blocks_[id];
    block.isErased = erased;
    const std::string name = basic::toLower(block.name);
    if (!erased) {
        if (byName_.try_emplace(name, id).second) enterName(block.nameKey, id);
        return;
    }
    const auto found = byName_.find(name);
    if (found == byName_.end() || found->second != id) return;
    byName_.erase(found);
    enterName(block.nameKey, kNoBlock);
}

void BlockTable::restore(BlockId id, Block state) {
    const bool wasErased = blocks_[id].isErased;
    const bool isErased = state.isErased;
    blocks_[id] = std::move(state);
    if (wasErased != isErased) setErased(id, isErased);
}

}  // namespace drawing
