#pragma once

#include "desk/drawing/ids.h"
#include "desk/drawing/placement.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace drawing {

/// One condition of a selection filter: a group code and the value that the group must have.
struct FilterCondition {
    int code = 0;
    std::variant<std::string, double, Point3> value;
};

/// A selection filter: an entity passes when all conditions hold, so an empty one lets everything pass. The
/// logical operators of the host (-4 "<OR" ... "OR>", also AND, XOR, NOT) and relational ones ("<", ">=",
/// "&", "*", ...) are taken too. Texts are compared without regard to case and with the host's wildcards.
///
///   0    entity type                 8    layer             100  any of the subclass markers
///   2    name (block, pattern, ...)  62   colour, 256 also where absent
///   5    handle                      67   1 in a paper space, 0 in model space
///   60   visibility, 0 also where absent   410  name of the layout
///   others: one of the entity's groups of that code has the value
using Filter = std::vector<FilterCondition>;

}  // namespace drawing
