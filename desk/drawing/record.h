#pragma once

#include "desk/drawing/ids.h"

#include <cstdint>
#include <iterator>
#include <string_view>

namespace drawing {

/// The flags of a record, see RecordFlag.
struct RecordFlags {
    std::uint16_t flags = 0;

    bool has(std::uint16_t flag) const { return (flags & flag) != 0; }
    void set(std::uint16_t flag, bool on = true) {
        flags = static_cast<std::uint16_t>(on ? flags | flag : flags & ~flag);
    }
};

/// What is known of an entity, table entry or object without reading its bytes. The store keeps it packed.
struct Record : RecordFlags {
    std::uint16_t type = 0;       ///< see TypeId
    std::uint32_t size = 0;       ///< of the bytes
    const char* bytes = nullptr;  ///< in the file's buffer, or in the arena once changed
    Handle handle = 0;
    std::uint32_t owner = kNoBlock;  ///< block or space; of a part the entity that it belongs to
    NameId layer = kNoName;
    NameId name = kNoName;    ///< group 2
    std::uint32_t parts = 0;  ///< how many of the records that follow are parts of this one

    std::string_view view() const { return {bytes, size}; }
};

/// A record as the store keeps it: a drawing has so many that their size counts.
struct PackedRecord : RecordFlags {
    std::uint8_t placeHigh = 0;
    std::uint8_t parts = 0;
    std::uint32_t placeLow = 0;  ///< of the bytes in the file, with kOwnBytes in the arena
    std::uint32_t size = 0;
    std::uint32_t handle = 0;  ///< with kRare the number of what holds handle and parts
    std::uint32_t owner = kNoBlock;
    std::uint32_t kind = 0;  ///< type, layer and name

    static constexpr std::uint64_t kHighestPlace = (std::uint64_t{1} << 40) - 1;
    std::uint64_t place() const { return std::uint64_t{placeHigh} << 32 | placeLow; }
    /// `own` tells whether it is one in the arena.
    void setPlace(std::uint64_t place, bool own);
    /// Whether the bytes are those of an earlier state of the record.
    bool sharesBytes(const PackedRecord& other) const;
};
static_assert(sizeof(PackedRecord) == 24, "a drawing has many records");

enum RecordFlag : std::uint16_t {
    kErased = 1,          ///< deleted; its parts go with it without a flag of their own
    kPart = 2,            ///< attribute, vertex or SEQEND of the entity in `owner`
    kOwnBytes = 4,        ///< the bytes are in the arena; the range that the file has for it doesn't hold
    kInvisible = 8,       ///< group 60 isn't 0
    kPaperSpace = 16,     ///< group 67 is 1
    kHasDictionary = 32,  ///< has an extension dictionary
    kPartsFollow = 64,    ///< group 66 isn't 0
    kLogged = 128,        ///< the open undo step has its old state
    kTableEntry = 256,    ///< stands in the TABLES section
    kObject = 512,        ///< stands in the OBJECTS section
    kFresh = 1024,        ///< the open undo step made the bytes
    kStray = 2048,        ///< a part without an entity to belong to; kept, but no entity of any space
    kRare = 4096,         ///< of packed records alone: the handle or the number of parts is a large one
};

inline void PackedRecord::setPlace(std::uint64_t place, bool own) {
    placeLow = static_cast<std::uint32_t>(place);
    placeHigh = static_cast<std::uint8_t>(place >> 32);
    set(kOwnBytes, own);
}
inline bool PackedRecord::sharesBytes(const PackedRecord& other) const {
    return place() == other.place() && has(kOwnBytes) == other.has(kOwnBytes);
}

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
