#include "blocks/filter.h"

namespace blocks {

host::SelectionFilter nameFilter(std::string_view classMarker, std::string_view blockName) {
    return {basic::Shorts{100, 2}, basic::Array{classMarker, blockName}};
}

}  // namespace blocks
