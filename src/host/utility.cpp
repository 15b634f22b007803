#include "host/utility.h"

namespace host {

void Utility::GetEntity(ObjectPtr& entity, Variant& point, std::string_view prompt) const {
    Arguments arguments{entity, point, prompt};
    target().call("GetEntity", arguments);
    ObjectPtr picked = arguments[0].isNothing() ? nullptr : asObject(arguments[0]);
    entity = std::move(picked);
    point = std::move(arguments[1]);
}

Variant Utility::GetPoint(const Variant& base, std::string_view prompt) const {
    return invoke("GetPoint", {base, prompt});
}

double Utility::GetAngle(const Variant& base, std::string_view prompt) const {
    return invoke("GetAngle", {base, prompt}).number();
}

}  // namespace host
