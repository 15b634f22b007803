#pragma once

#include "host/object_view.h"

#include <string>

namespace host {

/// A selection filter: group codes, and beside each the value that it must have. Both arrays have one length.
struct SelectionFilter {
    basic::Shorts types;
    basic::Array data;
};

/// What `Select` takes: every entity of the drawing, in all spaces.
constexpr std::int16_t kSelectAll = 5;

/// A named set of entities, kept in the drawing until it is deleted.
class SelectionSet : public ObjectView {
  public:
    using ObjectView::ObjectView;

    /// Empties the set.
    void Clear() const;
    /// Fills the set without the user; the two corner points are left out.
    void Select(std::int16_t mode, const SelectionFilter& filter) const;
    /// Lets the user select in the drawing. Raises an error when the user breaks off.
    void SelectOnScreen(const SelectionFilter& filter) const;
    std::int32_t Count() const;
    /// An entity by its index from 0.
    ObjectPtr Item(std::int32_t index) const;
    /// Removes the set, not its entities, from the drawing.
    void Delete() const;
};

/// The collection of the drawing's selection sets.
class SelectionSets : public ObjectView {
  public:
    using ObjectView::ObjectView;

    std::int32_t Count() const;
    /// A new set. Raises an error where the name exists.
    SelectionSet Add(std::string_view name) const;
    /// An existing set by index from 0 or by name.
    SelectionSet Item(const Variant& indexOrName) const;
};

}  // namespace host
