#pragma once

#include "desk/import/entity_translator.h"
#include "desk/import/import_block.h"
#include "desk/import/import_links.h"
#include "desk/import/import_tables.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace importing {

/// Brings one drawing into another as a block. Names that both know keep this drawing's definition; handles
/// are given anew, and what an entity's groups say by handle follows where the other object came along.
class Importer : private ImportLinks {
  public:
    Importer(Drawing& target, const Drawing& source);
    /// Inside an open step.
    ImportResult import(const std::string& name);

  private:
    Handle handle(Handle source) override;
    bool use(TypeId table, const std::string& name) override;
    std::string block(const std::string& name) override;

    void checkNames(const std::string& name) const;
    /// Whether a block stands, at any depth, in another one.
    static bool reaches(const Drawing& drawing, BlockId from, const std::string& name,
                        std::unordered_set<BlockId>& seen, int depth = 0);
    BlockId blockFor(BlockId source);
    std::string freeName(std::string_view anonymous) const;
    BlockId make(Block block);
    void redefine(BlockId existing, const Point3& basePoint);
    /// Writes the definition: BLOCK, what `source` holds, ENDBLK.
    void fill(BlockId target, BlockId source);
    EntityId addFrame(BlockId target, TypeId type);
    void copyEntity(BlockId target, EntityId id);
    void copyPolyline(BlockId target, EntityId id);
    EntityId addMain(BlockId target, std::uint16_t type, Handle handle, std::uint32_t parts,
                     std::string_view bytes);
    EntityId addPart(EntityId main, std::uint16_t type, Handle handle, std::string_view bytes);
    void leave(EntityId id, const std::string& reason);
    Handle given(EntityId id) const;

    Drawing& target_;
    const Drawing& source_;
    Store& to_;
    const Store& from_;
    BlockTable& targetBlocks_;
    ImportTables tables_;
    EntityTranslator translator_;
    std::unordered_map<BlockId, BlockId> blocks_;         ///< the source's blocks and what they are here
    std::unordered_map<EntityId, Handle> entityHandles_;  ///< handles given to the source's entities
    std::string scratch_;
    int depth_ = 0;  ///< of the nested block that is being brought in
    ImportResult result_;
};

}  // namespace importing
