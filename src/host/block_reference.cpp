#include "host/block_reference.h"

namespace host {

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
