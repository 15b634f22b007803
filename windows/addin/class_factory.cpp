#include "windows/addin/class_factory.h"

namespace addin {

HRESULT ClassFactory::QueryInterface(REFIID id, void** out) {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (id != IID_IUnknown && id != IID_IClassFactory) return E_NOINTERFACE;
    *out = static_cast<IClassFactory*>(this);
    return S_OK;
}

HRESULT ClassFactory::CreateInstance(IUnknown* outer, REFIID id, void** out) {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (outer != nullptr) return CLASS_E_NOAGGREGATION;
    return create_(id, out);
}

HRESULT ClassFactory::LockServer(BOOL) { return S_OK; }

}  // namespace addin
