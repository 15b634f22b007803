#include "windows/addin/class_type.h"

namespace addin {

ITypeInfo* makeClassType() {
    constexpr DISPID kExec = 1;
    wchar_t doc[] = L"Doc";
    wchar_t exec[] = L"Exec";
    PARAMDATA parameters[] = {{doc, VT_BYREF | VT_DISPATCH}};
    METHODDATA methods[] = {{exec, parameters, kExec, 0, CC_STDCALL, 1, DISPATCH_METHOD, VT_EMPTY}};
    INTERFACEDATA interfaceData{methods, 1};
    ITypeInfo* type = nullptr;
    return SUCCEEDED(CreateDispTypeInfo(&interfaceData, LOCALE_USER_DEFAULT, &type)) ? type : nullptr;
}

}  // namespace addin
