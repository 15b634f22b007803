#pragma once

#include <cstdint>

namespace drawing {

/// Number of an entity or another object of one drawing. It stays valid as long as the drawing lives: an
/// erased or undone object keeps its number, and none is given twice.
using EntityId = std::uint32_t;
/// Number of a block definition, valid in the same way.
using BlockId = std::uint32_t;
/// Number of an interned name: an entity type, a layer, a block (see NameTable).
using NameId = std::uint32_t;
/// A DXF handle; 0 where there is none.
using Handle = std::uint64_t;

inline constexpr EntityId kNoEntity = 0xFFFFFFFF;
inline constexpr BlockId kNoBlock = 0xFFFFFFFF;
inline constexpr NameId kNoName = 0;

}  // namespace drawing
