#include "windows/com/com_object.h"

#include "basic/wide.h"
#include "windows/com/ole_errors.h"
#include "windows/com/ole_variant.h"

#include <memory>
#include <vector>

namespace com {

namespace {

constexpr LCID kLocale = LOCALE_USER_DEFAULT;
constexpr WORD kGetOrCall = DISPATCH_PROPERTYGET | DISPATCH_METHOD;

/// One argument: the value that it holds, and whether it can come back.
struct Slot {
    OleVariant value;
    bool comesBack = false;

    void fill(const host::Variant& argument, VARIANT& parameter, Border& border) {
        toOle(argument, value, border);
        VariantInit(&parameter);
        if (argument.is(basic::Variant::Kind::Object)) {
            comesBack = true;
            parameter.vt = VT_BYREF | VT_DISPATCH;
            parameter.ppdispVal = &value.pdispVal;
        } else if (argument.isEmpty() || argument.is(basic::Variant::Kind::DoubleArray)) {
            comesBack = true;
            parameter.vt = VT_BYREF | VT_VARIANT;
            parameter.pvarVal = &value;
        } else {
            parameter = value;  // lent: the slot owns it
        }
    }
};

}  // namespace

ComObject::ComObject(Border& border, IDispatch* dispatch) : border_(border), dispatch_(dispatch) {
    dispatch_->AddRef();
    ++border_.taken_;
}

ComObject::~ComObject() {
    --border_.taken_;
    dispatch_->Release();
}

DISPID ComObject::idOf(std::string_view member) {
    const auto known = ids_.find(member);
    if (known != ids_.end()) return known->second;
    std::wstring name = basic::toWide(member);
    LPOLESTR names = name.data();
    DISPID id = DISPID_UNKNOWN;
    const HRESULT result = dispatch_->GetIDsOfNames(IID_NULL, &names, 1, kLocale, &id);
    EXCEPINFO none{};
    if (FAILED(result)) raiseOle(result, none, member);
    ids_.emplace(member, id);
    return id;
}

void ComObject::invoke(DISPID id, std::string_view member, WORD kind, DISPPARAMS& parameters,
                       VARIANT* result) {
    EXCEPINFO info{};
    UINT badArgument = 0;
    const HRESULT done =
        dispatch_->Invoke(id, IID_NULL, kLocale, kind, &parameters, result, &info, &badArgument);
    if (FAILED(done)) raiseOle(done, info, member);
}

host::Variant ComObject::get(std::string_view member) {
    DISPPARAMS none{};
    OleVariant result;
    invoke(idOf(member), member, kGetOrCall, none, &result);
    return fromOle(result, border_);
}

void ComObject::set(std::string_view member, const host::Variant& value) {
    OleVariant argument;
    toOle(value, argument, border_);
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&argument, &named, 1, 1};
    const auto kind = static_cast<WORD>(
        argument.vt == VT_DISPATCH ? DISPATCH_PROPERTYPUTREF | DISPATCH_PROPERTYPUT : DISPATCH_PROPERTYPUT);
    invoke(idOf(member), member, kind, parameters, nullptr);
}

host::Variant ComObject::call(std::string_view member, host::Arguments& arguments) {
    const std::size_t count = arguments.size();
    std::vector<Slot> slots(count);
    std::vector<VARIANT> parameters(count);  // last first
    for (std::size_t i = 0; i < count; ++i) slots[i].fill(arguments[i], parameters[count - 1 - i], border_);
    DISPPARAMS passed{parameters.data(), nullptr, static_cast<UINT>(count), 0};
    OleVariant result;
    invoke(idOf(member), member, kGetOrCall, passed, &result);
    for (std::size_t i = 0; i < count; ++i)
        if (slots[i].comesBack) arguments[i] = fromOle(slots[i].value, border_);
    return fromOle(result, border_);
}

void ComObject::enumerate(const std::function<bool(const host::Variant&)>& visit) {
    DISPPARAMS none{};
    OleVariant result;
    invoke(DISPID_NEWENUM, "_NewEnum", kGetOrCall, none, &result);
    if ((result.vt != VT_UNKNOWN && result.vt != VT_DISPATCH) || result.punkVal == nullptr)
        throw basic::Error(basic::kNoSuchMember);
    IEnumVARIANT* found = nullptr;
    if (FAILED(result.punkVal->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(&found))))
        throw basic::Error(basic::kNoSuchMember);
    const std::unique_ptr<IEnumVARIANT, void (*)(IEnumVARIANT*)> walk(found,
                                                                      [](IEnumVARIANT* e) { e->Release(); });
    while (true) {
        OleVariant element;
        ULONG got = 0;
        const HRESULT next = walk->Next(1, &element, &got);
        EXCEPINFO noInfo{};
        if (FAILED(next)) raiseOle(next, noInfo, "_NewEnum");
        if (next != S_OK || got == 0 || !visit(fromOle(element, border_))) return;
    }
}

}  // namespace com
