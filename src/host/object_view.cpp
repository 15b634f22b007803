#include "host/object_view.h"

namespace host {

ObjectPtr asObject(const Variant& value) {
    if (value.isNothing()) throw basic::Error(basic::kObjectNotSet);
    ObjectPtr object = std::dynamic_pointer_cast<Object>(value.object());
    if (object == nullptr) throw basic::Error(basic::kObjectRequired);
    return object;
}

ObjectView::ObjectView(const Variant& value) : object_(value.isNothing() ? nullptr : asObject(value)) {}

Object& ObjectView::target() const {
    if (object_ == nullptr) throw basic::Error(basic::kObjectNotSet);
    return *object_;
}

void ObjectView::enumerate(const std::function<bool(const ObjectPtr&)>& visit) const {
    target().enumerate([&visit](const Variant& element) { return visit(asObject(element)); });
}

bool toBoolean(const Variant& value) { return value.number() != 0; }

}  // namespace host
