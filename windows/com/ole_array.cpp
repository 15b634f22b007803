#include "windows/com/ole_array.h"

#include "windows/com/ole_errors.h"
#include "windows/com/ole_variant.h"

#include <algorithm>

namespace com {

using basic::Variant;

namespace {

/// The elements of a one-dimensional array while they are held in place.
template <typename T>
class Elements {
  public:
    explicit Elements(SAFEARRAY* array) : array_(array) {
        LONG low = 0;
        LONG high = -1;
        if (SafeArrayGetDim(array) != 1 || FAILED(SafeArrayGetLBound(array, 1, &low)) ||
            FAILED(SafeArrayGetUBound(array, 1, &high)) ||
            FAILED(SafeArrayAccessData(array, reinterpret_cast<void**>(&data_))))
            throw basic::Error(basic::kTypeMismatch);
        count_ = high < low ? 0 : static_cast<std::size_t>(high - low) + 1;
    }
    ~Elements() { SafeArrayUnaccessData(array_); }
    Elements(const Elements&) = delete;
    Elements& operator=(const Elements&) = delete;

    std::size_t count() const { return count_; }
    T* begin() const { return data_; }
    T* end() const { return data_ + count_; }

  private:
    SAFEARRAY* array_;
    T* data_ = nullptr;
    std::size_t count_ = 0;
};

/// Each element as a variant that points to it.
basic::Array fromAnyElements(SAFEARRAY* array, VARTYPE type, Border& border) {
    const std::size_t size = SafeArrayGetElemsize(array);
    const Elements<char> elements(array);
    basic::Array values;
    values.reserve(elements.count());
    for (std::size_t i = 0; i < elements.count(); ++i) {
        VARIANT element;
        VariantInit(&element);
        element.vt = static_cast<VARTYPE>(type | VT_BYREF);
        element.byref = elements.begin() + i * size;
        values.push_back(fromOle(element, border));
    }
    return values;
}

SAFEARRAY* newArray(VARTYPE type, std::size_t count) {
    SAFEARRAY* array = SafeArrayCreateVector(type, 0, static_cast<ULONG>(count));
    if (array == nullptr) throw basic::Error(basic::kOutOfMemory);
    return array;
}

template <typename T>
SAFEARRAY* copied(VARTYPE type, const std::vector<T>& from) {
    SAFEARRAY* array = newArray(type, from.size());
    const Elements<T> to(array);
    std::copy(from.begin(), from.end(), to.begin());
    return array;
}

}  // namespace

Variant fromOleArray(SAFEARRAY* array, VARTYPE type, Border& border) {
    if (array == nullptr) return basic::Array{};
    if (type == VT_R8) {
        const Elements<double> elements(array);
        return basic::Doubles(elements.begin(), elements.end());
    }
    if (type == VT_I2) {
        const Elements<std::int16_t> elements(array);
        return basic::Shorts(elements.begin(), elements.end());
    }
    return fromAnyElements(array, type, border);
}

SAFEARRAY* toOleArray(const basic::Doubles& elements) { return copied(VT_R8, elements); }

SAFEARRAY* toOleArray(const basic::Shorts& elements) { return copied(VT_I2, elements); }

SAFEARRAY* toOleArray(const basic::Array& elements, Border& border) {
    SAFEARRAY* array = newArray(VT_VARIANT, elements.size());
    try {
        const Elements<VARIANT> to(array);
        for (std::size_t i = 0; i < elements.size(); ++i) toOle(elements[i], to.begin()[i], border);
    } catch (...) {
        SafeArrayDestroy(array);
        throw;
    }
    return array;
}

}  // namespace com
