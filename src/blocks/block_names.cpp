#include "blocks/block_names.h"

#include "basic/error_state.h"
#include "basic/text.h"
#include "blocks/filter.h"
#include "host/document.h"

#include <functional>

namespace blocks {
namespace {

void forEachPlainBlock(const host::Document& document, const std::function<void(const std::string&)>& visit) {
    document.Blocks().forEach([&](const host::BlockDefinition& block) {
        const bool isLayout = block.IsLayout();
        const bool isXRef = block.IsXRef();
        if (!isLayout && !isXRef) visit(block.Name());
        return true;
    });
}

std::optional<BlockNames> unlessEmpty(BlockNames names) {
    if (names.Count() == 0) return std::nullopt;
    return names;
}

}  // namespace

void BlockNames::Add(const std::string& name) {
    if (!keys_.insert(basic::toUpper(name)).second) throw basic::Error(basic::kDuplicateKey);
    names_.push_back(name);
}

std::optional<BlockNames> GetBlockNames(const Session& session) {
    BlockNames names;
    forEachPlainBlock(host::Document(session.AcadDoc), [&](const std::string& name) { names.Add(name); });
    return unlessEmpty(std::move(names));
}

std::optional<BlockNames> GetInsertedBlockNames(const Session& session) {
    const host::Document document(session.AcadDoc);
    BlockNames names;
    const host::SelectionSet temporary = document.SelectionSets().Add("sTemp");
    forEachPlainBlock(document, [&](const std::string& name) {
        temporary.Clear();
        temporary.Select(host::kSelectAll, nameFilter(kAnyEntity, name));
        if (temporary.Count() > 0) {
            basic::ErrorState clash;  // of this one addition: a name that is there already is dropped
            clash.skip([&] { names.Add(name); });
        }
    });
    temporary.Delete();
    return unlessEmpty(std::move(names));
}

}  // namespace blocks
