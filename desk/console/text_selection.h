#pragma once

#include "desk/drawing/drawing.h"

#include <optional>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace console {

/// The main entity of a handle (of the reference for one of its attributes); kNoEntity for a handle that no
/// entity of a space has.
drawing::EntityId entityByHandle(const drawing::Drawing& drawing, drawing::Handle handle);
/// The entity nearest to a point of model space, not farther than a pick box of a two-hundredth of the
/// drawing's extents; kNoEntity if there is none.
drawing::EntityId entityAt(const drawing::Drawing& drawing, const drawing::Point3& point);
/// Where a pick by handle counts as clicked: a reference's insertion point, a point of the drawn strokes of
/// others.
drawing::Point3 pointOn(const drawing::Drawing& drawing, drawing::EntityId entity);

/// A selection as it grows, each entity once, in the order of selecting.
class Selection {
  public:
    explicit Selection(const drawing::Drawing& drawing) : drawing_(drawing) {}

    /// Adds what an answer says: "all", "w x1,y1 x2,y2", "c x1,y1 x2,y2", "@H1 @H2 ..." or a point. Gives the
    /// number of entities found, nothing for an answer of another form or with a handle that isn't there.
    std::optional<std::size_t> add(std::string_view answer);
    const std::vector<drawing::EntityId>& entities() const { return entities_; }

  private:
    std::optional<std::vector<drawing::EntityId>> find(std::string_view answer) const;

    const drawing::Drawing& drawing_;
    std::vector<drawing::EntityId> entities_;
    std::unordered_set<drawing::EntityId> known_;
};

}  // namespace console
