#pragma once

#include "windows/com/ole.h"

#include <functional>

namespace addin {

/// Makes the objects of the one class. It lives as long as the module, so its counts mean nothing.
class ClassFactory final : public IClassFactory {
  public:
    using Create = std::function<HRESULT(REFIID id, void** out)>;
    explicit ClassFactory(Create create) : create_(std::move(create)) {}
    virtual ~ClassFactory() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID id, void** out) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override;

  private:
    Create create_;
};

}  // namespace addin
