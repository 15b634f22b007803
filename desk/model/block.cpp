#include "desk/model/block.h"

#include "desk/model/block_source.h"
#include "desk/model/entity.h"
#include "desk/model/host_errors.h"

namespace model {

using drawing::BlockId;
using drawing::EntityId;

Variant Block::name() const { return block().name; }
Variant Block::isLayout() const { return block().isLayout(); }
Variant Block::isXRef() const { return block().isXRef(); }
Variant Block::count() const { return static_cast<std::int32_t>(context_->drawing->entityCount(id_)); }

Variant Block::item(Arguments& arguments) {
    requireCount(arguments, 1, 1, "Item");
    std::int32_t left = arguments[0].integer();
    EntityId found = drawing::kNoEntity;
    if (left >= 0) {
        context_->drawing->forEachEntity(id_, [&](EntityId id) {
            if (left-- == 0) found = id;
            return found == drawing::kNoEntity;
        });
    }
    if (found == drawing::kNoEntity) drawing::raise(drawing::kInvalidInput, "index");
    return makeEntity(context_, found);
}

void Block::enumerate(const std::function<bool(const Variant&)>& visit) {
    context_->drawing->forEachEntity(id_, [&](EntityId id) { return visit(makeEntity(context_, id)); });
}

const MemberTable& Block::table() {
    static const MemberTable table({
        property<&Block::name>("Name"),
        property<&Block::isLayout>("IsLayout"),
        property<&Block::isXRef>("IsXRef"),
        property<&Block::count>("Count"),
        method<&Block::item>("Item"),
    });
    return table;
}

Variant ModelSpace::insertBlock(Arguments& arguments) {
    requireCount(arguments, 6, 6, "InsertBlock");
    const Context& context = *context_;
    if (context.environment->watch) context.environment->watch();
    const geometry::Point3 point = toPoint(context, arguments[0]);
    const std::string name = basic::toText(arguments[1], context.environment->regional);
    const geometry::Vector3 scale{toNumber(context, arguments[2]), toNumber(context, arguments[3]),
                                  toNumber(context, arguments[4])};
    const double rotation = toNumber(context, arguments[5]);
    const BlockId block = findOrBringIn(*context_, name);
    context_->newest = context_->drawing->insertBlock(block, point, scale, rotation);
    return makeEntity(context_, context_->newest);
}

Variant ModelSpace::addLine(Arguments& arguments) {
    requireCount(arguments, 2, 2, "AddLine");
    return makeEntity(context_, context_->drawing->addLine(toPoint(*context_, arguments[0]),
                                                           toPoint(*context_, arguments[1])));
}

const MemberTable& ModelSpace::members() const {
    static const MemberTable table(
        {method<&ModelSpace::insertBlock>("InsertBlock"), method<&ModelSpace::addLine>("AddLine")},
        &Block::table());
    return table;
}

std::vector<BlockId> Blocks::ids() const {
    const drawing::BlockTable& blocks = context_->drawing->blocks();
    std::vector<BlockId> ids;
    for (BlockId id = 0; id < blocks.size(); ++id) {
        if (!blocks[id].isErased) ids.push_back(id);
    }
    return ids;
}

Variant Blocks::count() const { return static_cast<std::int32_t>(ids().size()); }

Variant Blocks::item(Arguments& arguments) {
    requireCount(arguments, 1, 1, "Item");
    BlockId found = drawing::kNoBlock;
    if (arguments[0].is(Variant::Kind::Text)) {
        found = context_->drawing->blocks().find(arguments[0].text());
        if (found == drawing::kNoBlock) drawing::raise(drawing::kKeyNotFound, arguments[0].text());
    } else {
        const std::vector<BlockId> all = ids();
        const std::int32_t index = arguments[0].integer();
        if (index < 0 || index >= static_cast<std::int32_t>(all.size())) {
            drawing::raise(drawing::kInvalidInput, "index");
        }
        found = all[static_cast<std::size_t>(index)];
    }
    return std::make_shared<Block>(context_, found);
}

void Blocks::enumerate(const std::function<bool(const Variant&)>& visit) {
    for (const BlockId id : ids()) {
        if (!visit(std::make_shared<Block>(context_, id))) return;
    }
}

const MemberTable& Blocks::members() const {
    static const MemberTable table({property<&Blocks::count>("Count"), method<&Blocks::item>("Item")});
    return table;
}

}  // namespace model
