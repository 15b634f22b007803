#include "desk/dxf/format.h"

#include "support.h"

using namespace dxf;

TEST(Version, numbersFallToTheirRelease) {
    EXPECT_EQ(versionFromText("AC1015"), Version::R2000);
    EXPECT_EQ(versionFromText("AC1013"), Version::R13);
    EXPECT_EQ(versionFromText("AC1.50"), Version::R9);
    EXPECT_EQ(versionFromText("AC1099"), Version::R2018);
    EXPECT_EQ(versionFromText(""), Version::R12);
    EXPECT_EQ(versionFromText("Release 12"), Version::R12);
    EXPECT_FALSE(isKnownVersion("AC1099"));
    EXPECT_LT(Version::R12, Version::R13);
    constexpr std::array kNames{"R9",    "R10",   "R12",   "R13",   "R14",  "R2000",
                                "R2004", "R2007", "R2010", "R2013", "R2018"};
    constexpr std::array kTexts{"AC1004", "AC1006", "AC1009", "AC1012", "AC1014", "AC1015",
                                "AC1018", "AC1021", "AC1024", "AC1027", "AC1032"};
    for (std::size_t i = 0; i < kNames.size(); ++i)
        EXPECT_EQ(versionName(versionFromText(kTexts[i])), kNames[i]);
}

TEST(Format, habitsOfAnAsciiFile) {
    const std::string padded =
        "999\r\nby hand\r\n  0\r\nSECTION\r\n  2\r\nHEADER\r\n  9\r\n$ACADVER\r\n  1\r\nAC1015\r\n  9\r\n"
        "$DWGCODEPAGE\r\n  3\r\nANSI_1251\r\n  9\r\n$ATTMODE\r\n 70\r\n     1\r\n  0\r\nENDSEC\r\n";
    const Format crlf = detectFormat(padded, "a.dxf");
    EXPECT_FALSE(crlf.binary);
    EXPECT_TRUE(crlf.carriageReturns && crlf.paddedCodes && crlf.paddedIntegers);
    EXPECT_EQ(crlf.version, Version::R2000);
    EXPECT_EQ(crlf.encoding.decode("\xC4"), "Д");

    const Format bare = detectFormat(
        lines("0 SECTION 2 HEADER 9 $ACADVER 1 AC1021 9 $DWGCODEPAGE 3 ANSI_1251 9 $A 70 1 0 ENDSEC"),
        "a.dxf");
    EXPECT_FALSE(bare.carriageReturns || bare.paddedCodes || bare.paddedIntegers);
    EXPECT_TRUE(bare.encoding.isUtf8()) << "from R2007 on whatever $DWGCODEPAGE says";

    const Format mark = detectFormat("\xEF\xBB\xBF" + lines("0 SECTION 2 ENTITIES"), "a.dxf");
    EXPECT_EQ(mark.start, 3u);
    EXPECT_EQ(mark.version, Version::R12);
}
