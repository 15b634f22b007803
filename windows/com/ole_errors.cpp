#include "windows/com/ole_errors.h"

#include "basic/wide.h"
#include "windows/com/ole.h"

#include <iterator>
#include <string>

namespace com {

namespace {

constexpr std::uint32_t kControlFacility = 0x800A0000;
constexpr std::uint32_t kFacilityMask = 0xFFFF0000;
constexpr std::uint32_t kLowWord = 0xFFFF;

struct NumberedResult {
    HRESULT result;
    std::int32_t number;
};

constexpr NumberedResult kNumbers[] = {
    {DISP_E_UNKNOWNNAME, basic::kNoSuchMember},  {DISP_E_MEMBERNOTFOUND, basic::kNoSuchMember},
    {DISP_E_TYPEMISMATCH, basic::kTypeMismatch}, {DISP_E_BADVARTYPE, basic::kTypeMismatch},
    {DISP_E_OVERFLOW, basic::kOverflow},         {DISP_E_BADINDEX, basic::kSubscript},
    {DISP_E_BADPARAMCOUNT, kArgumentCount},      {DISP_E_PARAMNOTOPTIONAL, kArgumentNotOptional},
    {E_OUTOFMEMORY, basic::kOutOfMemory},        {E_INVALIDARG, basic::kInvalidCall},
    {E_ACCESSDENIED, basic::kPermissionDenied},
};

std::int32_t numberOf(HRESULT result) {
    for (const NumberedResult& known : kNumbers)
        if (known.result == result) return known.number;
    const auto bits = static_cast<std::uint32_t>(result);
    return (bits & kFacilityMask) == kControlFacility ? static_cast<std::int32_t>(bits & kLowWord) : result;
}

std::string systemText(HRESULT result) {
    wchar_t text[512];
    DWORD length =
        FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                       static_cast<DWORD>(result), 0, text, static_cast<DWORD>(std::size(text)), nullptr);
    while (length > 0 && text[length - 1] <= L' ') --length;
    return basic::fromWide({text, length});
}

/// In the words of the desk's own objects; a result that has no number of ours in the system's.
std::string describe(std::int32_t number, HRESULT result, std::string_view member) {
    if (number <= 0 || number > static_cast<std::int32_t>(kLowWord)) {
        const std::string known = systemText(result);
        return (known.empty() ? "Automation error" : known) + ": '" + std::string(member) + "'";
    }
    std::string text = basic::standardDescription(static_cast<basic::ErrorNumber>(number));
    if (number == basic::kNoSuchMember) text.append(": '").append(member).append("'");
    return text;
}

/// Takes the description out of an exception and makes its code the result; frees its texts.
std::string takeException(HRESULT& result, EXCEPINFO& info) {
    if (info.pfnDeferredFillIn != nullptr) info.pfnDeferredFillIn(&info);
    std::string text;
    if (info.bstrDescription != nullptr)
        text = basic::fromWide({info.bstrDescription, SysStringLen(info.bstrDescription)});
    if (info.scode != 0) {
        result = info.scode;
    } else if (info.wCode != 0) {
        result = static_cast<HRESULT>(kControlFacility | info.wCode);
    }
    SysFreeString(info.bstrDescription);
    SysFreeString(info.bstrSource);
    SysFreeString(info.bstrHelpFile);
    info = {};
    return text;
}

}  // namespace

void raiseOle(HRESULT result, EXCEPINFO& info, std::string_view member) {
    std::string text;
    if (result == DISP_E_EXCEPTION) text = takeException(result, info);
    const std::int32_t number = numberOf(result);
    throw basic::Error(number, text.empty() ? describe(number, result, member) : text);
}

HRESULT fillException(const basic::Error& error, EXCEPINFO* info) {
    if (error.number() == basic::kNoSuchMember) return DISP_E_MEMBERNOTFOUND;
    if (error.number() == kArgumentCount) return DISP_E_BADPARAMCOUNT;
    if (info != nullptr) {
        *info = {};
        const bool small = error.number() > 0 && error.number() <= static_cast<std::int32_t>(kLowWord);
        info->scode =
            small ? static_cast<HRESULT>(kControlFacility | static_cast<std::uint32_t>(error.number()))
                  : error.number();
        info->bstrDescription = SysAllocString(basic::toWide(error.description()).c_str());
        info->bstrSource = SysAllocString(L"Vorlane");
    }
    return DISP_E_EXCEPTION;
}

}  // namespace com
