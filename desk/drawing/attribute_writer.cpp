#include "desk/drawing/attribute_writer.h"

#include "desk/drawing/angles.h"
#include "desk/drawing/attribute_placement.h"
#include "desk/dxf/tag_writer.h"

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
    : store_(drawing.store()), basePoint_(drawing.blocks()[block].basePoint) {
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
    dxf::TagReader reader = drawing.tags(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000 && tag.code != 101;) {
        if (tag.code == 100 && store_.format().hasSubclasses()) {
            inCommon = tag.raw == "AcDbEntity";
            inAttribute = tag.raw == "AcDbAttributeDefinition";
        }
        if (inCommon && isStyle(tag.code)) dxf::TagWriter(store_.format(), definition.style).copy(tag);
        if (!inAttribute) continue;
        if (tag.code == 70) flagsRead = true;
        if (tag.code == 73) definition.fieldLength = static_cast<int>(tag.integerOr(0));
        // The same code in front of the tag is the version of the object.
        if (tag.code == 280 && flagsRead) definition.locked = static_cast<int>(tag.integerOr(0));
    }
    return definition;
}

void AttributeWriter::prepare(const Placement& placement) {
    const bool same = isPrepared_ && placement.scale == placement_.scale &&
                      placement.rotation == placement_.rotation &&
                      placement.extrusion == placement_.extrusion;
    if (same) return;
    placement_ = placement;
    placement_.insertion = {};
    prepared_.clear();
    for (const Definition& definition : definitions_) prepared_.push_back(prepare(definition, placement_));
    isPrepared_ = true;
}

AttributeWriter::Prepared AttributeWriter::prepare(const Definition& definition,
                                                   const Placement& placement) const {
    AttribData data = definition.data;
    placeAttribute(data, placement, basePoint_);
    Prepared prepared;
    prepared.position = data.position;
    prepared.alignment = data.alignment;
    prepared.extrusion = data.common.extrusion;
    prepared.hasAlignment = data.hasAlignment || data.horizontal != 0 || data.vertical != 0;

    const dxf::Format& format = store_.format();
    dxf::TagWriter head(format, prepared.head);
    head.subclass("AcDbEntity");
    head.text(8, data.common.layer);
    head.raw(definition.style);
    head.subclass("AcDbText");
    if (data.thickness != 0) head.number(39, data.thickness);

    dxf::TagWriter text(format, prepared.text);
    text.number(40, data.height);
    text.text(1, data.text);
    if (data.rotation != 0) text.number(50, degreesOf(data.rotation));
    if (data.widthFactor != 1) text.number(41, data.widthFactor);
    if (std::abs(data.oblique) > kNoSlant) text.number(51, degreesOf(data.oblique));
    if (!basic::NameEqual{}(data.style, "STANDARD")) text.text(7, data.style);
    if (data.generation != 0) text.integer(71, data.generation);
    if (data.horizontal != 0) text.integer(72, data.horizontal);

    dxf::TagWriter tail(format, prepared.tail);
    if (data.common.extrusion != kZAxis) {
        tail.point(210, data.common.extrusion.x, data.common.extrusion.y, data.common.extrusion.z);
    }
    tail.subclass("AcDbAttribute");
    if (format.version >= dxf::Version::R2010) tail.integer(280, 0);
    tail.text(2, data.tag);
    tail.integer(70, data.flags);
    if (definition.fieldLength != 0) tail.integer(73, definition.fieldLength);
    if (data.vertical != 0) tail.integer(74, data.vertical);
    if (definition.locked >= 0 && format.version >= dxf::Version::R2007) tail.integer(280, definition.locked);
    return prepared;
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
    writer.raw(prepared.head);
    const Point3 position = prepared.position + offset;
    writer.point(10, position.x, position.y, position.z);
    writer.raw(prepared.text);
    if (prepared.hasAlignment) {
        const Point3 alignment = prepared.alignment + offset;
        writer.point(11, alignment.x, alignment.y, alignment.z);
    }
    writer.raw(prepared.tail);
}

}  // namespace drawing
