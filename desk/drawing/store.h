#pragma once

#include "desk/drawing/block_table.h"
#include "desk/drawing/byte_arena.h"
#include "desk/drawing/handle_index.h"
#include "desk/drawing/header_variables.h"
#include "desk/drawing/journal.h"
#include "desk/drawing/kind_table.h"
#include "desk/drawing/layer_table.h"
#include "desk/drawing/name_table.h"
#include "desk/drawing/record.h"
#include "desk/drawing/tag_edit.h"
#include "desk/dxf/findings.h"
#include "desk/dxf/scanner.h"
#include "desk/dxf/source.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace drawing {

/// The old state of what one undo step changes.
struct StepLog {
    std::string name;       ///< what the user did, as undo and redo show it; empty for none
    EntityId firstNew = 0;  ///< records from here on were made in the step
    Handle nextHandle = 0;
    std::uint64_t state = 0;    ///< the drawing's before the step
    std::size_t additions = 0;  ///< Store::additions before the step
    std::vector<std::pair<EntityId, PackedRecord>> records;
    std::vector<std::pair<BlockId, Block>> blocks;  ///< changed ones
    std::size_t blockCount = 0;
    std::vector<NameKey> layers;  ///< added ones
    /// Changed variables of the header with what was set before.
    std::vector<std::pair<std::string, HeaderVariables::Value>> variables;

    bool isEmpty(EntityId recordCount) const {
        return records.empty() && blocks.empty() && layers.empty() && variables.empty() &&
               firstNew == recordCount;
    }
};

/// Where in the file a record goes that doesn't belong to a space.
enum class Place { BeforeRecord, Blocks, Tables };
/// Such a record: in front of another one, at the end of the BLOCKS section, or (a TABLE that the file lacks)
/// at the end of TABLES.
struct Addition {
    Place place;
    EntityId before;  ///< of BeforeRecord; of Tables the table's ENDTAB
    EntityId id;
};

/// What brings a step back that was undone. It holds copies of the bytes, since undoing gives theirs up.
struct UndoneStep {
    struct After {
        EntityId id;
        PackedRecord record;
        std::string bytes;
        bool ownsBytes;  ///< false: the record's bytes are still where they were
    };
    StepLog log;
    std::vector<After> records;
    std::vector<std::pair<BlockId, Block>> blocks;
    std::vector<std::pair<NameKey, Layer>> layers;
    std::vector<std::pair<std::string, HeaderVariables::Value>> variables;  ///< the last change first
    std::vector<Addition> additions;
    std::vector<EntityId> entities;  ///< new ones of the spaces
    Handle nextHandle = 0;
    std::uint64_t state = 0;
};

/// A range of the file's bytes.
struct FileRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// The drawing's bytes and records. The first `fileCount` records stand in the order of the file.
class Store {
  public:
    explicit Store(dxf::Source source);

    const dxf::Source& source() const { return source_; }
    const dxf::Format& format() const { return source_.format(); }
    const dxf::Encoding& encoding() const { return source_.format().encoding; }
    /// Bytes of this drawing as a source of groups.
    dxf::TagSource tags(std::string_view bytes) const { return {bytes, &source_.format(), source_.path()}; }
    dxf::TagReader reader(std::string_view bytes) const {
        return dxf::TagReader(tags(bytes), 0, bytes.size());
    }
    dxf::TagReader reader(EntityId id) const { return reader(view(records_[id])); }

    EntityId count() const { return static_cast<EntityId>(records_.size()); }
    EntityId fileCount() const { return fileCount_; }
    /// What is known of an object now; later changes don't show in it.
    Record record(EntityId id) const { return unpack(records_[id]); }
    Record unpack(const PackedRecord& packed) const;
    std::string_view view(EntityId id) const { return view(records_[id]); }
    std::string_view view(const PackedRecord& packed) const { return {bytesOf(packed), packed.size}; }
    bool isErased(EntityId id) const {
        const PackedRecord& record = records_[id];
        return record.has(kErased) || (record.has(kPart) && records_[record.owner].has(kErased));
    }
    /// The range of the file that a record had when the file was read.
    FileRange fileRange(EntityId id) const;

    /// Adds a record while the file is read; its bytes stay where they are.
    EntityId addFromFile(const Record& record);
    void endOfFile() { fileCount_ = count(); }
    void setOwnerWhileReading(EntityId id, std::uint32_t owner) { records_[id].owner = owner; }
    /// The next record is another part of this one.
    void countPartWhileReading(EntityId id);

    /// A record for change: its old state goes into the open undo step.
    PackedRecord& change(EntityId id);
    /// Other names for a record.
    void setNames(EntityId id, NameId layer, NameId name);
    /// New bytes for a record. Bytes that the open step made itself are given up at once, older ones are kept
    /// for undo.
    void setBytes(EntityId id, std::string_view bytes);
    /// Gives up the bytes of a record for good: one that the open step made and that is erased again, or that
    /// is undone.
    void dropBytes(EntityId id);
    /// A new record with a copy of its bytes. A handle is entered into the index.
    EntityId add(const Record& record, std::string_view bytes);

    /// The number of a type, kNoType if no record has it.
    std::uint16_t findType(std::string_view name) const;
    std::uint16_t internType(std::string_view name);
    std::string_view typeName(std::uint16_t type) const { return types_.text(type); }

    /// The first of `count` handles in a row that no object has; 0 where the drawing has no handles. A
    /// drawing that uses the highest handles gets those of its gaps.
    Handle takeHandles(std::size_t count) {
        if (!usesHandles_) return 0;
        if (nextHandle_ > kHighestHandle - count) return takeFromGap(count);
        const Handle first = nextHandle_;
        nextHandle_ += count;
        return first;
    }
    void setNextHandle(Handle next) { nextHandle_ = next; }
    bool usesHandles() const { return usesHandles_; }
    Handle nextHandle() const { return nextHandle_; }
    /// What `nextHandle` was after opening.
    Handle firstHandle() const { return firstHandle_; }
    /// Handles begin at `seed` or behind the highest one met.
    void startHandles(Handle seed, bool use);

    /// Entities of a name (group 2, its key) in the spaces, in drawing order; erased ones may be among them.
    const std::vector<EntityId>& named(NameKey name) const;
    void indexName(EntityId id);
    /// Before its name changes.
    void unindexName(EntityId id);
    /// The same if the entity is the last of its name; else it stays listed among the erased ones.
    void unindexNewest(EntityId id);

    /// An empty edit. There is one at a time: it is kept for its buffers.
    TagEdit& freshEdit() {
        tagEdit_.clear();
        return tagEdit_;
    }

    // Steps.
    bool stepIsOpen() const { return depth_ > 0; }
    StepLog& step() { return steps_.back(); }
    bool isNewInStep(EntityId id) const { return stepIsOpen() && id >= steps_.back().firstNew; }

    Journal journal;
    dxf::Findings findings;
    dxf::Outline outline;
    NameTable names;
    HandleIndex handles;
    std::vector<Addition> additions;
    FileRange seedValue;  ///< the group of $HANDSEED's value; empty where the file has none
    Handle fileSeed = 0;  ///< its value in the file

  private:
    friend class Drawing;
    /// $HANDSEED, the handle to give next, has to be a handle too.
    static constexpr Handle kHighestHandle = 0xFFFFFFFFFFFFFFFE;
    Handle takeFromGap(std::size_t count);

    /// Entities of a name. Renaming thousands mustn't shift the list each time: what left the name stays
    /// listed, and what came is put at the end, until the list is asked for.
    struct NamedList {
        std::vector<EntityId> ids;
        bool isTidy = true;  ///< in rising order, without doubles, all of this name
    };
    void tidy(NamedList& list, NameKey name) const;

    /// What few records have: a handle beyond 32 bits, or hundreds of parts.
    struct Rare {
        Handle handle = 0;
        std::uint32_t parts = 0;
    };
    static constexpr std::uint32_t kMostParts = 255;  ///< of a record that isn't rare

    /// All of a record but its bytes.
    PackedRecord pack(const Record& record);
    const char* bytesOf(const PackedRecord& packed) const {
        return packed.has(kOwnBytes) ? arena_.at(packed.place()) : source_.bytes().data() + packed.place();
    }
    NameKey nameOf(EntityId id) const { return names.key(kinds_[records_[id].kind].name); }

    TagEdit tagEdit_;
    dxf::Source source_;
    std::vector<PackedRecord> records_;
    KindTable kinds_;
    std::vector<Rare> rare_;
    EntityId fileCount_ = 0;
    NameTable types_;
    ByteArena arena_;
    mutable std::vector<NamedList> named_;               ///< by key; tidied when asked for
    std::unordered_map<EntityId, FileRange> originals_;  ///< file ranges of changed records
    Handle nextHandle_ = 1;
    Handle firstHandle_ = 1;
    Handle highestHandle_ = 0;
    Handle gap_ = 1;  ///< where the search for gaps goes on
    bool usesHandles_ = true;
    std::vector<StepLog> steps_;
    std::vector<UndoneStep> undone_;  ///< the last one undone at the end; none after another edit
    int depth_ = 0;
};

inline Record Store::unpack(const PackedRecord& packed) const {
    const RecordKind& kind = kinds_[packed.kind];
    const bool rare = packed.has(kRare);
    Record record;
    record.flags = packed.flags;
    record.type = kind.type;
    record.size = packed.size;
    record.bytes = bytesOf(packed);
    record.handle = rare ? rare_[packed.handle].handle : packed.handle;
    record.owner = packed.owner;
    record.layer = kind.layer;
    record.name = kind.name;
    record.parts = rare ? rare_[packed.handle].parts : packed.parts;
    return record;
}

}  // namespace drawing
