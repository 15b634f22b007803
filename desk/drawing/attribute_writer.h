#pragma once

#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"
#include "desk/dxf/number_memory.h"

#include <string>
#include <vector>

namespace drawing {

/// Writes the attribute references of a block's new references. What doesn't depend on the placement is put
/// together once; what doesn't depend on the insertion point serves as long as scale, rotation and extrusion
/// stay the same, as they do in many drawings.
class AttributeWriter {
  public:
    /// For the attribute definitions of `block` that aren't constant.
    AttributeWriter(const Drawing& drawing, BlockId block);

    std::size_t count() const { return definitions_.size(); }
    /// Settles for a placement; its insertion point may differ from call to call.
    void prepare(const Placement& placement, dxf::NumberMemory& numbers);
    /// Appends the attribute at `index` for the placement of `prepare`, moved to `insertion` (object
    /// coordinates).
    void write(std::size_t index, const Point3& insertion, Handle handle, Handle owner,
               std::string& bytes) const;
    // What goes into the record.
    bool isVisible(std::size_t index) const { return definitions_[index].data.common.visible; }
    NameId layer(std::size_t index) const { return definitions_[index].layer; }
    NameId tag(std::size_t index) const { return definitions_[index].tag; }

  private:
    struct Definition {
        AttribData data;
        NameId layer = kNoName;
        NameId tag = kNoName;
        std::string head;   ///< between owner and position, the same for all placements
        std::string text;   ///< its default text
        std::string style;  ///< where it isn't the standard one
        std::string tail;   ///< behind the extrusion, the same for all placements
    };
    /// A definition under the prepared placement, for an insertion at the origin.
    struct Prepared {
        Point3 position;
        Point3 alignment;
        Vector3 extrusion;
        bool hasAlignment = false;
        std::string text;    ///< between position and alignment point
        std::string normal;  ///< the extrusion, where it isn't the Z axis
    };

    Definition read(const Drawing& drawing, EntityId id) const;
    void writeEnds(Definition& definition, const std::string& style, int fieldLength, int locked) const;
    /// Fills `prepared`, whose strings keep their memory.
    void prepare(const Definition& definition, const Transform& map, dxf::NumberMemory& numbers,
                 Prepared& prepared) const;

    const Store& store_;
    Point3 basePoint_;
    std::vector<Definition> definitions_;
    std::vector<Prepared> prepared_;
    Placement placement_;
    bool isPrepared_ = false;
};

}  // namespace drawing
