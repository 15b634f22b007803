#include "desk/import/entity_translator.h"

#include "basic/text.h"
#include "desk/drawing/class_names.h"
#include "desk/dxf/tag_writer.h"
#include "desk/import/subclass_layout.h"

namespace importing {

using drawing::isDimension;

namespace {

using dxf::Version;

bool isCommonOfR12(int code) { return code == 8 || code == 6 || code == 62 || code == 60 || code == 48; }

/// The release that brought an entity type, for those younger than R2000.
Version bornIn(std::string_view type) {
    if (type == "MESH") return Version::R2010;
    if (type == "HELIX" || type == "LIGHT" || type == "SECTION" || type.ends_with("SURFACE"))
        return Version::R2007;
    return Version::R9;
}

/// Linetypes that every drawing has.
bool isOwnLinetype(std::string_view name) {
    return basic::equalIgnoringCase(name, "BYLAYER") || basic::equalIgnoringCase(name, "BYBLOCK") ||
           basic::equalIgnoringCase(name, "CONTINUOUS");
}

bool isModeler(std::string_view type) {
    return type == "3DSOLID" || type == "REGION" || type == "BODY" || type.ends_with("SURFACE");
}

}  // namespace

std::string EntityTranslator::obstacle(EntityId id) const {
    const std::string_view type = from_.typeName(from_.record(id).type);
    const Version version = to_.format().version;
    if (type == "VIEWPORT" || type == "ACAD_PROXY_ENTITY" || type.starts_with("OLE")) {
        return "has no place in a block of another drawing";
    }
    const bool unknownHere = !to_.format().hasSubclasses() && !isKnownToR12(type) && type != "LWPOLYLINE";
    if (unknownHere || version < bornIn(type)) {
        return "is unknown in " + std::string(dxf::versionName(version));
    }
    if (!from_.format().hasSubclasses() && !isKnownToR12(type)) return "is of an unknown kind";
    if (isModeler(type)) {
        bool hasData = false;
        dxf::TagReader reader = from_.reader(id);
        for (dxf::Tag tag; reader.next(tag);) hasData = hasData || tag.code == 1;
        if (!hasData) return "has its solid model outside of the entity";
    }
    std::string what;
    return needsObject(id, what) ? "depends on an object that stays behind: " + what : std::string();
}

bool EntityTranslator::needsObject(EntityId id, std::string& what) const {
    int markers = 0;
    dxf::TagReader reader = from_.reader(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 100) ++markers;
        if (markers < 2 || dxf::handleRole(tag.code) != dxf::HandleRole::HardPointer) continue;
        const EntityId object = from_.handles.find(tag.handle());
        if (object == kNoEntity || !from_.record(object).has(kObject)) continue;
        what = from_.typeName(from_.record(object).type);
        return true;
    }
    return false;
}

EntityTranslator::Groups EntityTranslator::read(EntityId id) const {
    Groups groups;
    std::vector<dxf::Tag> unmarked;
    const bool marked = from_.format().hasSubclasses();
    bool inBraces = false;
    bool inEmbedded = false;
    dxf::TagReader reader = from_.reader(id);
    for (dxf::Tag tag; reader.next(tag);) {
        if (tag.code >= 1000) {
            groups.data.push_back(tag);
            continue;
        }
        // Extension dictionary and reactors stay behind, comments too.
        if (tag.code == 102) {
            inBraces = tag.raw.starts_with('{');
            continue;
        }
        if (inBraces || tag.code == 0 || tag.code == dxf::kComment) continue;
        if (tag.code == 101) inEmbedded = true;
        if (tag.code == 70 && groups.flags == 0) groups.flags = static_cast<int>(tag.integerOr(0));
        if (inEmbedded) {
            groups.embedded.push_back(tag);
        } else if (!marked) {
            unmarked.push_back(tag);
        } else if (tag.code == 100) {
            if (tag.raw != "AcDbEntity") groups.parts.push_back({tag.raw, {}});
        } else if (!groups.parts.empty()) {
            groups.parts.back().tags.push_back(tag);
        } else if (tag.code != 5 && tag.code != 330) {
            groups.common.push_back(tag);
        }
    }
    if (!marked) readUnmarked(from_.typeName(from_.record(id).type), unmarked, groups);
    return groups;
}

void EntityTranslator::readUnmarked(std::string_view type, const std::vector<dxf::Tag>& tags,
                                    Groups& groups) const {
    for (std::string_view marker : markersFor(type, groups.flags)) groups.parts.push_back({marker, {}});
    for (const dxf::Tag& tag : tags) {
        if (tag.code == 5) continue;
        if (isCommonOfR12(tag.code) || tag.code == 67 || groups.parts.empty()) {
            groups.common.push_back(tag);
        } else {
            groups.parts[markerOfGroup(type, groups.flags, tag.code)].tags.push_back(tag);
        }
    }
}

bool EntityTranslator::keepsCommon(int code) const {
    const Version version = to_.format().version;
    switch (code) {
        case 8:
        case 6:
        case 62:
        case 60:
            return true;
        case 48:
            return version >= Version::R13;
        case 370:
            return version >= Version::R2000;
        case 420:
        case 430:
        case 440:
            return version >= Version::R2004;
        case 284:
            return version >= Version::R2007;
        // Paper space, previews of proxies, materials, plot and visual styles.
        default:
            return false;
    }
}

bool EntityTranslator::keepsGroup(std::uint16_t type, const Part& part, const dxf::Tag& tag) const {
    if (type == kAttDef || type == kAttrib) {
        if (part.marker == "AcDbText") return true;
        // Position lock and version are written anew; what makes it multi-line stays behind.
        const int code = tag.code;
        return code == 2 || code == 3 || code == 70 || code == 73 || code == 74;
    }
    if (to_.format().hasSubclasses()) return true;
    if (type == kInsert && tag.code == 66) return true;
    const bool sameSince = tag.code < 80 || (tag.code >= 210 && tag.code <= 230);
    const bool laterInDimension = from_.typeName(type) == "DIMENSION" &&
                                  (tag.code == 71 || tag.code == 72 || (tag.code >= 41 && tag.code <= 49));
    return sameSince && !laterInDimension;
}

void EntityTranslator::begin(dxf::TagWriter& writer, std::string_view type, Handle handle, Handle owner,
                             const std::vector<dxf::Tag>& common) {
    writer.plain(0, type);
    if (handle != 0) writer.handle(5, handle);
    if (owner != 0 && to_.format().version >= Version::R2000) writer.handle(330, owner);
    writer.subclass("AcDbEntity");
    for (const dxf::Tag& tag : common) {
        if (!keepsCommon(tag.code)) continue;
        if (tag.code == 8) links_.use(kLayerEntry, tag.text());
        // A linetype that neither drawing has can't be meant; without the group it is the layer's.
        if (tag.code == 6 && !links_.use(kLineTypeEntry, tag.text()) && !isOwnLinetype(tag.text())) continue;
        writer.copy(tag);
    }
}

void EntityTranslator::translate(EntityId id, Handle handle, Handle owner, std::string& bytes) {
    const std::uint16_t type = from_.record(id).type;
    const Groups groups = read(id);
    dxf::TagWriter writer(to_.format(), bytes);
    begin(writer, from_.typeName(type), handle, owner, groups.common);
    for (const Part& part : groups.parts) writePart(type, part, writer);
    const bool multiLine = type == kAttDef || type == kAttrib;
    if (to_.format().version >= Version::R2018 && !multiLine) {
        for (const dxf::Tag& tag : groups.embedded) writer.copy(tag);
    }
    writeData(groups.data, writer);
}

void EntityTranslator::writePart(std::uint16_t type, const Part& part, dxf::TagWriter& writer) {
    if (part.marker == "AcDbXrecord") return;
    const bool isAttribute = part.marker == "AcDbAttribute" || part.marker == "AcDbAttributeDefinition";
    writer.subclass(part.marker);
    if (isAttribute && to_.format().version >= Version::R2010) writer.integer(280, 0);
    const bool isHatch = part.marker == "AcDbHatch";
    for (std::size_t i = 0; i < part.tags.size(); ++i) {
        const dxf::Tag& tag = part.tags[i];
        if (!keepsGroup(type, part, tag)) continue;
        // A hatch comes without the objects that it was drawn from: their count (97 before 330) is 0 then.
        const bool countsObjects = tag.code == 97 && i + 1 < part.tags.size() && part.tags[i + 1].code == 330;
        if (isHatch && (countsObjects || tag.code == 71)) {
            writer.integer(tag.code, 0);
        } else if (!(isHatch && tag.code == 330)) {
            writeGroup(type, tag, writer);
        }
    }
}

void EntityTranslator::writeGroup(std::uint16_t type, const dxf::Tag& tag, dxf::TagWriter& writer) {
    const dxf::HandleRole role = dxf::handleRole(tag.code);
    if (role != dxf::HandleRole::None && role != dxf::HandleRole::Own) {
        const Handle handle = links_.handle(tag.handle());
        if (handle != 0) writer.handle(tag.code, handle);
        return;
    }
    const std::string_view name = from_.typeName(type);
    if (tag.code == 2 && (type == kInsert || isDimension(name))) {
        writer.text(2, links_.block(tag.text()));
        return;
    }
    // A style that neither drawing has can't be meant; without the group it is STANDARD.
    if (tag.code == 7 && !links_.use(kStyleEntry, tag.text())) return;
    const bool namesStyle = tag.code == 3 && (isDimension(name) || name == "LEADER" || name == "TOLERANCE");
    if (namesStyle && !links_.use(kDimStyleEntry, tag.text())) return;
    writer.copy(tag);
}

void EntityTranslator::writeData(const std::vector<dxf::Tag>& data, dxf::TagWriter& writer) {
    constexpr int kApplication = 1001;
    constexpr int kHandle = 1005;
    for (const dxf::Tag& tag : data) {
        if (tag.code == kHandle) {
            writer.handle(kHandle, links_.handle(tag.handle()));
            continue;
        }
        if (tag.code == kApplication) links_.use(kAppEntry, tag.text());
        writer.copy(tag);
    }
}

bool EntityTranslator::becomesPolyline(EntityId id) const {
    return !to_.format().hasSubclasses() && from_.typeName(from_.record(id).type) == "LWPOLYLINE";
}

std::size_t EntityTranslator::vertexCount(EntityId id) const {
    std::size_t count = 0;
    dxf::TagReader reader = from_.reader(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) count += tag.code == 10 ? 1 : 0;
    return count;
}

std::vector<std::string> EntityTranslator::polylineOf(EntityId id, const std::vector<Handle>& handles,
                                                      Handle owner) {
    const Groups groups = read(id);
    double elevation = 0;
    double width = 0;
    std::string shape;  // thickness and extrusion
    dxf::TagWriter shapeWriter(to_.format(), shape);
    std::vector<std::vector<dxf::Tag>> vertices;
    for (const Part& part : groups.parts) {
        for (const dxf::Tag& tag : part.tags) {
            if (tag.code == 10) vertices.emplace_back();
            if (tag.code == 38) elevation = tag.numberOr(0);
            if (tag.code == 43) width = tag.numberOr(0);
            if (tag.code == 39 || (tag.code >= 210 && tag.code <= 230)) shapeWriter.copy(tag);
            const bool ofVertex = tag.code == 10 || tag.code == 20 || (tag.code >= 40 && tag.code <= 42);
            if (ofVertex && !vertices.empty()) vertices.back().push_back(tag);
        }
    }
    std::vector<std::string> result(vertices.size() + 2);
    dxf::TagWriter head(to_.format(), result.front());
    begin(head, "POLYLINE", handles.front(), owner, groups.common);
    head.integer(66, 1);
    head.point(10, 0, 0, elevation);
    if (groups.flags != 0) head.integer(70, groups.flags);
    if (width != 0) head.number(40, width);
    if (width != 0) head.number(41, width);
    head.raw(shape);
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        dxf::TagWriter writer(to_.format(), result[i + 1]);
        begin(writer, "VERTEX", handles[i + 1], 0, groups.common);
        for (const dxf::Tag& tag : vertices[i]) {
            writer.copy(tag);
            if (tag.code == 20) writer.number(30, elevation);
        }
    }
    dxf::TagWriter end(to_.format(), result.back());
    begin(end, "SEQEND", handles.back(), 0, groups.common);
    return result;
}

}  // namespace importing
