#pragma once

#include "host/attribute.h"
#include "host/entity.h"

namespace host {

/// A block reference. Setters of numbers take a variant: the logic hands texts of its fields on as they
/// stand, and the conversion is the host's.
class BlockReference : public Entity {
  public:
    using Entity::Entity;

    /// Name of the block.
    std::string Name() const;
    /// A point (host/point.h), as the host gave it.
    Variant InsertionPoint() const;
    void setInsertionPoint(const Variant& point) const;
    double XScaleFactor() const;
    double YScaleFactor() const;
    double ZScaleFactor() const;
    void setXScaleFactor(const Variant& factor) const;
    void setYScaleFactor(const Variant& factor) const;
    void setZScaleFactor(const Variant& factor) const;
    /// In radians.
    double Rotation() const;
    void setRotation(const Variant& angle) const;
    bool Visible() const;
    void setVisible(bool visible) const;

    /// Written with a small h, as it is addressed.
    bool hasAttributes() const;
    Attributes GetAttributes() const;
};

}  // namespace host
