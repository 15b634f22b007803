#pragma once

#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace drawing {

/// What a drawing's file is made of: ranges of the old file where nothing changed, between them the new
/// bytes.
class SavePlan {
  public:
    explicit SavePlan(const Drawing& drawing);
    /// Valid until the drawing changes and as long as the plan lives.
    const std::vector<std::string_view>& pieces() const { return pieces_; }

  private:
    /// New pieces that stand in the place of a range of the old file.
    struct Patch {
        std::size_t begin;
        std::size_t end;
        std::size_t firstPiece;  ///< in `newPieces_`
        std::size_t pieceCount;
    };

    void patchSeed();
    void patchVariables();
    void patchRecords();
    void patchGroup(EntityId id);
    void addEntities();
    /// Those of a space that the file doesn't have.
    std::vector<EntityId> newEntities(BlockId space) const;
    void addOthers();
    void addTables();
    /// Begins a patch at the end of a section; true where the file lacks it and it was opened.
    bool beginAddition(dxf::SectionKind kind, std::string_view name);
    void endSection();
    /// Pieces added until the next call belong to this range.
    void beginPatch(std::size_t begin, std::size_t end);
    void addPiece(std::string_view bytes);
    void addRecord(EntityId id);
    void joinPieces();
    std::string& own() { return owned_.emplace_back(); }

    const Drawing& drawing_;
    const Store& store_;
    std::vector<Patch> patches_;
    std::vector<std::string_view> newPieces_;
    std::deque<std::string> owned_;
    std::vector<std::string_view> pieces_;
};

}  // namespace drawing
