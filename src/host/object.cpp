#include "host/object.h"

#include <typeinfo>

namespace host {

namespace {

/// Whether it is an object of the host. What a class is stays true, so the classes met last aren't asked
/// again.
bool isObject(const basic::Referable& referable) {
    thread_local std::array<const std::type_info*, 4> known{};
    thread_local std::size_t oldest = 0;
    const std::type_info& type = typeid(referable);
    for (const std::type_info* one : known) {
        if (one == &type) return true;
    }
    if (dynamic_cast<const Object*>(&referable) == nullptr) return false;
    known[oldest++ % known.size()] = &type;
    return true;
}

}  // namespace

ObjectPtr asObject(const Variant& value) {
    if (value.isNothing()) throw basic::Error(basic::kObjectNotSet);
    const basic::ObjectRef& object = value.object();
    if (!isObject(*object)) throw basic::Error(basic::kObjectRequired);
    return std::static_pointer_cast<Object>(object);
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

basic::Variant toVariant(const Point& point) { return basic::Doubles(point.begin(), point.end()); }

Point toPoint(const basic::Variant& value) {
    const auto three = [](const auto& elements, auto numberOf) {
        if (elements.size() < 3) throw basic::Error(basic::kSubscript);
        return Point{numberOf(elements[0]), numberOf(elements[1]), numberOf(elements[2])};
    };
    if (value.is(basic::Variant::Kind::VariantArray)) {
        return three(value.array(), [](const basic::Variant& element) { return element.number(); });
    }
    return three(value.doubles(), [](double element) { return element; });
}

}  // namespace host
