#include "host/document.h"

namespace host {

std::string BlockDefinition::Name() const { return get("Name").text(); }

bool BlockDefinition::IsLayout() const { return toBoolean(get("IsLayout")); }

bool BlockDefinition::IsXRef() const { return toBoolean(get("IsXRef")); }

void Blocks::forEach(const std::function<bool(const BlockDefinition&)>& visit) const {
    enumerate([&visit](const ObjectPtr& element) { return visit(BlockDefinition(element)); });
}

BlockReference Space::InsertBlock(const Variant& point, const Variant& name, const Variant& xScale,
                                  const Variant& yScale, const Variant& zScale,
                                  const Variant& rotation) const {
    return BlockReference(invoke("InsertBlock", {point, name, xScale, yScale, zScale, rotation}));
}

Entity Space::AddLine(const Variant& start, const Variant& end) const {
    return Entity(invoke("AddLine", {start, end}));
}

void SelectionSet::Clear() const { invoke("Clear"); }

void SelectionSet::Select(std::int16_t mode, const SelectionFilter& filter) const {
    invoke("Select", {mode, basic::Missing{}, basic::Missing{}, filter.types, filter.data});
}

void SelectionSet::SelectOnScreen(const SelectionFilter& filter) const {
    invoke("SelectOnScreen", {filter.types, filter.data});
}

std::int32_t SelectionSet::Count() const { return get("Count").integer(); }

ObjectPtr SelectionSet::Item(std::int32_t index) const { return asObject(invoke("Item", {index})); }

void SelectionSet::Delete() const { invoke("Delete"); }

std::int32_t SelectionSets::Count() const { return get("Count").integer(); }

SelectionSet SelectionSets::Add(std::string_view name) const { return SelectionSet(invoke("Add", {name})); }

SelectionSet SelectionSets::Item(const Variant& indexOrName) const {
    return SelectionSet(invoke("Item", {indexOrName}));
}

void Utility::GetEntity(ObjectPtr& entity, Variant& point, std::string_view prompt) const {
    // Out-arguments go empty: a host that only writes them would never release what they held.
    Arguments arguments{ObjectPtr(), Variant(), prompt};
    target().call("GetEntity", arguments);
    ObjectPtr picked = arguments[0].isNothing() ? nullptr : asObject(arguments[0]);
    entity = std::move(picked);
    point = std::move(arguments[1]);
}

Variant Utility::GetPoint(const Variant& base, std::string_view prompt) const {
    return invoke("GetPoint", {base, prompt});
}

double Utility::GetAngle(const Variant& base, std::string_view prompt) const {
    return invoke("GetAngle", {base, prompt}).number();
}

ObjectPtr Application::GetInterfaceObject(std::string_view programId) const {
    return asObject(invoke("GetInterfaceObject", {programId}));
}

Space Document::ModelSpace() const { return Space(get("ModelSpace")); }

host::Blocks Document::Blocks() const { return host::Blocks(get("Blocks")); }

host::Utility Document::Utility() const { return host::Utility(get("Utility")); }

host::SelectionSets Document::SelectionSets() const { return host::SelectionSets(get("SelectionSets")); }

host::Application Document::Application() const { return host::Application(get("Application")); }

}  // namespace host
