#include "desk/dxf/encoding.h"

#include <gtest/gtest.h>

using dxf::Encoding;

TEST(Encoding, codePagesGoBothWays) {
    const struct {
        const char* page;
        const char* bytes;
        const char* text;
    } rows[] = {
        {"ANSI_1252", "Caf\xE9 \x80", "Café €"},
        {"ansi_1251", "\xC4\xEE\xEC", "Дом"},
        {"ANSI_1250", "\x8Cl\xB9sk", "Śląsk"},
        {"ANSI_1253", "\xD3\xF0\xDF\xF4\xE9", "Σπίτι"},
        {"dos850", "Caf\x82", "Café"},
        {"DOS437", "\xE1", "ß"},
        {"ANSI_874", "\xBA\xE9\xD2\xB9 \x80", "บ้าน €"},
        {"ANSI_932", "\x89\xC6\x83\x5C\xB1", "家ソｱ"},
        {"ANSI_936", "\xB7\xBF", "房"},
        {"gb2312", "\xB7\xBF", "房"},
        {"ANSI_949", "\xC1\xFD", "집"},
        {"ANSI_950", "\xA9\xD0\xB3\x5C", "房許"},
        {"ANSI_1258", "\xD2", "\xCC\x89"},
    };
    for (const auto& row : rows) {
        const Encoding encoding = Encoding::codePage(row.page);
        EXPECT_TRUE(Encoding::isKnown(row.page)) << row.page;
        EXPECT_EQ(encoding.decode(row.bytes), row.text) << row.page;
        EXPECT_EQ(encoding.encode(row.text), row.bytes) << row.page;
    }
    EXPECT_FALSE(Encoding::isKnown("ANSI_4711"));
    EXPECT_EQ(Encoding::codePage("ANSI_4711").decode("\xE9"), "é");
}

TEST(Encoding, everyByteComesBack) {
    std::string all;
    for (int byte = 0x20; byte < 0x100; ++byte) all.push_back(static_cast<char>(byte));
    for (const char* page :
         {"ANSI_1252", "ANSI_1257", "ANSI_1258", "ANSI_874", "ANSI_936", "ANSI_949", "dos850"}) {
        const Encoding encoding = Encoding::codePage(page);
        EXPECT_EQ(encoding.encode(encoding.decode(all)), all) << page;
    }
    EXPECT_EQ(Encoding().encode(Encoding().decode(all)), all);
    // These two have some characters twice, of which the first is written: the text stays, if not the bytes.
    for (const char* page : {"ANSI_932", "ANSI_950"}) {
        const Encoding encoding = Encoding::codePage(page);
        EXPECT_EQ(encoding.decode(encoding.encode(encoding.decode(all))), encoding.decode(all)) << page;
    }
}

TEST(Encoding, escapesAreDecoded) {
    const Encoding utf8;
    EXPECT_EQ(utf8.decode("\\U+00E9t\\U+00c9"), "étÉ");
    EXPECT_EQ(utf8.decode("\\U+D83D\\U+DE00"), "😀");
    EXPECT_EQ(utf8.decode("\\M+1966E\\M+5D6D0"), "墨中");
    // What would be no character, or would break its line, stays as it stands.
    for (const char* same : {"\\U+D83D x", "\\U+DE00", "\\U+000A", "\\U+12", "\\U+00G1", "\\M+9966E", "\\M+1",
                             "\\Pa\\", "a^jb", "x^2", "^"})
        EXPECT_EQ(utf8.decode(same), same);
    // The second byte of a double-byte character is no backslash.
    EXPECT_EQ(Encoding::codePage("ANSI_932").decode("\x83\x5CU+00E9"), "ソU+00E9");
    std::string scratch;
    const std::string_view plain = "C:\\blocks";
    EXPECT_EQ(utf8.decode("porte", scratch).size(), 5u);
    EXPECT_EQ(utf8.decode(plain, scratch), plain);
}

TEST(Encoding, whatThePageLacksIsEscaped) {
    const Encoding page = Encoding::codePage("ANSI_1252");
    EXPECT_EQ(page.encode("a😀Д"), "a\\U+D83D\\U+DE00\\U+0414");
    EXPECT_EQ(page.decode(page.encode("a😀Дé")), "a😀Дé");
    EXPECT_EQ(page.encode("two\nlines\ttab^"), "two^Jlines^Itab^ ");
    EXPECT_EQ(page.decode("two^Jlines^Itab^ ^ J"), "two\nlines\ttab^^J");
    EXPECT_EQ(Encoding().encode("é\r\n"), "é^M^J");
}
