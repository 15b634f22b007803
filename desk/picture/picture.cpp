#include "desk/picture/picture.h"

#include "desk/drawing/drawing.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

namespace picture {

namespace {

/// Beyond this no drafter nests blocks; it keeps a damaged drawing from exhausting the stack.
constexpr int kDeepestNesting = 100;

/// Mixes bytes into a hash, eight at a time. It only has to tell a text from its successor.
std::uint64_t mixed(std::uint64_t hash, std::string_view bytes) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15u;
    const auto mix = [&](std::uint64_t word) {
        hash = (hash ^ word) * kFactor;
        hash ^= hash >> 32;
    };
    mix(bytes.size());
    while (bytes.size() >= 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data(), 8);
        mix(word);
        bytes.remove_prefix(8);
    }
    std::uint64_t rest = 0;
    if (!bytes.empty()) std::memcpy(&rest, bytes.data(), bytes.size());
    mix(rest);
    return hash;
}

}  // namespace

Picture::Picture(const Drawing& drawing) : drawing_(drawing) { reset(); }

void Picture::reset() {
    styles_ = std::make_unique<Styles>(drawing_);
    textStyles_ = std::make_unique<shapes::TextStyles>(drawing_);
    pens_ = PenTable();
    blocks_.clear();
    blocks_.resize(drawing_.blocks().size());
    open_.assign(drawing_.blocks().size(), false);
    pointStyle_.mode = drawing_.header().integer("$PDMODE").value_or(0);
    pointStyle_.size = drawing_.header().number("$PDSIZE").value_or(0);
    revision_ = drawing_.revision();
    tables_ = stampOfTables();
}

std::uint64_t Picture::stampOf(EntityId id) const {
    std::uint64_t stamp = mixed(0, drawing_.bytes(id));
    const drawing::PartRange parts = drawing_.parts(id);
    for (std::uint32_t i = 0; i < parts.count; ++i) {
        const EntityId part = parts.first + i;
        if (!drawing_.isErased(part)) stamp = mixed(stamp, drawing_.bytes(part));
    }
    return stamp;
}

std::uint64_t Picture::stampOfTables() const {
    std::uint64_t stamp = 0;
    for (const char* table : {"LAYER", "LTYPE", "STYLE", "DIMSTYLE"}) {
        for (const EntityId id : drawing_.tableEntries(table)) stamp = mixed(stamp, drawing_.bytes(id));
    }
    return stamp;
}

void Picture::update() {
    if (revision_ == drawing_.revision()) return;
    bool keeps = stampOfTables() == tables_;
    std::vector<BlockId> spaces;
    for (BlockId block = 0; keeps && block < blocks_.size(); ++block) {
        if (!blocks_[block] || !hasChanged(block, *blocks_[block])) continue;
        keeps = drawing_.blocks()[block].isLayout();
        spaces.push_back(block);
    }
    if (!keeps) return reset();
    blocks_.resize(drawing_.blocks().size());
    open_.assign(blocks_.size(), false);
    revision_ = drawing_.revision();
    for (const BlockId space : spaces) renew(space, *blocks_[space]);
}

bool Picture::hasChanged(BlockId block, const Prepared& of) const {
    std::size_t at = 0;
    bool same = true;
    drawing_.forEachEntity(block, [&](EntityId id) {
        same = at < of.sources.size() && of.sources[at].entity == id && of.sources[at].stamp == stampOf(id);
        ++at;
        return same;
    });
    return !same || at != of.sources.size();
}

/// Takes over the items of entities that are as they were; both rows are in drawing order.
void Picture::renew(BlockId block, Prepared& of) {
    if (of.list.points.size() > 2 * of.fullSize + 100'000) {
        of = {};
        return prepare(block, of);
    }
    const std::vector<Source> before = std::exchange(of.sources, {});
    const std::vector<Item> items = std::exchange(of.list.items, {});
    ListBuilder builder(drawing_, *styles_, *textStyles_, pens_);
    std::size_t old = 0;
    std::size_t item = 0;
    drawing_.forEachEntity(block, [&](EntityId id) {
        // New entities have higher numbers than all that were there.
        while (old < before.size() && before[old].entity != id && before.back().entity >= id) {
            if (before[old++].shown == Shown::Drawn) ++item;
        }
        const std::uint64_t stamp = stampOf(id);
        const bool known = old < before.size() && before[old].entity == id;
        if (known && before[old].stamp == stamp) {
            of.sources.push_back(before[old]);
            if (before[old++].shown == Shown::Drawn) of.list.items.push_back(items[item++]);
            return true;
        }
        if (known && before[old++].shown == Shown::Drawn) ++item;
        of.sources.push_back({id, stamp, builder.add(id, false, of.list)});
        if (of.sources.back().shown == Shown::Drawn) addPlacedBounds(of.list, of.list.items.back());
        return true;
    });
    finish(of);
}

const Picture::Prepared& Picture::prepared(BlockId block) {
    static const Prepared kEmpty;
    if (block >= blocks_.size() || open_[block] || depth_ >= kDeepestNesting) return kEmpty;
    if (!blocks_[block]) {
        open_[block] = true;
        ++depth_;
        auto result = std::make_unique<Prepared>();
        prepare(block, *result);
        --depth_;
        open_[block] = false;
        blocks_[block] = std::move(result);
    }
    return *blocks_[block];
}

void Picture::prepare(BlockId block, Prepared& into) {
    const bool inBlock = !drawing_.blocks()[block].isLayout();
    ListBuilder builder(drawing_, *styles_, *textStyles_, pens_);
    drawing_.forEachEntity(block, [&](EntityId id) {
        into.sources.push_back({id, stampOf(id), builder.add(id, inBlock, into.list)});
        if (into.sources.back().shown == Shown::Drawn) addPlacedBounds(into.list, into.list.items.back());
        return true;
    });
    into.fullSize = into.list.points.size();
    finish(into);
}

/// Makes what is derived from the items: the box about them, and where each entity's is.
void Picture::finish(Prepared& of) const {
    DisplayList& list = of.list;
    list.bounds = {};
    list.isEndless = false;
    of.itemByEntity.clear();
    if (list.items.empty()) return;
    const auto [low, high] =
        std::minmax_element(list.items.begin(), list.items.end(),
                            [](const Item& a, const Item& b) { return a.entity < b.entity; });
    of.firstEntity = low->entity;
    of.itemByEntity.assign(high->entity - low->entity + 1, 0);
    for (std::size_t i = 0; i < list.items.size(); ++i) {
        const Item& item = list.items[i];
        list.bounds.add(item.bounds);
        list.isEndless = list.isEndless || item.isEndless;
        of.itemByEntity[item.entity - of.firstEntity] = static_cast<std::uint32_t>(i + 1);
    }
}

void Picture::addPlacedBounds(DisplayList& list, Item& item) {
    if (item.placement == Item::kNone) return;
    const shapes::Placed& placed = list.placements[item.placement].placed;
    const DisplayList& inner = this->list(placed.block);
    item.isEndless = item.isEndless || inner.isEndless;
    if (inner.bounds.empty()) return;
    for (const int column : {0, std::max(placed.placement.columns, 1) - 1}) {
        for (const int row : {0, std::max(placed.placement.rows, 1) - 1}) {
            item.bounds.add(inner.bounds.transformed(placedTransform(drawing_, placed, column, row)));
        }
    }
}

const DisplayList& Picture::list(BlockId block) { return prepared(block).list; }

std::optional<std::size_t> Picture::itemOf(BlockId space, EntityId entity) {
    const Prepared& of = prepared(space);
    if (entity < of.firstEntity || entity - of.firstEntity >= of.itemByEntity.size()) return std::nullopt;
    const std::uint32_t number = of.itemByEntity[entity - of.firstEntity];
    if (number == 0) return std::nullopt;
    return number - 1;
}

DisplayList Picture::listEvenHidden(const std::vector<EntityId>& entities) {
    ListBuilder builder(drawing_, *styles_, *textStyles_, pens_);
    builder.setShowsHidden(true);
    DisplayList list;
    for (const EntityId id : entities) {
        if (drawing_.isErased(id) || builder.add(id, false, list) != Shown::Drawn) continue;
        addPlacedBounds(list, list.items.back());
    }
    return list;
}

void Picture::addUndrawn(BlockId block, std::vector<bool>& seen, Counts& counts) {
    if (block >= seen.size() || seen[block]) return;
    seen[block] = true;
    const Prepared& of = prepared(block);
    for (const Source& source : of.sources) {
        if (source.shown == Shown::NotDrawn) ++counts.notDrawn[std::string(drawing_.type(source.entity))];
    }
    for (const Item& item : of.list.items) {
        if (item.placement == Item::kNone) continue;
        addUndrawn(of.list.placements[item.placement].placed.block, seen, counts);
    }
}

Counts Picture::counts(BlockId space) {
    Counts counts;
    for (const Source& source : prepared(space).sources) {
        counts.invisible += source.shown == Shown::Invisible ? 1 : 0;
        counts.frozen += source.shown == Shown::Frozen ? 1 : 0;
        counts.off += source.shown == Shown::Off ? 1 : 0;
    }
    std::vector<bool> seen(blocks_.size());
    addUndrawn(space, seen, counts);
    return counts;
}

Transform placedTransform(const Drawing& drawing, const shapes::Placed& placed, int column, int row) {
    return drawing::referenceTransform(placed.placement, drawing.blocks()[placed.block].basePoint, column,
                                       row);
}

}  // namespace picture
