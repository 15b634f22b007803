#pragma once

#include <cstddef>
#include <cstdint>

namespace drawing {

/// Number of an entity or another object of one drawing. It stays valid as long as the drawing lives: an
/// erased or undone object keeps its number, and none is given twice.
using EntityId = std::uint32_t;
/// Number of a block definition, valid in the same way.
using BlockId = std::uint32_t;
/// Number of an interned name as it is spelled: an entity type, a layer, a block (see NameTable).
using NameId = std::uint32_t;
/// What those spellings of a name have in common that differ in case alone. Tables are kept by it; a type of
/// its own, so that no spelling is taken for it.
enum class NameKey : std::uint32_t { None = 0 };
constexpr std::size_t indexOf(NameKey key) { return static_cast<std::size_t>(key); }
/// A DXF handle; 0 where there is none.
using Handle = std::uint64_t;

inline constexpr EntityId kNoEntity = 0xFFFFFFFF;
inline constexpr BlockId kNoBlock = 0xFFFFFFFF;
inline constexpr NameId kNoName = 0;

}  // namespace drawing
