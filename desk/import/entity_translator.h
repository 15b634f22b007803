#pragma once

#include "desk/import/import_links.h"

#include <string>
#include <string_view>
#include <vector>

namespace importing {

/// Writes entities of one drawing as entities of another one, whatever the two formats: handle and owner
/// given anew, subclass markers added or dropped, texts in the other encoding, groups that the other version
/// lacks left out.
class EntityTranslator {
  public:
    EntityTranslator(const Store& from, const Store& to, ImportLinks& links)
        : from_(from), to_(to), links_(links) {}

    /// Why an entity can't be carried; empty if it can.
    std::string obstacle(EntityId id) const;
    /// Appends the entity without its parts.
    void translate(EntityId id, Handle handle, Handle owner, std::string& bytes);
    /// Whether the target has to get this LWPOLYLINE as a POLYLINE with vertices.
    bool becomesPolyline(EntityId id) const;
    /// The POLYLINE, its vertices and the SEQEND, a string each. `handles` has one for each, or zeros.
    std::vector<std::string> polylineOf(EntityId id, const std::vector<Handle>& handles, Handle owner);
    std::size_t vertexCount(EntityId id) const;

  private:
    /// The groups behind one subclass marker.
    struct Part {
        std::string_view marker;
        std::vector<dxf::Tag> tags;
    };
    /// An entity's groups by where they stand.
    struct Groups {
        int flags = 0;
        std::vector<dxf::Tag> common;
        std::vector<Part> parts;
        std::vector<dxf::Tag> embedded;
        std::vector<dxf::Tag> data;  ///< extended data
    };

    Groups read(EntityId id) const;
    void readUnmarked(std::string_view type, const std::vector<dxf::Tag>& tags, Groups& groups) const;
    void begin(dxf::TagWriter& writer, std::string_view type, Handle handle, Handle owner,
               const std::vector<dxf::Tag>& common);
    bool keepsCommon(int code) const;
    bool keepsGroup(std::uint16_t type, const Part& part, const dxf::Tag& tag) const;
    void writePart(std::uint16_t type, const Part& part, dxf::TagWriter& writer);
    void writeGroup(std::uint16_t type, const dxf::Tag& tag, dxf::TagWriter& writer);
    void writeData(const std::vector<dxf::Tag>& data, dxf::TagWriter& writer);
    bool needsObject(EntityId id, std::string& what) const;

    const Store& from_;
    const Store& to_;
    ImportLinks& links_;
};

}  // namespace importing
