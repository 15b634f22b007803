#include "host/selection.h"

namespace host {

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

}  // namespace host
