#pragma once

#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

#include <memory>
#include <string>
#include <vector>

namespace drawing {

/// Reads a file into a drawing: one pass over its bytes that makes a record of each object, then the tables
/// that stand on the records.
class Opener {
  public:
    Opener(dxf::Source source, dxf::Mode mode);
    std::unique_ptr<Drawing> open();

  private:
    /// A block as the BLOCKS section has it.
    struct BlockRange {
        EntityId begin = kNoEntity;  ///< its BLOCK
        EntityId last = kNoEntity;   ///< behind its last entity
        EntityId end = kNoEntity;    ///< its ENDBLK; kNoEntity where that is missing
    };
    /// Records of an ENTITIES section.
    struct EntityRange {
        EntityId first;
        EntityId last;
    };

    // The pass (opener.cpp).
    void scan();
    void beginSection(dxf::SectionKind kind);
    void headerValue(const dxf::Tag& tag);
    void endHeaderVariable();
    void value(const dxf::Tag& tag);
    void beginObject(const dxf::Tag& tag);
    void endObject();
    void attach(EntityId id, Record& record);
    bool attachText(EntityId id, Record& record);
    void endParts();
    void enterBlock(EntityId id);
    void endSection();

    // What stands on the records (opener_tables.cpp).
    void readTables();
    void readHandles();
    void addSpaces();
    void addBlockRecord(EntityId id);
    void addBlock(const BlockRange& range);
    void addLayer(EntityId id);
    void readLayout(EntityId id);
    void fillBlock(BlockId block, const BlockRange& range);
    void fillSpaces();
    void addToBlock(BlockId block, EntityId id);
    NameKey nameKey(EntityId id) const { return store_.names.key(store_.record(id).name); }
    void report(EntityId id, dxf::FindingKind kind, const std::string& reason);
    std::size_t offsetOf(EntityId id) const;

    std::unique_ptr<Drawing> drawing_;
    Store& store_;
    dxf::Mode mode_;
    dxf::Scanner scanner_;
    dxf::SectionKind section_ = dxf::SectionKind::Unknown;
    bool recording_ = false;  ///< the section's objects get records
    bool inObject_ = false;
    Record record_;              ///< the object at hand
    std::size_t lastEnd_ = 0;    ///< behind its last group
    EntityId main_ = kNoEntity;  ///< the entity whose parts may follow
    bool partsOpen_ = false;     ///< it says that they do, and SEQEND hasn't come
    int markers_ = 0;            ///< subclass markers of the object at hand so far
    std::vector<BlockRange> blockRanges_;
    bool blockIsOpen_ = false;
    std::vector<EntityRange> entityRanges_;
    EntityId sectionFirst_ = 0;      ///< the first record of the section at hand
    std::string_view variable_;      ///< the header variable at hand
    std::size_t variableBegin_ = 0;  ///< behind its name
    std::vector<EntityId> layouts_;
};

}  // namespace drawing
