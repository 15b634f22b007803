#include "desk/drawing/attribute_writer.h"

#include "desk/drawing/attribute_placement.h"
#include "desk/drawing/inside.h"
#include "desk/dxf/tag_writer.h"
#include "desk/geometry/angles.h"

namespace drawing {

namespace {

/// Below this a slant is rounding.
constexpr double kNoSlant = 1e-12;

/// Groups of the common part that an attribute takes over from its definition besides the layer: linetype,
/// colours, linetype scale, lineweight, visibility, transparency.
bool isStyle(int code) {
    return code == 6 || code == 62 || code == 48 || code == 60 || code == 370 || code == 420 || code == 430 ||
           code == 440;
}

}  // namespace

AttributeWriter::AttributeWriter(const Drawing& drawing, BlockId block)
    : store_(Inside::store(drawing)), basePoint_(drawing.blocks()[block].basePoint) {
    for (EntityId id : drawing.blocks()[block].attributeDefinitions) {
        if (!drawing.isErased(id)) definitions_.push_back(read(drawing, id));
    }
}

AttributeWriter::Definition AttributeWriter::read(const Drawing& drawing, EntityId id) const {
    Definition definition;
    definition.data = drawing.attribute(id);
    definition.layer = store_.record(id).layer;
    definition.tag = store_.record(id).name;
    bool inCommon = true;
    bool inAttribute = true;
    bool flagsRead = false;
    std::string style;    // groups of the common part: colour, linetype, lineweight, ...
    int fieldLength = 0;  // group 73
    int locked = -1;      // group 280 behind the flags, the position lock
    dxf::TagReader reader = drawing.tags(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000 && tag.code != 101;) {
        if (tag.code == 100 && store_.format().hasSubclasses()) {
            inCommon = tag.raw == "AcDbEntity";
            inAttribute = tag.raw == "AcDbAttributeDefinition";
        }
        if (inCommon && isStyle(tag.code)) dxf::TagWriter(store_.format(), style).copy(tag);
        if (!inAttribute) continue;
        if (tag.code == 70) flagsRead = true;
        if (tag.code == 73) fieldLength = static_cast<int>(tag.integerOr(0));
        // The same code in front of the tag is the version of the object.
        if (tag.code == 280 && flagsRead) locked = static_cast<int>(tag.integerOr(0));
    }
    writeEnds(definition, style, fieldLength, locked);
    return definition;
}

void AttributeWriter::writeEnds(Definition& definition, const std::string& style, int fieldLength,
                                int locked) const {
    const AttribData& data = definition.data;
    const dxf::Format& format = store_.format();
    dxf::TagWriter head(format, definition.head);
    head.subclass("AcDbEntity");
    head.text(8, data.common.layer);
    head.raw(style);
    head.subclass("AcDbText");
    if (data.thickness != 0) head.number(39, data.thickness);

    dxf::TagWriter(format, definition.text).text(1, data.text);
    if (!basic::NameEqual{}(data.style, "STANDARD"))
        dxf::TagWriter(format, definition.style).text(7, data.style);

    dxf::TagWriter tail(format, definition.tail);
    tail.subclass("AcDbAttribute");
    if (format.version >= dxf::Version::R2010) tail.integer(280, 0);
    tail.text(2, data.tag);
    tail.integer(70, data.flags);
    if (fieldLength != 0) tail.integer(73, fieldLength);
    if (data.vertical != 0) tail.integer(74, data.vertical);
    if (locked >= 0 && format.version >= dxf::Version::R2007) tail.integer(280, locked);
}

void AttributeWriter::prepare(const Placement& placement, dxf::NumberMemory& numbers) {
    const bool same = isPrepared_ && placement.scale == placement_.scale &&
                      placement.rotation == placement_.rotation &&
                      placement.extrusion == placement_.extrusion;
    if (same) return;
    placement_ = placement;
    placement_.insertion = {};
    prepared_.resize(definitions_.size());
    const Transform map = referenceTransform(placement_, basePoint_);
    for (std::size_t i = 0; i < definitions_.size(); ++i) {
        prepare(definitions_[i], map, numbers, prepared_[i]);
    }
    isPrepared_ = true;
}

void AttributeWriter::prepare(const Definition& definition, const Transform& map, dxf::NumberMemory& numbers,
                              Prepared& prepared) const {
    const AttribData& own = definition.data;
    AttribData placed;  // only what a placement changes
    placed.common.extrusion = own.common.extrusion;
    placed.position = own.position;
    placed.alignment = own.alignment;
    placed.height = own.height;
    placed.widthFactor = own.widthFactor;
    placed.rotation = own.rotation;
    placed.oblique = own.oblique;
    placed.generation = own.generation;
    placeAttribute(placed, placement_, map);
    prepared.position = placed.position;
    prepared.alignment = placed.alignment;
    prepared.extrusion = placed.common.extrusion;
    prepared.hasAlignment = own.hasAlignment || own.horizontal != 0 || own.vertical != 0;

    prepared.text.clear();
    dxf::TagWriter text(store_.format(), prepared.text);
    numbers.write(text, 40, placed.height);
    text.raw(definition.text);
    if (placed.rotation != 0) numbers.write(text, 50, geometry::degreesOf(placed.rotation));
    if (placed.widthFactor != 1) numbers.write(text, 41, placed.widthFactor);
    if (std::abs(placed.oblique) > kNoSlant) text.number(51, geometry::degreesOf(placed.oblique));
    text.raw(definition.style);
    if (placed.generation != 0) text.integer(71, placed.generation);
    if (own.horizontal != 0) text.integer(72, own.horizontal);

    prepared.normal.clear();
    const Vector3& normal = placed.common.extrusion;
    if (normal != kZAxis) {
        dxf::TagWriter(store_.format(), prepared.normal).point(210, normal.x, normal.y, normal.z);
    }
}

void AttributeWriter::write(std::size_t index, const Point3& insertion, Handle handle, Handle owner,
                            std::string& bytes) const {
    const Prepared& prepared = prepared_[index];
    Vector3 offset = insertion;
    if (prepared.extrusion != placement_.extrusion) {
        offset = wcsToOcs(ocsToWcs(insertion, placement_.extrusion), prepared.extrusion);
    }
    dxf::TagWriter writer(store_.format(), bytes);
    writer.plain(0, "ATTRIB");
    if (handle != 0) writer.handle(5, handle);
    if (owner != 0) writer.handle(330, owner);
    writer.raw(definitions_[index].head);
    const Point3 position = prepared.position + offset;
    writer.point(10, position.x, position.y, position.z);
    writer.raw(prepared.text);
    if (prepared.hasAlignment) {
        const Point3 alignment = prepared.alignment + offset;
        writer.point(11, alignment.x, alignment.y, alignment.z);
    }
    writer.raw(prepared.normal);
    writer.raw(definitions_[index].tail);
}

}  // namespace drawing
