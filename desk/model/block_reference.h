#pragma once

#include "desk/model/entity.h"

namespace model {

/// A block reference (INSERT), arrays of them too. Points are world coordinates, Rotation is in radians.
/// Numbers may arrive as text, read under the regional settings.
class BlockReference : public Entity {
  public:
    using Entity::Entity;

    Variant name() const;
    Variant insertionPoint() const;
    void setInsertionPoint(const Variant& value);
    Variant xScaleFactor() const;
    Variant yScaleFactor() const;
    Variant zScaleFactor() const;
    void setXScaleFactor(const Variant& value);
    void setYScaleFactor(const Variant& value);
    void setZScaleFactor(const Variant& value);
    Variant rotation() const;
    void setRotation(const Variant& value);
    /// True also where the block has only constant attributes, of which no reference has any.
    Variant hasAttributes() const;
    /// An array of attribute references in the block's order, empty if there is none.
    Variant getAttributes(Arguments& arguments);

  protected:
    const MemberTable& members() const override;

  private:
    /// Where the reference stands, read again only after the drawing changed.
    const drawing::Placement& placement() const;

    mutable drawing::Placement placement_;
    mutable std::uint64_t revision_ = ~std::uint64_t{0};
};

/// An attribute of a reference (ATTRIB).
class AttributeReference : public Entity {
  public:
    using Entity::Entity;
    Variant tagString() const;
    Variant textString() const;
    void setTextString(const Variant& value);

  protected:
    const MemberTable& members() const override;
};

}  // namespace model
