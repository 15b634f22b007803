#pragma once

#include "desk/drawing/drawing.h"

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace model {

/// A block definition that is no space, with the number of its references in model space and all layouts;
/// those inside other blocks aren't counted.
struct BlockLine {
    std::string name;
    std::size_t references = 0;
    bool isXRef = false;
};
struct BlockListing {
    std::vector<BlockLine> lines;
    /// Blocks without a name of their own and without references, which show dimensions, tables and the like:
    /// not among the lines, since there may be hundreds.
    std::size_t anonymous = 0;
};
BlockListing listBlocks(const drawing::Drawing& drawing);
/// The same as the command LIST prints it.
void printBlocks(std::ostream& output, const drawing::Drawing& drawing);

/// A reference as a list tells it; numbers with a decimal point.
struct ReferenceLine {
    std::string handle;
    std::string layout;  ///< "Model", or the layout's name
    std::string layer;
    std::string x, y, z;
    std::string attributes;  ///< "TAG=value", parted by blanks
};
/// The references of a block in model space and all layouts.
std::vector<ReferenceLine> listReferences(const drawing::Drawing& drawing, std::string_view block);

}  // namespace model
