#include "windows/com/dispatch.h"

#include "basic/border.h"
#include "basic/wide.h"
#include "windows/com/enumerator.h"
#include "windows/com/ole.h"
#include "windows/com/ole_errors.h"
#include "windows/com/ole_variant.h"

#include <exception>
#include <optional>
#include <utility>
#include <vector>

namespace com {

namespace {

/// Where an argument of the caller's list, last first and named ones before them, stands in the member's own
/// order; nothing for a name that can't be placed.
std::optional<std::size_t> placeOf(const DISPPARAMS& parameters, UINT at) {
    if (at >= parameters.cNamedArgs) return parameters.cArgs - 1 - at;
    const DISPID named = parameters.rgdispidNamedArgs[at];
    return named >= 0 && static_cast<UINT>(named) < parameters.cArgs ? std::optional<std::size_t>(named)
                                                                     : std::nullopt;
}

}  // namespace

Dispatch::Dispatch(Border& border, host::ObjectPtr object, const ObjectType* type)
    : border_(border), object_(std::move(object)), type_(type) {
    border_.byObject_.emplace(object_.get(), this);
    border_.byPointer_.emplace(static_cast<IUnknown*>(this), this);
    ++border_.given_;
}

Dispatch::~Dispatch() {
    border_.byObject_.erase(object_.get());
    border_.byPointer_.erase(static_cast<IUnknown*>(this));
    --border_.given_;
}

HRESULT Dispatch::QueryInterface(REFIID id, void** out) {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (id != IID_IUnknown && id != IID_IDispatch && (type_ == nullptr || id != type_->id))
        return E_NOINTERFACE;
    *out = static_cast<IDispatch*>(this);
    AddRef();
    return S_OK;
}

ULONG Dispatch::AddRef() { return ++count_; }

ULONG Dispatch::Release() {
    const ULONG left = --count_;
    if (left == 0) {
        // The object may call out as it goes; it goes when this is no longer found by it.
        const host::ObjectPtr last = object_;
        delete this;
    }
    return left;
}

HRESULT Dispatch::GetTypeInfoCount(UINT* count) {
    if (count == nullptr) return E_POINTER;
    *count = hasTypeInformation() ? 1 : 0;
    return S_OK;
}

HRESULT Dispatch::GetTypeInfo(UINT index, LCID, ITypeInfo** info) {
    if (info == nullptr) return E_POINTER;
    *info = nullptr;
    if (!hasTypeInformation()) return E_NOTIMPL;
    if (index != 0) return DISP_E_BADINDEX;
    type_->info->AddRef();
    *info = type_->info;
    return S_OK;
}

HRESULT Dispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (names == nullptr || ids == nullptr) return E_POINTER;
    if (count == 0) return E_INVALIDARG;
    if (hasTypeInformation()) return DispGetIDsOfNames(type_->info, names, count, ids);
    try {
        ids[0] = border_.idOf(basic::fromWide(names[0]));
    } catch (const std::exception&) {
        return E_OUTOFMEMORY;
    }
    for (UINT i = 1; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    return count > 1 ? DISP_E_UNKNOWNNAME : S_OK;
}

HRESULT Dispatch::Invoke(DISPID id, REFIID reserved, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                         EXCEPINFO* info, UINT*) {
    if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (parameters == nullptr) return E_POINTER;
    const host::ObjectPtr kept = object_;  // the member may release the last pointer to us
    try {
        return basic::acrossBorder([&] { return invoke(id, kind, *parameters, result); });
    } catch (const basic::Error& error) {
        return fillException(error, info);
    } catch (const basic::Interruption& interruption) {
        return fillException(basic::Error(basic::kInternalError, interruption.what()), info);
    }
}

const std::string* Dispatch::memberOf(DISPID id) const {
    if (!hasTypeInformation()) return border_.nameOf(id);
    const auto place = static_cast<std::size_t>(id) - 1;
    return place < type_->members.size() ? &type_->members[place] : nullptr;
}

HRESULT Dispatch::invoke(DISPID id, WORD kind, DISPPARAMS& parameters, VARIANT* result) {
    static const std::string walk = "_NewEnum";
    const std::string* name = id == DISPID_NEWENUM ? &walk : memberOf(id);
    if (name == nullptr) return DISP_E_MEMBERNOTFOUND;
    if (const HRESULT refused = border_.admit(*object_, *name, kind, parameters); FAILED(refused))
        return refused;
    if (id == DISPID_NEWENUM) return enumerate(result);
    if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) return put(*name, parameters);
    return call(*name, kind, parameters, result);
}

HRESULT Dispatch::put(const std::string& name, const DISPPARAMS& parameters) {
    const bool named = parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
    if (parameters.cArgs != 1 || !named) return DISP_E_BADPARAMCOUNT;
    object_->set(name, fromOle(parameters.rgvarg[0], border_));
    return S_OK;
}

HRESULT Dispatch::call(const std::string& name, WORD kind, DISPPARAMS& parameters, VARIANT* result) {
    host::Arguments arguments(parameters.cArgs, basic::Missing{});
    for (UINT i = 0; i < parameters.cArgs; ++i) {
        const std::optional<std::size_t> place = placeOf(parameters, i);
        if (!place) return DISP_E_PARAMNOTFOUND;
        arguments[*place] = fromOle(parameters.rgvarg[i], border_);
    }
    const host::Arguments before = arguments;
    const bool asProperty = arguments.empty() && (kind & DISPATCH_PROPERTYGET) != 0;
    const host::Variant value = asProperty ? object_->get(name) : object_->call(name, arguments);
    for (UINT i = 0; i < parameters.cArgs; ++i) {
        const std::size_t place = *placeOf(parameters, i);
        if (!isSame(arguments[place], before[place]))
            giveBack(arguments[place], parameters.rgvarg[i], border_);
    }
    if (result != nullptr) {
        VariantInit(result);
        toOle(value, *result, border_);
    }
    return S_OK;
}

HRESULT Dispatch::enumerate(VARIANT* result) {
    std::vector<host::Variant> all;
    object_->enumerate([&all](const host::Variant& element) {
        all.push_back(element);
        return true;
    });
    if (result == nullptr) return S_OK;
    VariantInit(result);
    result->vt = VT_UNKNOWN;
    result->punkVal = new Enumerator(border_, std::move(all));
    return S_OK;
}

}  // namespace com
