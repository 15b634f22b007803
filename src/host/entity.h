#pragma once

#include "host/object_view.h"

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

}  // namespace host
