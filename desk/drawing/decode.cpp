#include "desk/drawing/drawing.h"
#include "desk/drawing/store.h"

namespace drawing {

namespace {

constexpr double kRadians = kPi / 180;

/// The groups that any entity can have.
void readCommon(const dxf::Tag& tag, CommonData& common) {
    switch (tag.code) {
        case 62:
            common.color = static_cast<int>(tag.integerOr(kColorByLayer));
            break;
        case 210:
            common.extrusion.x = tag.numberOr(0);
            break;
        case 220:
            common.extrusion.y = tag.numberOr(0);
            break;
        case 230:
            common.extrusion.z = tag.numberOr(1);
            break;
        default:
            break;
    }
}

/// An extrusion of length 0 can't be meant.
void settleExtrusion(Vector3& extrusion) {
    extrusion = length(extrusion) > 0 ? normalized(extrusion) : kZAxis;
}

/// The host takes the scale of 0 that some programs write for 1.
double scaleFactor(const dxf::Tag& tag) {
    const double factor = tag.numberOr(1);
    return factor == 0 ? 1 : factor;
}

void readPlacement(const dxf::Tag& tag, Placement& placement) {
    switch (tag.code) {
        case 10:
            placement.insertion.x = tag.numberOr(0);
            break;
        case 20:
            placement.insertion.y = tag.numberOr(0);
            break;
        case 30:
            placement.insertion.z = tag.numberOr(0);
            break;
        case 41:
            placement.scale.x = scaleFactor(tag);
            break;
        case 42:
            placement.scale.y = scaleFactor(tag);
            break;
        case 43:
            placement.scale.z = scaleFactor(tag);
            break;
        case 44:
            placement.columnSpacing = tag.numberOr(0);
            break;
        case 45:
            placement.rowSpacing = tag.numberOr(0);
            break;
        case 50:
            placement.rotation = tag.numberOr(0) * kRadians;
            break;
        case 70:
            placement.columns = std::max(1, static_cast<int>(tag.integerOr(1)));
            break;
        case 71:
            placement.rows = std::max(1, static_cast<int>(tag.integerOr(1)));
            break;
        case 210:
            placement.extrusion.x = tag.numberOr(0);
            break;
        case 220:
            placement.extrusion.y = tag.numberOr(0);
            break;
        case 230:
            placement.extrusion.z = tag.numberOr(1);
            break;
        default:
            break;
    }
}

/// The groups of an attribute that stand in its text part.
void readText(const dxf::Tag& tag, AttribData& data) {
    switch (tag.code) {
        case 1:
            data.text = tag.text();
            break;
        case 7:
            data.style = tag.text();
            break;
        case 10:
            data.position.x = tag.numberOr(0);
            break;
        case 20:
            data.position.y = tag.numberOr(0);
            break;
        case 30:
            data.position.z = tag.numberOr(0);
            break;
        case 11:
            data.alignment.x = tag.numberOr(0);
            data.hasAlignment = true;
            break;
        case 21:
            data.alignment.y = tag.numberOr(0);
            break;
        case 31:
            data.alignment.z = tag.numberOr(0);
            break;
        case 39:
            data.thickness = tag.numberOr(0);
            break;
        case 40:
            data.height = tag.numberOr(0);
            break;
        case 41:
            data.widthFactor = tag.numberOr(1);
            break;
        case 50:
            data.rotation = tag.numberOr(0) * kRadians;
            break;
        case 51:
            data.oblique = tag.numberOr(0) * kRadians;
            break;
        case 71:
            data.generation = static_cast<int>(tag.integerOr(0));
            break;
        case 72:
            data.horizontal = static_cast<int>(tag.integerOr(0));
            break;
        default:
            break;
    }
}

/// The groups that make it an attribute.
void readAttribute(const dxf::Tag& tag, AttribData& data) {
    switch (tag.code) {
        case 2:
            data.tag = tag.text();
            break;
        case 3:
            data.prompt = tag.text();
            break;
        case 70:
            data.flags = static_cast<int>(tag.integerOr(0));
            break;
        case 74:
            data.vertical = static_cast<int>(tag.integerOr(0));
            break;
        default:
            break;
    }
}

/// Text of the embedded object of a multi-line attribute: chunks in group 3, the rest in group 1.
std::string embeddedText(dxf::TagReader& reader) {
    std::string text;
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 1 || tag.code == 3) text += tag.text();
    }
    return text;
}

}  // namespace

CommonData Drawing::common(EntityId id) const {
    CommonData data;
    data.layer = layerName(id);
    data.visible = !store_->record(id).has(kInvisible);
    dxf::TagReader reader = tags(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000 && tag.code != 101;) readCommon(tag, data);
    settleExtrusion(data.extrusion);
    return data;
}

Placement Drawing::placement(EntityId id) const {
    requireAlive(id);
    if (store_->record(id).type != kInsert) raise(kNotApplicable, std::string(type(id)));
    Placement placement;
    dxf::TagReader reader = tags(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) readPlacement(tag, placement);
    settleExtrusion(placement.extrusion);
    return placement;
}

InsertData Drawing::insert(EntityId id) const {
    InsertData data;
    data.placement = placement(id);
    data.common = common(id);
    data.name = name(id);
    data.block = referencedBlock(id);
    data.insertion = ocsToWcs(data.placement.insertion, data.placement.extrusion);
    data.isArray = data.placement.columns > 1 || data.placement.rows > 1;
    return data;
}

std::string Drawing::name(EntityId id) const {
    requireAlive(id);
    const Record record = store_->record(id);
    if (record.type == kInsert) {
        const BlockId block = referencedBlock(id);
        if (block != kNoBlock) return blocks_[block].name;
    }
    return store_->names.text(record.name);
}

AttribData Drawing::attribute(EntityId id) const {
    requireAlive(id);
    const std::uint16_t kind = store_->record(id).type;
    if (kind != kAttrib && kind != kAttDef) raise(kNotApplicable, std::string(type(id)));
    AttribData data;
    data.common = common(id);
    // Without markers each code has one meaning; with them, some codes come again behind the second one.
    const bool marked = format().hasSubclasses();
    bool inText = true;
    bool inAttribute = true;
    dxf::TagReader reader = tags(id);
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 100 && marked) {
            inText = tag.raw == "AcDbText";
            inAttribute = tag.raw == "AcDbAttribute" || tag.raw == "AcDbAttributeDefinition";
        } else if (tag.code == 101) {
            data.multiLine = true;
            data.text = embeddedText(reader);
            break;
        }
        if (inText) readText(tag, data);
        if (inAttribute) readAttribute(tag, data);
    }
    return data;
}

std::string Drawing::attributeTag(EntityId id) const {
    requireAlive(id);
    return store_->record(id).type == kAttrib ? name(id) : attribute(id).tag;
}

std::string Drawing::attributeText(EntityId id) const {
    requireAlive(id);
    if (store_->record(id).type != kAttrib) return attribute(id).text;
    std::string text;
    dxf::TagReader reader = tags(id);
    const bool mayBeEmbedded = format().version >= dxf::Version::R2018;
    for (dxf::Tag tag; reader.next(tag) && tag.code < 1000;) {
        if (tag.code == 1) {
            text = tag.text();
            if (!mayBeEmbedded) break;
        }
        if (tag.code == 101) return embeddedText(reader);
    }
    return text;
}

}  // namespace drawing
