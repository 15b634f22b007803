#include "desk/dxf/code_page_converter.h"

#include <algorithm>
#include <iterator>
#include <windows.h>

namespace dxf {

namespace {

struct PageNumber {
    std::string_view name;
    UINT number;
};

// Where the number isn't the digits of the name.
constexpr PageNumber kNumbers[] = {
    {"TIS-620", 874}, {"GBK", 936}, {"UHC", 949}, {"BIG5", 950}, {"JOHAB", 1361}, {"MACINTOSH", 10000},
};

UINT pageNumber(std::string_view name) {
    for (const PageNumber& page : kNumbers)
        if (page.name == name) return page.number;
    constexpr std::string_view kIso = "ISO-8859-";
    const bool iso = name.starts_with(kIso);
    UINT number = 0;
    for (const char digit : name.substr(iso ? kIso.size() : 0))
        if (digit >= '0' && digit <= '9') number = number * 10 + static_cast<UINT>(digit - '0');
    return iso ? 28590 + number : number;
}

}  // namespace

struct CodePageConverter::System {
    UINT page;
    bool known;
};

CodePageConverter::CodePageConverter(std::string_view name)
    : system_(std::make_unique<System>(System{pageNumber(name), false})) {
    system_->known = IsValidCodePage(system_->page) != FALSE;
}

CodePageConverter::~CodePageConverter() = default;

bool CodePageConverter::isOpen() const { return system_->known; }

char16_t CodePageConverter::character(std::string_view bytes) {
    if (!isOpen()) return 0;
    wchar_t out[4];
    const int length =
        MultiByteToWideChar(system_->page, MB_ERR_INVALID_CHARS, bytes.data(), static_cast<int>(bytes.size()),
                            out, static_cast<int>(std::size(out)));
    return length == 1 ? static_cast<char16_t>(out[0]) : u'\0';
}

}  // namespace dxf
