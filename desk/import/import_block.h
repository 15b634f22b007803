#pragma once

#include "desk/drawing/drawing.h"

#include <string>
#include <vector>

namespace importing {

/// What bringing a drawing in as a block did.
struct ImportResult {
    drawing::BlockId block = drawing::kNoBlock;
    bool redefined = false;               ///< a block of that name was there and has the new content now
    std::vector<std::string> kept;        ///< nested blocks of which the drawing keeps its own definition
    std::vector<std::string> leftBehind;  ///< what couldn't be carried, a line each, with handle and reason
};

/// Brings a whole drawing's model space into `target` as block `name` with its $INSBASE as base point, with
/// nested blocks, layers, text styles, linetypes and dimension styles that are missing there. A block of that
/// name gets the new content. One undo step. Raises kInvalidInput for a name that no block can have and for a
/// block that would contain itself.
ImportResult importBlock(drawing::Drawing& target, const drawing::Drawing& source, const std::string& name);

}  // namespace importing
