#pragma once

#include "desk/drawing/ids.h"

#include <cstdint>
#include <iterator>
#include <string_view>

namespace drawing {

/// What is known of an entity, table entry or object without reading its bytes.
struct Record {
    const char* bytes = nullptr;  ///< in the file's buffer, or in the arena once changed
    Handle handle = 0;
    std::uint32_t size = 0;
    std::uint32_t owner = kNoBlock;  ///< block or space; of a part the entity that it belongs to
    NameId layer = kNoName;
    NameId name = kNoName;    ///< group 2
    std::uint32_t parts = 0;  ///< how many of the records that follow are parts of this one
    std::uint16_t type = 0;   ///< see TypeId
    std::uint16_t flags = 0;  ///< see RecordFlag

    bool has(std::uint16_t flag) const { return (flags & flag) != 0; }
    void set(std::uint16_t flag, bool on = true) {
        flags = static_cast<std::uint16_t>(on ? flags | flag : flags & ~flag);
    }
    std::string_view view() const { return {bytes, size}; }
};
static_assert(sizeof(Record) <= 48, "a drawing has many records");

enum RecordFlag : std::uint16_t {
    kErased = 1,          ///< deleted; its parts go with it without a flag of their own
    kPart = 2,            ///< attribute, vertex or SEQEND of the entity in `owner`
    kChanged = 4,         ///< the file's range no longer holds: bytes are in the arena
    kInvisible = 8,       ///< group 60 isn't 0
    kPaperSpace = 16,     ///< group 67 is 1
    kHasDictionary = 32,  ///< has an extension dictionary
    kPartsFollow = 64,    ///< group 66 isn't 0
    kLogged = 128,        ///< the open undo step has its old state
    kTableEntry = 256,    ///< stands in the TABLES section
    kObject = 512,        ///< stands in the OBJECTS section
    kFresh = 1024,        ///< the open undo step made the bytes
    kStray = 2048,        ///< a part without an entity to belong to; kept, but no entity of any space
};

/// Types that the drawing itself knows, in the order of `kTypeNames`. Others are numbered behind them as they
/// come.
enum TypeId : std::uint16_t {
    kNoType,
    kInsert,
    kAttrib,
    kSeqEnd,
    kAttDef,
    kPolyline,
    kVertex,
    kBlockBegin,
    kBlockEnd,
    kBlockRecord,
    kLayerEntry,
    kStyleEntry,
    kLineTypeEntry,
    kDimStyleEntry,
    kAppEntry,
    kTable,
    kTableEnd,
    kDictionary,
    kLayout,
    kGroup,
    kLine,
    kKnownTypes
};
inline constexpr std::string_view kTypeNames[] = {
    "",      "INSERT", "ATTRIB",       "SEQEND",     "ATTDEF", "POLYLINE", "VERTEX",
    "BLOCK", "ENDBLK", "BLOCK_RECORD", "LAYER",      "STYLE",  "LTYPE",    "DIMSTYLE",
    "APPID", "TABLE",  "ENDTAB",       "DICTIONARY", "LAYOUT", "GROUP",    "LINE"};
static_assert(std::size(kTypeNames) == kKnownTypes);

}  // namespace drawing
