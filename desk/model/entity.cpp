#include "desk/model/entity.h"

#include "desk/model/block_reference.h"
#include "desk/model/successor.h"
#include "desk/shapes/measure.h"

#include <cstdio>

namespace model {

using shapes::Measure;

Variant Entity::objectName() const {
    drawing().requireAlive(id_);
    return drawing().objectName(id_);
}

Variant Entity::handle() const {
    drawing().requireAlive(id_);
    char text[20];
    std::snprintf(text, sizeof text, "%llX", static_cast<unsigned long long>(drawing().handle(id_)));
    return text;
}

Variant Entity::layer() const {
    drawing().requireAlive(id_);
    return drawing().layerName(id_);
}

Variant Entity::color() const { return static_cast<std::int32_t>(drawing().common(id_).color); }

Variant Entity::visible() const { return drawing().common(id_).visible; }
void Entity::setVisible(const Variant& value) { edit().setVisible(id_, toBoolean(*context_, value)); }

Variant Entity::length() const { return shapes::measure(drawing(), id_, Measure::Length); }
Variant Entity::area() const { return shapes::measure(drawing(), id_, Measure::Area); }
Variant Entity::circumference() const { return shapes::measure(drawing(), id_, Measure::Circumference); }
Variant Entity::perimeter() const { return shapes::measure(drawing(), id_, Measure::Perimeter); }

Variant Entity::update(Arguments& arguments) {
    requireCount(arguments, 0, 0, "Update");
    drawing().requireAlive(id_);
    return {};
}

Variant Entity::erase(Arguments& arguments) {
    requireCount(arguments, 0, 0, "Delete");
    handOver(*context_, id_);
    edit().erase(id_);
    return {};
}

const MemberTable& Entity::table() {
    using E = Entity;
    static const MemberTable table({
        property<&E::objectName>("ObjectName"),
        property<&E::handle>("Handle"),
        property<&E::layer>("Layer"),
        property<&E::color>("Color"),
        property<&E::visible, &E::setVisible>("Visible"),
        property<&E::length>("Length"),
        property<&E::area>("Area"),
        property<&E::circumference>("Circumference"),
        property<&E::perimeter>("Perimeter"),
        method<&E::update>("Update"),
        method<&E::erase>("Delete"),
    });
    return table;
}

drawing::EntityId toEntity(const basic::Variant& value) {
    const auto entity = std::dynamic_pointer_cast<Entity>(host::asObject(value));
    if (entity == nullptr) throw basic::Error(basic::kTypeMismatch);
    return entity->id();
}

std::shared_ptr<Entity> makeEntity(const ContextPtr& context, drawing::EntityId id) {
    const std::string_view type = context->drawing->typeEvenErased(id);
    if (type == "INSERT") return std::make_shared<BlockReference>(context, id);
    if (type == "ATTRIB") return std::make_shared<AttributeReference>(context, id);
    if (type == "LINE") return std::make_shared<Line>(context, id);
    return std::make_shared<Entity>(context, id);
}

}  // namespace model
