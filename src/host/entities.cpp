#include "host/entities.h"

namespace host {

std::string Entity::ObjectName() const { return get("ObjectName").text(); }

std::string Entity::Layer() const { return get("Layer").text(); }

std::int32_t Entity::Color() const { return get("Color").integer(); }

double Entity::length() const { return get("length").number(); }

double Entity::Perimeter() const { return get("Perimeter").number(); }

double Entity::Circumference() const { return get("Circumference").number(); }

double Entity::Area() const { return get("Area").number(); }

void Entity::Update() const { invoke("Update"); }

void Entity::Delete() const { invoke("Delete"); }

std::string AttributeReference::TagString() const { return get("TagString").text(); }

std::string AttributeReference::TextString() const { return get("TextString").text(); }

void AttributeReference::setTextString(std::string_view text) const { set("TextString", text); }

Attributes::Attributes(Variant array) : array_(std::move(array)) {
    if (!array_.is(Variant::Kind::VariantArray)) throw basic::Error(basic::kTypeMismatch);
}

AttributeReference Attributes::at(std::size_t index) const {
    const basic::Array& elements = array_.array();
    if (index >= elements.size()) throw basic::Error(basic::kSubscript);
    return AttributeReference(elements[index]);
}

std::string BlockReference::Name() const { return get("Name").text(); }

Variant BlockReference::InsertionPoint() const { return get("InsertionPoint"); }

void BlockReference::setInsertionPoint(const Variant& point) const { set("InsertionPoint", point); }

double BlockReference::XScaleFactor() const { return get("XScaleFactor").number(); }

double BlockReference::YScaleFactor() const { return get("YScaleFactor").number(); }

double BlockReference::ZScaleFactor() const { return get("ZScaleFactor").number(); }

void BlockReference::setXScaleFactor(const Variant& factor) const { set("XScaleFactor", factor); }

void BlockReference::setYScaleFactor(const Variant& factor) const { set("YScaleFactor", factor); }

void BlockReference::setZScaleFactor(const Variant& factor) const { set("ZScaleFactor", factor); }

double BlockReference::Rotation() const { return get("Rotation").number(); }

void BlockReference::setRotation(const Variant& angle) const { set("Rotation", angle); }

bool BlockReference::Visible() const { return toBoolean(get("Visible")); }

void BlockReference::setVisible(bool visible) const { set("Visible", visible); }

bool BlockReference::hasAttributes() const { return toBoolean(get("hasAttributes")); }

Attributes BlockReference::GetAttributes() const { return Attributes(invoke("GetAttributes")); }

}  // namespace host
