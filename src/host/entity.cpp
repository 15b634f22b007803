#include "host/entity.h"

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

}  // namespace host
