#pragma once

#include "windows/com/ole.h"

namespace addin {

/// {5B7C8E0A-6D1F-4B7B-9C56-3A1D6C0F7E21}, the class "Vorlane.VnObj0100".
inline constexpr CLSID kClass{0x5b7c8e0a, 0x6d1f, 0x4b7b, {0x9c, 0x56, 0x3a, 0x1d, 0x6c, 0x0f, 0x7e, 0x21}};
inline constexpr const wchar_t* kClassText = L"{5B7C8E0A-6D1F-4B7B-9C56-3A1D6C0F7E21}";
inline constexpr const wchar_t* kProgramId = L"Vorlane.VnObj0100";

/// {5B7C8E0B-6D1F-4B7B-9C56-3A1D6C0F7E21}, its interface; the resource _IID_VNOBJ0100 holds the same.
inline constexpr IID kInterface{0x5b7c8e0b, 0x6d1f, 0x4b7b, {0x9c, 0x56, 0x3a, 0x1d, 0x6c, 0x0f, 0x7e, 0x21}};

/// The class's type information: one method, Exec(Doc), with an object by reference. Counted for the caller;
/// null where the system makes none.
ITypeInfo* makeClassType();

}  // namespace addin
