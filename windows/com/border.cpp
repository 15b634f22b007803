#include "windows/com/border.h"

#include "windows/com/com_object.h"
#include "windows/com/dispatch.h"

namespace com {

IDispatch* Border::give(const basic::ObjectRef& object) {
    if (object == nullptr) return nullptr;
    if (const auto* foreign = dynamic_cast<const ComObject*>(object.get())) {
        foreign->dispatch()->AddRef();
        return foreign->dispatch();
    }
    const auto ours = std::dynamic_pointer_cast<host::Object>(object);
    if (ours == nullptr) throw basic::Error(basic::kObjectRequired);
    return give(ours, nullptr);
}

IDispatch* Border::give(const host::ObjectPtr& object, const ObjectType* type) {
    const auto known = byObject_.find(object.get());
    if (known != byObject_.end()) {
        known->second->AddRef();
        return known->second;
    }
    return new Dispatch(*this, object, type);
}

host::ObjectPtr Border::take(IDispatch* dispatch) {
    if (dispatch == nullptr) return nullptr;
    IUnknown* identity = nullptr;
    if (SUCCEEDED(dispatch->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&identity)))) {
        const auto ours = byPointer_.find(identity);
        identity->Release();
        if (ours != byPointer_.end()) return ours->second->object();
    }
    return std::make_shared<ComObject>(*this, dispatch);
}

DISPID Border::idOf(std::string_view name) {
    const auto [place, fresh] = ids_.try_emplace(std::string(name), static_cast<DISPID>(names_.size()) + 1);
    if (fresh) names_.push_back(&place->first);
    return place->second;
}

const std::string* Border::nameOf(DISPID id) const {
    return id >= 1 && static_cast<std::size_t>(id) <= names_.size() ? names_[static_cast<std::size_t>(id) - 1]
                                                                    : nullptr;
}

}  // namespace com
