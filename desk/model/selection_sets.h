#pragma once

#include "desk/drawing/selection.h"
#include "desk/model/context.h"
#include "desk/model/members.h"

namespace model {

class SelectionSets;

/// A named selection set. It lives in the document, not in the file. Entities that were erased stay members;
/// using one of them fails.
class SelectionSet : public Automation {
  public:
    SelectionSet(ContextPtr context, std::weak_ptr<SelectionSets> sets, std::string name)
        : context_(std::move(context)), sets_(std::move(sets)), name_(std::move(name)) {}

    const std::string& setName() const { return name_; }
    Variant name() const { return name_; }
    Variant count() const;
    /// Entity by index from 0.
    Variant item(Arguments& arguments);
    Variant clear(Arguments& arguments);
    /// Mode (0 window, 1 crossing, 4 last, 5 all), point 1, point 2, group codes, values; adds to the set.
    /// The points are left out but for modes 0 and 1, the filter may be left out.
    Variant select(Arguments& arguments);
    /// Group codes and values, which may be left out.
    Variant selectOnScreen(Arguments& arguments);
    /// Removes the set from the document; later uses of it raise kObjectErased.
    Variant remove(Arguments& arguments);
    void enumerate(const std::function<bool(const Variant&)>& visit) override;

  protected:
    const MemberTable& members() const override;

  private:
    void requireAlive() const;
    void add(const std::vector<drawing::EntityId>& found);

    ContextPtr context_;
    std::weak_ptr<SelectionSets> sets_;
    std::string name_;
    bool removed_ = false;
    std::vector<drawing::EntityId> entities_;
    std::vector<bool> known_;  ///< by number: whether it is in the set
};

/// The document's selection sets in the order of their making.
class SelectionSets : public Automation {
  public:
    explicit SelectionSets(ContextPtr context) : context_(std::move(context)) {}
    Variant count() const { return static_cast<std::int32_t>(sets_.size()); }
    /// A new set; raises kSelectionSetExists for a name that is taken.
    Variant add(Arguments& arguments);
    /// By index from 0 or by name without regard to case.
    Variant item(Arguments& arguments);
    void enumerate(const std::function<bool(const Variant&)>& visit) override;
    void remove(const SelectionSet& set);

  protected:
    const MemberTable& members() const override;

  private:
    std::shared_ptr<SelectionSet> find(const std::string& name) const;

    ContextPtr context_;
    std::vector<std::shared_ptr<SelectionSet>> sets_;
};

/// A filter from its two parallel arrays of group codes and values. Raises kInvalidInput for arrays of
/// unequal length, kTypeMismatch for what are no arrays.
drawing::Filter toFilter(const Context& context, const Variant& types, const Variant& data);

}  // namespace model
