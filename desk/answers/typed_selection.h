#pragma once

#include "desk/drawing/drawing.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace answers {

/// An answer that means nothing where it was given, in words that say why.
class AnswerError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The main entity of a handle (of the reference for one of its attributes); kNoEntity for a handle that no
/// entity of a space has.
drawing::EntityId entityByHandle(const drawing::Drawing& drawing, drawing::Handle handle);
/// The entity nearest to a point of model space, not farther than a pick box of a two-hundredth of the
/// drawing's extents; kNoEntity if there is none.
drawing::EntityId entityAt(const drawing::Drawing& drawing, const geometry::Point3& point);
/// The first reference of a block: of model space, else of the layouts; kNoEntity if there is none.
drawing::EntityId firstReference(const drawing::Drawing& drawing, std::string_view block);
/// Where a pick by handle counts as clicked: a reference's insertion point, a point of the drawn strokes of
/// others.
geometry::Point3 pointOn(const drawing::Drawing& drawing, drawing::EntityId entity);

/// A selection as it grows, each entity once, in the order of selecting.
class Selection {
  public:
    /// `previous` is what "p" stands for.
    explicit Selection(const drawing::Drawing& drawing, std::vector<drawing::EntityId> previous = {})
        : drawing_(drawing), previous_(std::move(previous)) {}

    /// Adds what an answer says: "all", "w x1,y1 x2,y2" (window), "c x1,y1 x2,y2" (crossing), "f x1,y1 x2,y2
    /// ..." (fence), "p" (previous), "l" (last), "first NAME", "@H1 @H2 ..." or a point. Behind "r" answers
    /// take away, behind "a" they add again. Gives the number of entities found. Raises AnswerError.
    std::size_t add(std::string_view answer);
    const std::vector<drawing::EntityId>& entities() const { return entities_; }

  private:
    std::vector<drawing::EntityId> find(std::string_view answer) const;
    std::vector<drawing::EntityId> findAll() const;
    std::vector<drawing::EntityId> findLast() const;
    std::vector<drawing::EntityId> findFence(const std::vector<std::string_view>& corners) const;
    std::vector<drawing::EntityId> findHandles(const std::vector<std::string_view>& parts) const;

    const drawing::Drawing& drawing_;
    std::vector<drawing::EntityId> previous_;
    std::vector<drawing::EntityId> entities_;
    std::unordered_set<drawing::EntityId> known_;
    bool removing_ = false;
};

}  // namespace answers
