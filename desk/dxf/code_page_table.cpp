#include "desk/dxf/code_page_table.h"

#include "basic/code_page.h"
#include "basic/text.h"
#include "desk/dxf/code_page_converter.h"

namespace dxf {

namespace {

struct PageName {
    std::string_view name;
    const char* converter;
};

// The names of $DWGCODEPAGE, which both spell the page's number and say whose page it is.
constexpr PageName kPages[] = {
    {"ANSI_874", "TIS-620"},     {"ANSI_932", "CP932"},       {"ANSI_936", "GBK"},
    {"ANSI_949", "UHC"},         {"ANSI_950", "BIG5"},        {"ANSI_1250", "CP1250"},
    {"ANSI_1251", "CP1251"},     {"ANSI_1252", "CP1252"},     {"ANSI_1253", "CP1253"},
    {"ANSI_1254", "CP1254"},     {"ANSI_1255", "CP1255"},     {"ANSI_1256", "CP1256"},
    {"ANSI_1257", "CP1257"},     {"ANSI_1258", "CP1258"},     {"ANSI_1361", "JOHAB"},
    {"dos437", "IBM437"},        {"dos850", "IBM850"},        {"dos852", "IBM852"},
    {"dos855", "IBM855"},        {"dos857", "IBM857"},        {"dos860", "IBM860"},
    {"dos861", "IBM861"},        {"dos863", "IBM863"},        {"dos864", "IBM864"},
    {"dos865", "IBM865"},        {"dos866", "IBM866"},        {"dos869", "IBM869"},
    {"dos932", "CP932"},         {"iso8859-1", "ISO-8859-1"}, {"iso8859-2", "ISO-8859-2"},
    {"iso8859-3", "ISO-8859-3"}, {"iso8859-4", "ISO-8859-4"}, {"iso8859-5", "ISO-8859-5"},
    {"iso8859-6", "ISO-8859-6"}, {"iso8859-7", "ISO-8859-7"}, {"iso8859-8", "ISO-8859-8"},
    {"iso8859-9", "ISO-8859-9"}, {"mac-roman", "MACINTOSH"},  {"big5", "BIG5"},
    {"gb2312", "GBK"},           {"ksc5601", "UHC"},          {"johab", "JOHAB"},
    {"ascii", "CP1252"},
};

void define(Encoding::Table& table, std::uint16_t bytes, char16_t character) {
    if (character == 0) return;
    // Where two byte sequences are one character, the first is what is written.
    if (table.bytesOf(character) == 0) table.setBytes(character, bytes);
    if (bytes < 0x100)
        table.single[bytes] = character;
    else
        table.pairs[bytes] = character;
}

/// The page of nearly all drawings, for which no converter has to be loaded.
void defineHousePage(Encoding::Table& table) {
    for (unsigned byte = 0x80; byte < 0x100; ++byte) {
        const std::string text = basic::fromCodePage(std::string(1, static_cast<char>(byte)));
        std::size_t at = 0;
        define(table, static_cast<std::uint16_t>(byte),
               static_cast<char16_t>(basic::nextCharacter(text, at)));
    }
}

/// What page 874 has beyond the Thai standard that it extends.
void defineThaiPunctuation(Encoding::Table& table) {
    constexpr std::pair<std::uint16_t, char16_t> kAdded[] = {
        {0x80, u'\u20AC'}, {0x85, u'\u2026'}, {0x91, u'\u2018'}, {0x92, u'\u2019'}, {0x93, u'\u201C'},
        {0x94, u'\u201D'}, {0x95, u'\u2022'}, {0x96, u'\u2013'}, {0x97, u'\u2014'}, {0xA0, u'\u00A0'},
    };
    for (const auto& [byte, character] : kAdded) define(table, byte, character);
}

void definePairs(Encoding::Table& table, CodePageConverter& converter) {
    table.pairs.resize(0x10000);
    for (unsigned lead = 0x80; lead < 0x100; ++lead) {
        if (table.single[lead] != 0) continue;
        for (unsigned second = 0x31; second < 0xFF; ++second) {
            const char bytes[2] = {static_cast<char>(lead), static_cast<char>(second)};
            const char16_t character = converter.character({bytes, 2});
            if (character == 0) continue;
            table.isLead[lead] = true;
            define(table, static_cast<std::uint16_t>(lead << 8 | second), character);
        }
    }
}

}  // namespace

const char* converterName(std::string_view codePageName) {
    for (const PageName& page : kPages)
        if (basic::equalIgnoringCase(page.name, codePageName)) return page.converter;
    return nullptr;
}

void Encoding::Table::setBytes(char16_t character, std::uint16_t bytes) {
    auto& row = rows[character / kRow];
    if (!row) row = std::make_unique<std::array<std::uint16_t, kRow>>();
    (*row)[character % kRow] = bytes;
}

std::shared_ptr<const Encoding::Table> makeTable(const char* converterName) {
    auto table = std::make_shared<Encoding::Table>();
    // Bytes below 128 are ASCII in all pages, whatever some say about backslash and tilde.
    for (unsigned byte = 0; byte < 0x80; ++byte)
        define(*table, static_cast<std::uint16_t>(byte), static_cast<char16_t>(byte));

    if (std::string_view(converterName) == "CP1252") {
        defineHousePage(*table);
        return table;
    }
    CodePageConverter converter(converterName);
    for (unsigned byte = 0x80; byte < 0x100; ++byte) {
        const char text = static_cast<char>(byte);
        define(*table, static_cast<std::uint16_t>(byte), converter.character({&text, 1}));
    }
    const std::string_view name = converterName;
    const bool twoBytes =
        name == "CP932" || name == "GBK" || name == "UHC" || name == "BIG5" || name == "JOHAB";
    if (name == "TIS-620") defineThaiPunctuation(*table);
    if (twoBytes) {
        definePairs(*table, converter);
    } else if (converter.isOpen()) {
        // The bytes that a single-byte page leaves open are the control characters of their number.
        for (unsigned byte = 0x80; byte < 0xA0; ++byte)
            if (table->single[byte] == 0)
                define(*table, static_cast<std::uint16_t>(byte), static_cast<char16_t>(byte));
    }
    return table;
}

char32_t multiByteCharacter(int page, std::uint16_t bytes) {
    constexpr const char* kConverters[] = {"CP932", "BIG5", "UHC", "JOHAB", "GBK"};
    if (page < 1 || page > 5) return 0;
    const char text[2] = {static_cast<char>(bytes >> 8), static_cast<char>(bytes & 0xFF)};
    CodePageConverter converter(kConverters[page - 1]);
    return bytes < 0x100 ? converter.character({text + 1, 1}) : converter.character({text, 2});
}

}  // namespace dxf
