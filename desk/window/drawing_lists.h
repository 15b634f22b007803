#pragma once

#include "desk/drawing/drawing.h"

#include <cstddef>
#include <string>
#include <vector>

namespace window {

/// A block definition as the panel lists it.
struct BlockRow {
    drawing::BlockId block = drawing::kNoBlock;
    std::string name;
    std::vector<std::string> tags;  ///< of the attributes that aren't constant
    std::size_t references = 0;     ///< in model space and all layouts
    bool ofDimension = false;       ///< "*D...": made by a dimension
};

/// The definitions that aren't spaces, by name. One pass over the drawing.
std::vector<BlockRow> blockRows(const drawing::Drawing& drawing);

/// A layer as the panel lists it, with the entities of all spaces that stand on it.
struct LayerRow {
    std::string name;
    int color = 7;
    bool on = true;
    bool frozen = false;
    bool locked = false;
    bool current = false;
    std::size_t entities = 0;
};

/// The layers of the table: "0" first, then by name.
std::vector<LayerRow> layerRows(const drawing::Drawing& drawing);

/// References of a block in all spaces, in drawing order.
std::vector<drawing::EntityId> referencesOf(const drawing::Drawing& drawing, const std::string& block);
/// All entities that go by that name, as a replacement counts them: also the dimensions of a block "*D1".
std::vector<drawing::EntityId> entitiesNamed(const drawing::Drawing& drawing, const std::string& block);

}  // namespace window
