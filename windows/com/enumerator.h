#pragma once

#include "host/object.h"
#include "windows/com/border.h"
#include "windows/com/ole.h"

#include <memory>
#include <vector>

namespace com {

/// The elements of a collection as they were when the walk began.
class Enumerator final : public IEnumVARIANT {
  public:
    Enumerator(Border& border, std::vector<host::Variant> elements);
    virtual ~Enumerator();

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE Next(ULONG wanted, VARIANT* elements, ULONG* got) override;
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override;
    HRESULT STDMETHODCALLTYPE Reset() override;
    HRESULT STDMETHODCALLTYPE Clone(IEnumVARIANT** copy) override;

  private:
    Enumerator(const Enumerator& other);

    Border& border_;
    std::shared_ptr<const std::vector<host::Variant>> elements_;
    std::size_t at_ = 0;
    ULONG count_ = 1;
};

}  // namespace com
