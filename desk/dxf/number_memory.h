#pragma once

#include "desk/dxf/number_text.h"
#include "desk/dxf/tag_writer.h"

#include <array>
#include <cstdint>

namespace dxf {

/// Writes numbers that come again: the heights of a block's attributes, the rotation that a reference shares
/// with them. It remembers the texts of a few, since finding the shortest one takes long.
class NumberMemory {
  public:
    /// As TagWriter::number.
    void write(TagWriter& writer, int code, double value);

  private:
    struct Known {
        std::uint64_t value = 0;  ///< its bits
        std::uint8_t size = 0;    ///< of the text; 0 for none
        char text[kLongestNumber];
    };
    std::array<Known, 16> known_;
};

}  // namespace dxf
