#pragma once

#include "host/block_reference.h"

namespace host {

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

}  // namespace host
