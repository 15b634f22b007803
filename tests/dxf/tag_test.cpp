#include "desk/dxf/tag.h"

#include "desk/dxf/number_text.h"
#include "support.h"

using namespace dxf;

TEST(Codes, typesByRange) {
    const std::pair<int, ValueType> rows[] = {
        {-3, ValueType::String}, {1, ValueType::String},  {5, ValueType::HandleText}, {59, ValueType::Double},
        {60, ValueType::Int16},  {90, ValueType::Int32},  {160, ValueType::Int64},    {290, ValueType::Bool},
        {310, ValueType::Chunk}, {1071, ValueType::Int32}};
    for (const auto& [code, type] : rows) EXPECT_EQ(valueType(code), type) << code;
    EXPECT_EQ(handleRole(360), HandleRole::HardOwner);
    EXPECT_EQ(handleRole(1005), HandleRole::SoftPointer);
    EXPECT_EQ(handleRole(70), HandleRole::None);
}

TEST(Tag, asciiValues) {
    const Format format;
    const auto tagOf = [&](int code, std::string_view raw) { return Tag{code, raw, 0, raw.size(), &format}; };
    EXPECT_DOUBLE_EQ(tagOf(10, "  -1.5E+02 ").number(), -150);
    EXPECT_DOUBLE_EQ(tagOf(10, "+.5").number(), .5);
    EXPECT_EQ(tagOf(70, "     6").integer(), 6);
    EXPECT_EQ(tagOf(70, "3.0").integer(), 3);
    EXPECT_EQ(tagOf(5, " 2fA").handle(), 0x2FAu);
    EXPECT_EQ(tagOf(5, "no").handle(), 0u);
    EXPECT_EQ(tagOf(40, "1,5").numberOr(7), 7);
    EXPECT_EQ(tagOf(70, "").integerOr(256), 256);
    EXPECT_EQ(failureOf([&] { tagOf(40, "inf").number(); }), "group 40 should hold a number, not \"inf\"");
    EXPECT_THROW(tagOf(70, "1.5").integer(), basic::Error);
    EXPECT_THROW(tagOf(70, "99999999999999999999").integer(), basic::Error);
}

TEST(NumberText, shortestWithAPoint) {
    const std::pair<double, const char*> rows[] = {{1, "1.0"},
                                                   {-0.0, "0.0"},
                                                   {0.1, "0.1"},
                                                   {-2.5, "-2.5"},
                                                   {1e-5, "0.00001"},
                                                   {1e-7, "1.0e-07"},
                                                   {1e15, "1000000000000000.0"},
                                                   {1.5e20, "1.5e+20"},
                                                   {1e300, "1.0e+300"},
                                                   {0.30000000000000004, "0.30000000000000004"}};
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(numberText(value), text);
        EXPECT_EQ(parseNumber(text), value);
    }
    EXPECT_THROW(numberText(std::numeric_limits<double>::quiet_NaN()), basic::Error);
    EXPECT_EQ(handleText(0x2FA0), "2FA0");
    EXPECT_EQ(handleText(0), "0");
}

// A group amid others is read another way than one at the end of its range: both ways find the same.
TEST(TagReader, findsTheSameGroupAmidOthersAndAlone) {
    const Format format;
    const std::string others(120, ' ');
    for (const std::string code :
         {"  0", " 10",  "100", "0",   "10",   "007", "0 1", "1 2",  "  -", " -1",  "-10",
          "999", "1071", "  :", " 1/", "\t 8", "12a", "   ", "   8", "8 ",  "70000"}) {
        for (const std::string end : {"\n", "\r\n", "\r\r\n"}) {
            for (std::size_t length = 0; length < 40; ++length) {
                const std::string value = std::string(length, 'x').append(end == "\n" ? "" : "\r");
                const std::string group = code + end + value + "\n", text = group + "  0\nX\n" + others;
                Tag alone, amid;
                TagReader aloneReader({group, &format, {}}, 0, group.size());
                TagReader amidReader({text, &format, {}}, 0, text.size());
                const TagReader::Step step = aloneReader.advance(alone);
                ASSERT_EQ(amidReader.advance(amid), step) << code << length;
                EXPECT_EQ(amidReader.position(), aloneReader.position()) << code << length;
                EXPECT_EQ(amid.code, alone.code);
                EXPECT_EQ(amid.raw, alone.raw) << code << length;
                EXPECT_EQ(amid.end, alone.end);
            }
        }
    }
}
