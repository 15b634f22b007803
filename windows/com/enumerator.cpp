#include "windows/com/enumerator.h"

#include "windows/com/ole_variant.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace com {

Enumerator::Enumerator(Border& border, std::vector<host::Variant> elements)
    : border_(border), elements_(std::make_shared<const std::vector<host::Variant>>(std::move(elements))) {
    ++border_.given_;
}

Enumerator::Enumerator(const Enumerator& other)
    : border_(other.border_), elements_(other.elements_), at_(other.at_) {
    ++border_.given_;
}

Enumerator::~Enumerator() { --border_.given_; }

HRESULT Enumerator::QueryInterface(REFIID id, void** out) {
    if (out == nullptr) return E_POINTER;
    *out = nullptr;
    if (id != IID_IUnknown && id != IID_IEnumVARIANT) return E_NOINTERFACE;
    *out = this;
    AddRef();
    return S_OK;
}

ULONG Enumerator::AddRef() { return ++count_; }

ULONG Enumerator::Release() {
    const ULONG left = --count_;
    if (left == 0) delete this;
    return left;
}

HRESULT Enumerator::Next(ULONG wanted, VARIANT* elements, ULONG* got) {
    if (elements == nullptr) return E_POINTER;
    ULONG count = 0;
    try {
        for (; count < wanted && at_ < elements_->size(); ++count) {
            VariantInit(&elements[count]);
            toOle((*elements_)[at_++], elements[count], border_);
        }
    } catch (const std::exception&) {
        return E_FAIL;
    }
    if (got != nullptr) *got = count;
    return count == wanted ? S_OK : S_FALSE;
}

HRESULT Enumerator::Skip(ULONG count) {
    const std::size_t left = elements_->size() - at_;
    at_ += std::min<std::size_t>(count, left);
    return count <= left ? S_OK : S_FALSE;
}

HRESULT Enumerator::Reset() {
    at_ = 0;
    return S_OK;
}

HRESULT Enumerator::Clone(IEnumVARIANT** copy) {
    if (copy == nullptr) return E_POINTER;
    *copy = new Enumerator(*this);
    return S_OK;
}

}  // namespace com
