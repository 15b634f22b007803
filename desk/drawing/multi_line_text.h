#pragma once

#include "desk/drawing/placement.h"
#include "desk/dxf/format.h"

#include <string>
#include <string_view>

namespace drawing {

// The text of a multi-line attribute of R2018 stands a second time, as an embedded object (group 101) at the
// attribute's end. Both have to say the same.

/// The attribute's groups with another embedded text: group 3 for each 250 characters, group 1 for the rest.
std::string withEmbeddedText(const dxf::Format& format, std::string_view attribute, std::string_view text);
/// The attribute's groups with the embedded text at another point (world coordinates, groups 10, 20, 30).
std::string withEmbeddedPosition(const dxf::Format& format, std::string_view attribute,
                                 const Point3& position);

}  // namespace drawing
