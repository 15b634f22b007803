#include "desk/dxf/tag.h"

#include "desk/dxf/number_text.h"
#include "support.h"

using namespace dxf;

namespace {

Tag tagOf(int code, std::string_view raw, const Format& format) {
    return {code, raw, 0, raw.size(), &format};
}

}  // namespace

TEST(Codes, typesByRange) {
    EXPECT_EQ(valueType(1), ValueType::String);
    EXPECT_EQ(valueType(5), ValueType::Handle);
    EXPECT_EQ(valueType(59), ValueType::Double);
    EXPECT_EQ(valueType(60), ValueType::Int16);
    EXPECT_EQ(valueType(90), ValueType::Int32);
    EXPECT_EQ(valueType(160), ValueType::Int64);
    EXPECT_EQ(valueType(290), ValueType::Bool);
    EXPECT_EQ(valueType(310), ValueType::Chunk);
    EXPECT_EQ(valueType(1071), ValueType::Int32);
    EXPECT_EQ(valueType(-3), ValueType::String);
    EXPECT_EQ(handleRole(360), HandleRole::HardOwner);
    EXPECT_EQ(handleRole(1005), HandleRole::SoftPointer);
    EXPECT_EQ(handleRole(70), HandleRole::None);
}

TEST(Tag, asciiValues) {
    const Format format;
    EXPECT_DOUBLE_EQ(tagOf(10, "  -1.5E+02 ", format).number(), -150);
    EXPECT_DOUBLE_EQ(tagOf(10, "+.5", format).number(), .5);
    EXPECT_EQ(tagOf(70, "     6", format).integer(), 6);
    EXPECT_EQ(tagOf(70, "3.0", format).integer(), 3);
    EXPECT_EQ(tagOf(5, " 2fA", format).handle(), 0x2FAu);
    EXPECT_EQ(tagOf(5, "no", format).handle(), 0u);
    EXPECT_EQ(tagOf(40, "1,5", format).numberOr(7), 7);
    EXPECT_EQ(tagOf(70, "", format).integerOr(256), 256);
    EXPECT_EQ(failureOf([&] { tagOf(40, "inf", format).number(); }),
              "group 40 should hold a number, not \"inf\"");
    EXPECT_THROW(tagOf(70, "1.5", format).integer(), basic::Error);
    EXPECT_THROW(tagOf(70, "99999999999999999999", format).integer(), basic::Error);
}

TEST(NumberText, shortestWithAPoint) {
    const std::pair<double, const char*> rows[] = {
        {1, "1.0"},
        {-0.0, "0.0"},
        {0.1, "0.1"},
        {-2.5, "-2.5"},
        {1e-5, "0.00001"},
        {1e-7, "1.0e-07"},
        {1e15, "1000000000000000.0"},
        {1.5e20, "1.5e+20"},
        {1e300, "1.0e+300"},
        {0.30000000000000004, "0.30000000000000004"},
    };
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(numberText(value), text);
        EXPECT_EQ(parseNumber(text), value);
    }
    EXPECT_THROW(numberText(std::numeric_limits<double>::quiet_NaN()), basic::Error);
    EXPECT_EQ(handleText(0x2FA0), "2FA0");
    EXPECT_EQ(handleText(0), "0");
}
