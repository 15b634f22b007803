#include "desk/answers/typed_answer.h"

#include <gtest/gtest.h>
#include <string>

namespace answers {
namespace {

using geometry::Point3;

TEST(AnswersTest, Points) {
    const Point3 base{100, 200, 300};
    const struct {
        const char* text;
        std::optional<Point3> absolute;  ///< what it says without a base point
    } rows[] = {
        {"1,2", Point3{1, 2, 0}},   {"-1.5,+.25,3e2", Point3{-1.5, 0.25, 300}},
        {"0,0,0", Point3{0, 0, 0}}, {"@1,2", Point3{1, 2, 0}},
        {"1", std::nullopt},        {"1,2,3,4", std::nullopt},
        {"1,", std::nullopt},       {",2", std::nullopt},
        {"1, 2", std::nullopt},     {"1;2", std::nullopt},
        {"1,2x", std::nullopt},     {"1,inf", std::nullopt},
        {"nan,1", std::nullopt},    {"1,1e999", std::nullopt},
        {"@", std::nullopt},        {"", std::nullopt},
        {"1,+-2", std::nullopt},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(parsePoint(row.text, std::nullopt), row.absolute) << row.text;
    }
    EXPECT_EQ(parsePoint("@1,-2,3", base), (Point3{101, 198, 303}));
    EXPECT_EQ(parsePoint("1,-2,3", base), (Point3{1, -2, 3})) << "absolute in spite of the base point";
}

TEST(AnswersTest, AnglesAndHandles) {
    EXPECT_DOUBLE_EQ(parseDegrees("180").value(), geometry::kPi);
    EXPECT_DOUBLE_EQ(parseDegrees("<-90.0").value(), -geometry::kPi / 2);
    for (const char* text : {"", "<", "90d", "1,2", "0,5"}) EXPECT_FALSE(parseDegrees(text)) << text;

    EXPECT_EQ(parseHandleAnswer("@1aF"), 0x1AFU);
    EXPECT_EQ(parseHandleAnswer("@FFFFFFFFFFFFFFFF"), ~drawing::Handle{0});
    for (const char* text : {"1AF", "@", "@1G", "@-1", "@1,2", "@10000000000000000"})
        EXPECT_FALSE(parseHandleAnswer(text)) << text;
}

}  // namespace
}  // namespace answers
