#pragma once

#include "host/object.h"
#include "windows/com/border.h"
#include "windows/com/ole.h"

namespace com {

/// An object of ours as others reach it. Made by `Border::give`, gone with its last count.
///
/// Names match without regard to case. Without type information any name has a number, and a member that the
/// object lacks fails in Invoke; with it a foreign name fails at once, and named arguments are known. No
/// exception leaves: a failure becomes exception information (`fillException`).
class Dispatch final : public IDispatch {
  public:
    Dispatch(Border& border, host::ObjectPtr object, const ObjectType* type);
    virtual ~Dispatch();
    Dispatch(const Dispatch&) = delete;
    Dispatch& operator=(const Dispatch&) = delete;

    const host::ObjectPtr& object() const { return object_; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD kind,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* info,
                                     UINT* badArgument) override;

  private:
    HRESULT invoke(DISPID id, WORD kind, DISPPARAMS& parameters, VARIANT* result);
    HRESULT put(const std::string& name, const DISPPARAMS& parameters);
    HRESULT call(const std::string& name, WORD kind, DISPPARAMS& parameters, VARIANT* result);
    HRESULT enumerate(VARIANT* result);
    /// The member of a number; null for a foreign number.
    const std::string* memberOf(DISPID id) const;
    bool hasTypeInformation() const { return type_ != nullptr && type_->info != nullptr; }

    Border& border_;
    host::ObjectPtr object_;
    const ObjectType* type_;
    ULONG count_ = 1;
};

}  // namespace com
