#pragma once

#include "host/object.h"

#include <cstddef>
#include <string>

namespace host {

/// Any entity of the drawing.
class Entity : public ObjectView {
  public:
    using ObjectView::ObjectView;

    /// The class name, such as "AcDbBlockReference"; compared with case.
    std::string ObjectName() const;
    std::string Layer() const;
    /// The colour number, 0 to 256.
    std::int32_t Color() const;

    // The measures, in drawing units. An entity has only some of them; the others raise kNoSuchMember.

    /// Written small, as it is addressed.
    double length() const;
    double Perimeter() const;
    double Circumference() const;
    double Area() const;

    /// Redraws the entity; due on a block reference after texts of its attributes changed.
    void Update() const;
    /// Removes the entity from the drawing; the view goes on looking at the erased object.
    void Delete() const;
};

class AttributeReference : public ObjectView {
  public:
    using ObjectView::ObjectView;

    std::string TagString() const;
    std::string TextString() const;
    void setTextString(std::string_view text) const;
};

/// What `GetAttributes` gives: an array from 0 of attribute references in the block's own order, as it was
/// when it was taken.
class Attributes {
  public:
    /// Raises kTypeMismatch for a value that is no array of variants.
    explicit Attributes(Variant array);

    std::size_t size() const { return array_.array().size(); }
    /// Raises kSubscript outside the array.
    AttributeReference at(std::size_t index) const;
    const Variant& variant() const { return array_; }

  private:
    Variant array_;
};

/// A block reference. Setters of numbers take a variant: the logic hands texts of its fields on as they
/// stand, and the conversion is the host's.
class BlockReference : public Entity {
  public:
    using Entity::Entity;

    /// Name of the block.
    std::string Name() const;
    /// A `Point` as the host gave it.
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
