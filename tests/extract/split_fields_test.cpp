#include "extract/split_fields.h"

#include "tests/fakes/session_world.h"

#include <gtest/gtest.h>

namespace extract {
namespace {

TEST(SplitFields, GivesOneFieldMoreThanThereAreDelimiters) {
    EXPECT_EQ(SplitFields("\t", ""), Fields{""});
    EXPECT_EQ(SplitFields("\t", "a\tb"), (Fields{"a", "b"}));
    EXPECT_EQ(SplitFields("\t", "\ta\t\t"), (Fields{"", "a", "", ""}));
    EXPECT_EQ(SplitFields("°", "N°X°é"), (Fields{"N", "X", "é"}));
    EXPECT_EQ(SplitFields("::", "a::b"), Fields{"a::b"}) << "more than one character never matches";
    EXPECT_EQ(SplitFields("", "ab"), Fields{"ab"});
}

TEST(SplitFields, CountsCharactersAndFieldsInSixteenBits) {
    std::string accents;
    for (int i = 0; i < 32767; ++i) accents += "é";
    EXPECT_EQ(SplitFields("\t", accents).size(), 1U) << "characters, not bytes";
    EXPECT_EQ(SplitFields("\t", std::string(32766, '\t')).size(), 32767U);
    EXPECT_EQ(fakes::errorOf([] { SplitFields("\t", std::string(32767, '\t')); }), basic::kOverflow);
    Fields fields{"kept"};
    EXPECT_EQ(fakes::errorOf([&] { splitFieldsInto(fields, "\t", accents + "é"); }), basic::kOverflow);
    EXPECT_EQ(fields, Fields{"kept"});
}

}  // namespace
}  // namespace extract
