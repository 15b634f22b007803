#include "windows/com/ole_variant.h"

#include "basic/wide.h"
#include "windows/com/border.h"
#include "windows/com/ole_array.h"
#include "windows/com/ole_errors.h"

#include <cstring>
#include <limits>

namespace com {

using basic::Variant;

namespace {

using Kind = Variant::Kind;

std::string textOf(BSTR text) {
    return text == nullptr ? std::string() : basic::fromWide({text, SysStringLen(text)});
}

BSTR newText(const std::string& text) {
    const std::wstring wide = basic::toWide(text);
    BSTR made = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    if (made == nullptr) throw basic::Error(basic::kOutOfMemory);
    return made;
}

Variant fromUnknown(IUnknown* unknown, Border& border) {
    IDispatch* dispatch = nullptr;
    if (unknown == nullptr ||
        FAILED(unknown->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&dispatch))))
        return basic::ObjectRef();
    Variant object = border.take(dispatch);
    dispatch->Release();
    return object;
}

/// The numeric types that the logic has no kind of its own for.
Variant fromOtherNumber(const VARIANT& value) {
    OleVariant number;
    if (FAILED(VariantChangeType(&number, const_cast<VARIANT*>(&value), 0, VT_R8)))
        throw basic::Error(basic::kTypeMismatch);
    const int type = value.vt & VT_TYPEMASK;
    const bool whole = type != VT_R4 && type != VT_CY && type != VT_DATE && type != VT_DECIMAL;
    constexpr double kLeast = std::numeric_limits<std::int32_t>::min();
    constexpr double kMost = std::numeric_limits<std::int32_t>::max();
    if (whole && number.dblVal >= kLeast && number.dblVal <= kMost)
        return static_cast<std::int32_t>(number.dblVal);
    return number.dblVal;
}

bool isOtherNumber(int type) {
    switch (type) {
        case VT_I1:
        case VT_UI1:
        case VT_UI2:
        case VT_UI4:
        case VT_I8:
        case VT_UI8:
        case VT_UINT:
        case VT_R4:
        case VT_CY:
        case VT_DATE:
        case VT_DECIMAL:
            return true;
        default:
            return false;
    }
}

}  // namespace

Variant fromOle(const VARIANT& value, Border& border) {
    const bool byRef = (value.vt & VT_BYREF) != 0;
    const int type = value.vt & VT_TYPEMASK;
    if ((value.vt & VT_ARRAY) != 0)
        return fromOleArray(byRef ? *value.pparray : value.parray, static_cast<VARTYPE>(type), border);
    switch (type) {
        case VT_EMPTY:
        case VT_NULL:
            return {};
        case VT_VARIANT:
            return fromOle(*value.pvarVal, border);
        case VT_ERROR:
            return (byRef ? *value.pscode : value.scode) == DISP_E_PARAMNOTFOUND ? Variant(basic::Missing{})
                                                                                 : Variant();
        case VT_BOOL:
            return (byRef ? *value.pboolVal : value.boolVal) != VARIANT_FALSE;
        case VT_I2:
            return static_cast<std::int16_t>(byRef ? *value.piVal : value.iVal);
        case VT_I4:
        case VT_INT:
            return static_cast<std::int32_t>(byRef ? *value.plVal : value.lVal);
        case VT_R8:
            return byRef ? *value.pdblVal : value.dblVal;
        case VT_BSTR:
            return textOf(byRef ? *value.pbstrVal : value.bstrVal);
        case VT_DISPATCH:
            return border.take(byRef ? *value.ppdispVal : value.pdispVal);
        case VT_UNKNOWN:
            return fromUnknown(byRef ? *value.ppunkVal : value.punkVal, border);
        default:
            if (!isOtherNumber(type)) throw basic::Error(basic::kTypeMismatch);
            return fromOtherNumber(value);
    }
}

void toOle(const Variant& value, VARIANT& target, Border& border) {
    VariantClear(&target);
    switch (value.kind()) {
        case Kind::Empty:
            break;
        case Kind::Missing:
            target.scode = DISP_E_PARAMNOTFOUND;
            target.vt = VT_ERROR;
            break;
        case Kind::Boolean:
            target.boolVal = value.boolean() ? VARIANT_TRUE : VARIANT_FALSE;
            target.vt = VT_BOOL;
            break;
        case Kind::Int16:
            target.iVal = static_cast<std::int16_t>(value.integer());
            target.vt = VT_I2;
            break;
        case Kind::Int32:
            target.lVal = value.integer();
            target.vt = VT_I4;
            break;
        case Kind::Double:
            target.dblVal = value.number();
            target.vt = VT_R8;
            break;
        case Kind::Text:
            target.bstrVal = newText(value.text());
            target.vt = VT_BSTR;
            break;
        case Kind::Object:
            target.pdispVal = border.give(value.object());
            target.vt = VT_DISPATCH;
            break;
        case Kind::DoubleArray:
            target.parray = toOleArray(value.doubles());
            target.vt = VT_ARRAY | VT_R8;
            break;
        case Kind::ShortArray:
            target.parray = toOleArray(value.shorts());
            target.vt = VT_ARRAY | VT_I2;
            break;
        case Kind::VariantArray:
            target.parray = toOleArray(value.array(), border);
            target.vt = VT_ARRAY | VT_VARIANT;
            break;
    }
}

void giveBack(const Variant& value, VARIANT& parameter, Border& border) {
    if ((parameter.vt & VT_BYREF) == 0) return;
    const auto type = static_cast<VARTYPE>(parameter.vt & ~VT_BYREF);
    if (type == VT_VARIANT) {
        VARIANT& inner = *parameter.pvarVal;
        if ((inner.vt & VT_BYREF) != 0) {
            giveBack(value, inner, border);
        } else {
            toOle(value, inner, border);
        }
        return;
    }
    OleVariant converted;
    toOle(value, converted, border);
    if (converted.vt != type) {
        const bool nothing = type == VT_DISPATCH && value.isNothing();
        if (nothing) {
            converted.vt = VT_DISPATCH;
            converted.pdispVal = nullptr;
        } else if (const HRESULT result = VariantChangeType(&converted, &converted, 0, type);
                   FAILED(result)) {
            throw basic::Error(result == DISP_E_OVERFLOW ? basic::kOverflow : basic::kTypeMismatch);
        }
    }
    // The caller's variable and the new value change places; the old value goes with the scope.
    OleVariant old;
    old.vt = type;
    const std::size_t size = type == VT_BOOL || type == VT_I2                   ? 2
                             : type == VT_I4 || type == VT_INT || type == VT_R4 ? 4
                                                                                : sizeof old.llVal;
    const bool owned = (type & VT_ARRAY) != 0 || type == VT_BSTR || type == VT_DISPATCH || type == VT_UNKNOWN;
    if (!owned) old.vt = VT_EMPTY;
    std::memcpy(&old.llVal, parameter.byref, size);
    std::memcpy(parameter.byref, &converted.llVal, size);
    if (owned) converted.vt = VT_EMPTY;
}

bool isSame(const Variant& left, const Variant& right) {
    if (left.kind() != right.kind()) return false;
    switch (left.kind()) {
        case Kind::Empty:
        case Kind::Missing:
            return true;
        case Kind::Text:
            return left.text() == right.text();
        case Kind::Object:
            return left.object() == right.object();
        case Kind::DoubleArray:
            return &left.doubles() == &right.doubles();
        case Kind::ShortArray:
            return &left.shorts() == &right.shorts();
        case Kind::VariantArray:
            return &left.array() == &right.array();
        default:
            return left.number() == right.number();
    }
}

}  // namespace com
