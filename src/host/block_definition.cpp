#include "host/block_definition.h"

namespace host {

std::string BlockDefinition::Name() const { return get("Name").text(); }

bool BlockDefinition::IsLayout() const { return toBoolean(get("IsLayout")); }

bool BlockDefinition::IsXRef() const { return toBoolean(get("IsXRef")); }

void Blocks::forEach(const std::function<bool(const BlockDefinition&)>& visit) const {
    enumerate([&visit](const ObjectPtr& element) { return visit(BlockDefinition(element)); });
}

}  // namespace host
