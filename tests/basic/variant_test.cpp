#include "basic/variant.h"

#include "basic/error_state.h"
#include "tests/fakes/error_of.h"

#include <gtest/gtest.h>

namespace basic {
namespace {

using fakes::errorOf;

TEST(Variant, TellsItsKind) {
    EXPECT_TRUE(Variant().isEmpty());
    EXPECT_TRUE(Variant(Missing{}).isMissing());
    EXPECT_TRUE(Variant("text").is(Variant::Kind::Text));  // not a Boolean by way of the pointer
    EXPECT_TRUE(Variant(true).is(Variant::Kind::Boolean));
    EXPECT_TRUE(Variant(std::int16_t{1}).is(Variant::Kind::Int16));
    EXPECT_FALSE(Variant(true).isNumber());
    EXPECT_TRUE(Variant(2.5).isNumber());
    // Nothing is empty or an object variant without an object.
    EXPECT_TRUE(Variant().isNothing() && Variant(ObjectRef()).isNothing());
    EXPECT_FALSE(Variant(std::make_shared<Referable>()).isNothing() || Variant(0).isNothing());
}

TEST(Variant, GivesNumbersOfEveryWidth) {
    EXPECT_EQ(Variant(std::int16_t{-7}).number(), -7);
    EXPECT_EQ(Variant(true).number(), -1);
    EXPECT_EQ(Variant().number(), 0);
    EXPECT_EQ(Variant(2.5).integer(), 2);
    EXPECT_EQ(errorOf([] { Variant(3e9).integer(); }), kOverflow);
    EXPECT_EQ(errorOf([] { Variant("1").number(); }), kTypeMismatch);
    EXPECT_EQ(errorOf([] { Variant(Missing{}).number(); }), kTypeMismatch);
}

TEST(Variant, RefusesAnotherKind) {
    EXPECT_EQ(errorOf([] { Variant(1).text(); }), kTypeMismatch);
    EXPECT_EQ(errorOf([] { Variant(1).boolean(); }), kTypeMismatch);
    EXPECT_EQ(errorOf([] { Variant(Doubles{1}).array(); }), kTypeMismatch);
    EXPECT_EQ(errorOf([] { Variant("x").object(); }), kObjectRequired);
}

TEST(Error, CarriesTheStandardDescription) {
    const Error error(kTypeMismatch);
    EXPECT_EQ(error.number(), 13);
    EXPECT_EQ(error.description(), "Type mismatch");
    EXPECT_STREQ(Error(-2147352567, "Escape").what(), "Escape");
}

TEST(ErrorState, SkipsAFailingStatementAndKeepsItsNumber) {
    ErrorState state;
    int reached = 0;
    EXPECT_FALSE(state.skip([] { throw Error(kObjectNotSet); }));
    EXPECT_TRUE(state.skip([&] { ++reached; }));
    EXPECT_EQ(reached, 1);
    EXPECT_EQ(state.number(), kObjectNotSet);  // success doesn't reset it
    state.clear();
    EXPECT_FALSE(state.failed());
}

TEST(ErrorState, CountsAFailedConditionAsTrue) {
    ErrorState state;
    EXPECT_TRUE(state.test([]() -> bool { throw Error(kNoSuchMember); }));
    EXPECT_EQ(state.number(), kNoSuchMember);
    EXPECT_FALSE(state.test([] { return false; }));
}

}  // namespace
}  // namespace basic
