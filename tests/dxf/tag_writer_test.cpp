#include "desk/dxf/tag_writer.h"

#include "support.h"

using namespace dxf;

namespace {

/// The bytes that `write` appends in a format.
template <typename Write>
std::string written(const Format& format, Write&& write) {
    std::string bytes;
    TagWriter writer(format, bytes);
    write(writer);
    return bytes;
}

}  // namespace

TEST(TagWriter, asciiLooksLikeTheFile) {
    const auto write = [](TagWriter& writer) {
        writer.plain(0, "TEXT");
        writer.handle(5, 0x1F);
        writer.subclass("AcDbText");
        writer.text(1, "Café\n€");
        writer.point(10, 1, 2.5, -0.0);
        writer.integer(70, 1);
        writer.integer(90, -1);
        writer.integer(40, 2);
        writer.number(1071, 7);
    };
    Format format;
    format.paddedIntegers = true;
    format.version = Version::R2000;
    EXPECT_EQ(written(format, write),
              "  0\r\nTEXT\r\n  5\r\n1F\r\n100\r\nAcDbText\r\n  1\r\nCaf\xE9^J\x80\r\n 10\r\n1.0\r\n "
              "20\r\n2.5\r\n 30\r\n0.0\r\n"
              " 70\r\n     1\r\n 90\r\n       -1\r\n 40\r\n2.0\r\n1071\r\n        7\r\n");
    Format bare;
    bare.carriageReturns = bare.paddedCodes = false;
    EXPECT_EQ(
        written(bare, write),
        "0\nTEXT\n5\n1F\n1\nCaf\xE9^J\x80\n10\n1.0\n20\n2.5\n30\n0.0\n70\n1\n90\n-1\n40\n2.0\n1071\n7\n");
}

TEST(TagWriter, binaryTypesFollowTheCode) {
    Format format;
    format.binary = true;
    const auto write = [](TagWriter& writer) {
        writer.plain(0, "TEXT");
        writer.integer(70, -2);
        writer.integer(90, 4294967295);
        writer.integer(290, 1);
        writer.number(40, 1);
        writer.integer(1070, 3);
    };
    using namespace std::string_literals;
    EXPECT_EQ(
        written(format, write),
        "\0\0TEXT\0\x46\0\xFE\xFF\x5A\0\xFF\xFF\xFF\xFF\x22\x01\x01\x28\0\0\0\0\0\0\0\xF0\x3F\x2E\x04\x03\0"s);
    format.wideCodes = false;
    EXPECT_EQ(written(format,
                      [](TagWriter& writer) {
                          writer.plain(8, "0");
                          writer.integer(1070, 3);
                      }),
              "\x08\x30\0\xFF\x2E\x04\x03\0"s);
    std::string bytes = "before";
    TagWriter writer(format, bytes);
    EXPECT_THROW(writer.integer(70, 70000), basic::Error);
    EXPECT_EQ(bytes, "before") << "a group that can't be written leaves nothing";
}

TEST(TagWriter, copyConvertsBetweenDrawings) {
    const Source old = Source::fromBytes(lines("0 SECTION 2 HEADER 9 $ACADVER 1 AC1009 0 ENDSEC 0 TEXT 1 "
                                               "Caf\xE9\\U+0414 10 1.50 70 6 1004 0AFF 5 2f"),
                                         "old.dxf");
    Format modern;
    modern.version = Version::R2018;
    modern.encoding = Encoding();
    modern.carriageReturns = modern.paddedCodes = false;
    EXPECT_EQ(
        convert(old, modern),
        lines("0 SECTION 2 HEADER 9 $ACADVER 1 AC1009 0 ENDSEC 0 TEXT 1 CaféД 10 1.50 70 6 1004 0AFF 5 2f"));
    EXPECT_EQ(convert(old, old.format()), old.bytes());

    Format binary = old.format();
    binary.binary = true;
    binary.wideCodes = false;
    const Source narrow = Source::fromBytes(convert(old, binary), "narrow.dxf");
    EXPECT_TRUE(narrow.format().binary && !narrow.format().wideCodes);
    EXPECT_EQ(groupTexts(narrow),
              (std::vector<std::string>{"0=SECTION", "2=HEADER", "9=$ACADVER", "1=AC1009", "0=ENDSEC",
                                        "0=TEXT", "1=CaféД", "10=1.5", "70=6", "1004=0AFF", "5=2f"}));
}
