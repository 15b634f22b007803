#pragma once

#include "desk/drawing/attribute_writer.h"
#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

#include <string>
#include <unordered_map>

namespace drawing {

/// Makes new entities of model space. It remembers what the drawing's variables and the inserted blocks say,
/// until `forget`.
class Creator {
  public:
    explicit Creator(Drawing& drawing);

    /// A block reference with its attributes; their records follow it, SEQEND at the end.
    EntityId insert(BlockId block, const Placement& placement);
    EntityId line(const Point3& start, const Point3& end);
    /// After a change of block definitions.
    void forget() { writers_.clear(); }
    /// After a change of the current layer, colour and the like.
    void forgetCurrent() { current_ = {}; }

  private:
    /// What new entities get besides their own groups.
    struct Current {
        NameId layer = kNoName;
        std::string layerName;
        std::string style;  ///< colour, linetype, linetype scale and lineweight, where these aren't by layer
        bool known = false;
    };

    const Current& current();
    AttributeWriter& writerOf(BlockId block);
    /// Type, handle, owner (from R2000 on), marker, layer and style.
    void begin(std::string_view type, Handle handle, Handle owner);
    void writeReference(BlockId block, const Placement& placement, Handle handle, bool hasAttributes);
    /// The groups in `bytes_` from `begin` on as a new record.
    EntityId store(const Record& record, std::size_t begin, std::size_t end);
    Handle spaceHandle() const { return drawing_.blocks()[drawing_.modelSpace()].handle; }

    Drawing& drawing_;
    Store& store_;
    Current current_;
    std::unordered_map<BlockId, AttributeWriter> writers_;
    std::string bytes_;
    dxf::NumberMemory numbers_;
    std::vector<std::size_t> ends_;  ///< of the entities in `bytes_`
};

}  // namespace drawing
