#include "desk/model/block_reference.h"

namespace model {

const drawing::Placement& BlockReference::placement() const {
    if (revision_ != drawing().revision()) {
        placement_ = drawing().placement(id_);
        revision_ = drawing().revision();
    }
    return placement_;
}

Variant BlockReference::name() const { return drawing().name(id_); }

Variant BlockReference::insertionPoint() const {
    return fromPoint(geometry::ocsToWcs(placement().insertion, placement().extrusion));
}
void BlockReference::setInsertionPoint(const Variant& value) {
    edit().setInsertionPoint(id_, toPoint(*context_, value));
}

Variant BlockReference::xScaleFactor() const { return placement().scale.x; }
Variant BlockReference::yScaleFactor() const { return placement().scale.y; }
Variant BlockReference::zScaleFactor() const { return placement().scale.z; }

void BlockReference::setXScaleFactor(const Variant& value) {
    const geometry::Vector3 scale = placement().scale;
    edit().setScale(id_, {toNumber(*context_, value), scale.y, scale.z});
}
void BlockReference::setYScaleFactor(const Variant& value) {
    const geometry::Vector3 scale = placement().scale;
    edit().setScale(id_, {scale.x, toNumber(*context_, value), scale.z});
}
void BlockReference::setZScaleFactor(const Variant& value) {
    const geometry::Vector3 scale = placement().scale;
    edit().setScale(id_, {scale.x, scale.y, toNumber(*context_, value)});
}

Variant BlockReference::rotation() const { return placement().rotation; }
void BlockReference::setRotation(const Variant& value) {
    edit().setRotation(id_, toNumber(*context_, value));
}

Variant BlockReference::hasAttributes() const {
    if (!drawing().attributes(id_).empty()) return true;
    const drawing::BlockId block = drawing().blocks().find(drawing().name(id_));
    return block != drawing::kNoBlock && drawing().blocks()[block].hasConstantAttributes;
}

Variant BlockReference::getAttributes(Arguments& arguments) {
    requireCount(arguments, 0, 0, "GetAttributes");
    if (context_->environment->watch) context_->environment->watch();
    basic::Array attributes;
    attributes.reserve(drawing().parts(id_).count);
    drawing().forEachAttribute(id_, [&](drawing::EntityId id) {
        attributes.emplace_back(std::make_shared<AttributeReference>(context_, id));
    });
    return attributes;
}

const MemberTable& BlockReference::members() const {
    using B = BlockReference;
    static const MemberTable table(
        {
            property<&B::name>("Name"),
            property<&B::insertionPoint, &B::setInsertionPoint>("InsertionPoint"),
            property<&B::xScaleFactor, &B::setXScaleFactor>("XScaleFactor"),
            property<&B::yScaleFactor, &B::setYScaleFactor>("YScaleFactor"),
            property<&B::zScaleFactor, &B::setZScaleFactor>("ZScaleFactor"),
            property<&B::rotation, &B::setRotation>("Rotation"),
            property<&B::hasAttributes>("HasAttributes"),
            method<&B::getAttributes>("GetAttributes"),
        },
        &Entity::table());
    return table;
}

Variant AttributeReference::tagString() const { return drawing().attributeTag(id_); }
Variant AttributeReference::textString() const { return drawing().attributeText(id_); }

void AttributeReference::setTextString(const Variant& value) {
    edit().setAttributeText(id_, basic::toText(value, context_->environment->regional));
}

const MemberTable& AttributeReference::members() const {
    using A = AttributeReference;
    static const MemberTable table(
        {property<&A::tagString>("TagString"), property<&A::textString, &A::setTextString>("TextString")},
        &Entity::table());
    return table;
}

}  // namespace model
