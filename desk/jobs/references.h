#pragma once

#include "desk/drawing/drawing.h"

#include <string>
#include <string_view>
#include <vector>

namespace jobs {

/// The references of one block, by what can be done with them.
struct References {
    std::vector<drawing::EntityId> free;    ///< in all spaces, in drawing order, on layers that aren't locked
    std::vector<drawing::EntityId> locked;  ///< in all spaces, on locked layers
    std::size_t insideBlocks = 0;           ///< inside block definitions, which no dialog reaches

    std::size_t inSpaces() const { return free.size() + locked.size(); }
    /// Both, in drawing order.
    std::vector<drawing::EntityId> all() const;
};

References findReferences(const drawing::Drawing& drawing, std::string_view block);

/// Those of `entities` that lie in one of the zones, each written as at a prompt of the drawing. Raises
/// JobError for a zone of another form.
std::vector<drawing::EntityId> inZones(const drawing::Drawing& drawing,
                                       const std::vector<drawing::EntityId>& entities,
                                       const std::vector<std::string>& zones);

/// The block of that name as the drawing spells it; empty where it has none or where it is a space.
std::string blockNamed(const drawing::Drawing& drawing, std::string_view name);

/// Whether a name means a drawing file rather than a block.
bool isDrawingFile(std::string_view name);

}  // namespace jobs
