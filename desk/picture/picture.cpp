#include "desk/picture/picture.h"

#include "desk/drawing/drawing.h"
#include "desk/drawing/work_watch.h"

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
    lackedBlock_ = false;
    revision_ = drawing_.revision();
    seen_ = drawing_.journalEnd();
    settings_ = stampOfSettings();
}

/// Of what styles and points are read from, which the journal doesn't tell.
std::uint64_t Picture::stampOfSettings() const {
    std::uint64_t stamp = 0;
    for (const char* table : {"LTYPE", "STYLE", "DIMSTYLE"}) {
        for (const EntityId id : drawing_.tableEntries(table)) stamp = mixed(stamp, drawing_.bytes(id));
    }
    for (const char* variable : {"$LTSCALE", "$PDMODE", "$PDSIZE"}) {
        const double value = drawing_.header().number(variable).value_or(0);
        stamp = mixed(stamp, {reinterpret_cast<const char*>(&value), sizeof value});
    }
    return stamp;
}

void Picture::update() {
    if (revision_ == drawing_.revision()) return;
    const drawing::Changes changes = drawing_.changesSince(seen_);
    // A definition that came or went decides whether a reference shows anything.
    const bool bringsBlock = !changes.blocks.empty() && lackedBlock_;
    const bool changesBlock = std::any_of(changes.blocks.begin(), changes.blocks.end(), [&](BlockId block) {
        return block < blocks_.size() && blocks_[block];
    });
    if (changes.everything || bringsBlock || changesBlock || settings_ != stampOfSettings()) return reset();
    blocks_.resize(drawing_.blocks().size());
    open_.assign(blocks_.size(), false);
    revision_ = drawing_.revision();
    seen_ = drawing_.journalEnd();
    for (BlockId space = 0; space < blocks_.size() && !changes.entities.empty(); ++space) {
        const bool isSpace = drawing_.blocks()[space].isLayout();
        if (blocks_[space] && isSpace) renew(space, changes.entities, *blocks_[space]);
    }
}

Picture::Source Picture::add(ListBuilder& builder, EntityId id, bool inBlock, DisplayList& list) {
    const Source source{id, builder.add(id, inBlock, list)};
    if (source.shown == Shown::Drawn) addPlacedBounds(list, list.items.back());
    const bool lacks = source.shown == Shown::NotDrawn && drawing_.type(id) == "INSERT";
    lackedBlock_ = lackedBlock_ || lacks;
    return source;
}

/// Takes over the items of entities that nobody touched. Entities, items and `touched` are in rising order.
void Picture::renew(BlockId block, const std::vector<EntityId>& touched, Prepared& of) {
    if (of.list.points.size() > 2 * of.fullSize + 100'000) {
        of = {};
        return prepare(block, of);
    }
    const std::vector<Source> before = std::exchange(of.sources, {});
    const std::vector<Item> items = std::exchange(of.list.items, {});
    of.sources.reserve(before.size() + touched.size());
    of.list.items.reserve(items.size() + touched.size());
    ListBuilder builder(drawing_, *styles_, *textStyles_, pens_);
    std::size_t old = 0;
    std::size_t item = 0;
    drawing_.forEachEntity(block, [&](EntityId id) {
        while (old < before.size() && before[old].entity < id) {
            if (before[old++].shown == Shown::Drawn) ++item;
        }
        const bool isKnown = old < before.size() && before[old].entity == id;
        if (isKnown && !std::binary_search(touched.begin(), touched.end(), id)) {
            of.sources.push_back(before[old]);
            if (before[old++].shown == Shown::Drawn) of.list.items.push_back(items[item++]);
            return true;
        }
        of.sources.push_back(add(builder, id, false, of.list));
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
    drawing::WorkSteps steps;
    drawing_.forEachEntity(block, [&](EntityId id) {
        steps.step(id, drawing_.firstFree());
        into.sources.push_back(add(builder, id, inBlock, into.list));
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

Picture& pictureOf(const Drawing& drawing) {
    std::unique_ptr<drawing::Companion>& kept = shapes::sceneOf(drawing).above();
    if (!kept) kept = std::make_unique<Picture>(drawing);
    return static_cast<Picture&>(*kept);
}

void prepare(const Drawing& drawing) {
    drawing::WorkWatch::stage(0.4, 0.8);
    pictureOf(drawing).counts(drawing.modelSpace());
    drawing::WorkWatch::stage(0.8, 1);
    shapes::sceneOf(drawing).space(drawing.modelSpace());
    shapes::sceneOf(drawing).blocks().prepareLarge(drawing.modelSpace());
}

Transform placedTransform(const Drawing& drawing, const shapes::Placed& placed, int column, int row) {
    return drawing::referenceTransform(placed.placement, drawing.blocks()[placed.block].basePoint, column,
                                       row);
}

}  // namespace picture
