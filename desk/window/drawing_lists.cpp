#include "desk/window/drawing_lists.h"

#include "basic/text.h"

#include <algorithm>
#include <unordered_map>

namespace window {

namespace {

template <typename Visit>
void forEachSpaceEntity(const drawing::Drawing& drawing, Visit&& visit) {
    const drawing::BlockTable& blocks = drawing.blocks();
    for (drawing::BlockId space = 0; space < blocks.size(); ++space) {
        if (blocks[space].isErased || !blocks[space].isLayout()) continue;
        drawing.forEachEntity(space, [&](drawing::EntityId id) {
            visit(id);
            return true;
        });
    }
}

bool byName(const std::string& left, const std::string& right) {
    return basic::toUpper(left) < basic::toUpper(right);
}

}  // namespace

std::vector<BlockRow> blockRows(const drawing::Drawing& drawing) {
    const drawing::BlockTable& blocks = drawing.blocks();
    std::vector<std::size_t> counts(blocks.size());
    forEachSpaceEntity(drawing, [&](drawing::EntityId id) {
        if (drawing.type(id) != "INSERT") return;
        const drawing::BlockId block = blocks.find(drawing.name(id));
        if (block != drawing::kNoBlock) ++counts[block];
    });
    std::vector<BlockRow> rows;
    for (drawing::BlockId id = 0; id < blocks.size(); ++id) {
        const drawing::Block& block = blocks[id];
        if (block.isErased || block.isLayout()) continue;
        BlockRow row{id, block.name, {}, counts[id], basic::toUpper(block.name).starts_with("*D")};
        for (const drawing::EntityId definition : block.attributeDefinitions) {
            if (!drawing.isErased(definition)) row.tags.push_back(drawing.attributeTag(definition));
        }
        rows.push_back(std::move(row));
    }
    std::sort(rows.begin(), rows.end(),
              [](const BlockRow& left, const BlockRow& right) { return byName(left.name, right.name); });
    return rows;
}

std::vector<LayerRow> layerRows(const drawing::Drawing& drawing) {
    std::unordered_map<std::string, std::size_t> counts;
    forEachSpaceEntity(drawing,
                       [&](drawing::EntityId id) { ++counts[basic::toUpper(drawing.layerName(id))]; });
    const std::string current = drawing.header().text("$CLAYER").value_or("0");
    std::vector<LayerRow> rows;
    for (const drawing::Layer& layer : drawing.layers().all()) {
        if (layer.record == drawing::kNoEntity || drawing.isErased(layer.record)) continue;
        const auto found = counts.find(basic::toUpper(layer.name));
        rows.push_back({layer.name, layer.color, !layer.off, layer.frozen, layer.locked,
                        basic::equalIgnoringCase(layer.name, current),
                        found == counts.end() ? 0 : found->second});
    }
    std::sort(rows.begin(), rows.end(), [](const LayerRow& left, const LayerRow& right) {
        if ((left.name == "0") != (right.name == "0")) return left.name == "0";
        return byName(left.name, right.name);
    });
    return rows;
}

std::vector<drawing::EntityId> entitiesNamed(const drawing::Drawing& drawing, const std::string& block) {
    // The name stands for itself: signs that a filter would read as wildcards are taken literally.
    std::string pattern;
    for (const char sign : block) {
        if (std::string_view("#@.*?~[],-`").find(sign) != std::string_view::npos) pattern.push_back('`');
        pattern.push_back(sign);
    }
    return drawing.select({{2, pattern}});
}

std::vector<drawing::EntityId> referencesOf(const drawing::Drawing& drawing, const std::string& block) {
    std::vector<drawing::EntityId> found = entitiesNamed(drawing, block);
    std::erase_if(found, [&drawing](drawing::EntityId id) { return drawing.type(id) != "INSERT"; });
    return found;
}

}  // namespace window
