#pragma once

#include "host/entities.h"

#include <functional>
#include <string>

namespace host {

/// A block definition, an element of `Blocks`.
class BlockDefinition : public ObjectView {
  public:
    using ObjectView::ObjectView;

    std::string Name() const;
    /// Whether it stands for a layout.
    bool IsLayout() const;
    /// Whether it is an external reference.
    bool IsXRef() const;
};

/// The collection of block definitions.
class Blocks : public ObjectView {
  public:
    using ObjectView::ObjectView;

    /// Walks the definitions in the host's order until `visit` returns false.
    void forEach(const std::function<bool(const BlockDefinition&)>& visit) const;
};

/// The model space: the only place where entities are made, and the only space that is walked.
class Space : public ObjectView {
  public:
    using ObjectView::enumerate;
    using ObjectView::ObjectView;

    /// A new reference of the block `name`, or of the drawing file of that path. The numbers go to the host
    /// as the kind they have here: trial insertions pass 16-bit integers. `rotation` is in radians.
    BlockReference InsertBlock(const Variant& point, const Variant& name, const Variant& xScale,
                               const Variant& yScale, const Variant& zScale, const Variant& rotation) const;
    /// A new line between two points.
    Entity AddLine(const Variant& start, const Variant& end) const;
};

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

/// The operations that stop and wait for the user in the drawing. A user who breaks off makes them raise an
/// error.
class Utility : public ObjectView {
  public:
    using ObjectView::ObjectView;

    /// Lets the user pick an entity; gives it and the point of the pick. A pick that fails leaves both as
    /// they were.
    void GetEntity(ObjectPtr& entity, Variant& point, std::string_view prompt) const;
    /// A point; `base` is the point from which the host draws its rubber band, or `basic::Missing`.
    Variant GetPoint(const Variant& base, std::string_view prompt) const;
    /// An angle in radians.
    double GetAngle(const Variant& base, std::string_view prompt) const;
};

/// The host application.
class Application : public ObjectView {
  public:
    using ObjectView::ObjectView;

    /// An automation object of the host's own process, by its program id.
    ObjectPtr GetInterfaceObject(std::string_view programId) const;
};

/// The drawing document, from which every operation starts.
class Document : public ObjectView {
  public:
    using ObjectView::ObjectView;

    Space ModelSpace() const;
    host::Blocks Blocks() const;
    host::Utility Utility() const;
    host::SelectionSets SelectionSets() const;
    host::Application Application() const;
};

}  // namespace host
