#pragma once

#include "host/object_view.h"

namespace host {

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

}  // namespace host
