#include "basic/numbers.h"

#include "tests/fakes/error_of.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace basic {
namespace {

const Regional kEnglish = Regional::english();
const Regional kFrench = Regional::french();

using fakes::errorOf;

/// A value with its text, or a text with its value, where the point or the comma separates.
template <typename From, typename To>
using Rows = std::vector<std::pair<From, To>>;

void expectTexts(const Regional& regional, const Rows<Variant, const char*>& rows) {
    for (const auto& [value, text] : rows) EXPECT_EQ(toText(value, regional), text);
}
void expectValues(const Regional& regional, const Rows<std::string, double>& rows) {
    for (const auto& [text, value] : rows) EXPECT_EQ(toDouble(text, regional), value) << text;
}

TEST(ToText, GivesFifteenDigitsWithoutTrailingZeros) {
    expectTexts(kEnglish, {{0.5, "0.5"},
                           {-12.25, "-12.25"},
                           {0.1 + 0.2, "0.3"},
                           {1.0 / 3, "0.333333333333333"},
                           {-0.0, "0"},
                           {299999999999999.96, "300000000000000"}});
    expectTexts(kFrench,
                {{2.0 / 3, "0,666666666666667"}, {1234567.891, "1234567,891"}});  // no thousands separator
}

TEST(ToText, TurnsToAnExponentForVeryLargeAndVerySmallValues) {
    expectTexts(kEnglish, {{999999999999999.0, "999999999999999"},
                           {1e15, "1E+15"},
                           {0.0001, "0.0001"},
                           {0.00001, "1E-05"},
                           {1e300, "1E+300"}});
    expectTexts(kFrench, {{-1234567890123456.0, "-1,23456789012346E+15"}, {1.5e-5, "1,5E-05"}});
}

TEST(ToText, GivesAFloatSevenDigits) {
    EXPECT_EQ(toText(0.1f, kEnglish), "0.1");
    EXPECT_EQ(toText(9750.0f, kFrench), "9750");
    EXPECT_EQ(toText(1.0f / 3, kFrench), "0,3333333");
    EXPECT_EQ(toText(1e7f, kEnglish), "1E+07");
}

TEST(ToText, TakesEveryVariantThatHasAText) {
    expectTexts(kFrench,
                {{"a,b", "a,b"}, {std::int16_t{-3}, "-3"}, {2.5, "2,5"}, {true, "True"}, {Variant(), ""}});
    EXPECT_EQ(errorOf([] { toText(Variant(Doubles{1}), kFrench); }), kTypeMismatch);
    EXPECT_EQ(errorOf([] { toText(Variant(Missing{}), kFrench); }), kTypeMismatch);
}

TEST(ToDouble, ReadsTextUnderTheSettings) {
    // A thousands separator counts wherever it stands.
    expectValues(kEnglish, {{" 12.5\t", 12.5},
                            {"12,5", 125},
                            {"1,2,34,.5", 1234.5},
                            {"- 5", -5},
                            {"5 -", -5},
                            {"(1,000)", -1000},
                            {"+.5", 0.5},
                            {"5.", 5},
                            {"1E3", 1000},
                            {"2.5d-1", 0.25},
                            {"&HFF", 255},
                            {" &o17 ", 15},
                            {"0.1", 0.1}});
    expectValues(kFrench, {{"12,5", 12.5},
                           {"1 234 567,5", 1234567.5},
                           {"1\u00A0234", 1234},
                           {"-1\u202F234,25", -1234.25},
                           {"1,5E-05", 1.5e-5}});
    const Regional german{",", "."};
    expectValues(german, {{"1.234,5", 1234.5}});
    EXPECT_FALSE(isNumeric("12.5", kFrench));
    EXPECT_FALSE(isNumeric("1 234", german));
}

TEST(ToDouble, RefusesWhatIsNoNumber) {
    for (const char* text :
         {"",     "  ", "-",  ".",  ",",   "abc", "12b", "1.2.3", "1.2,3", "--5",       "-5-",
          "(-5)", "(5", "5)", "1E", "1E+", "E5",  "&H",  "&HG",   "1 2",   "Conserver", "\xE9"}) {
        EXPECT_FALSE(isNumeric(text, kEnglish)) << text;
        EXPECT_EQ(errorOf([&] { toDouble(text, kEnglish); }), kTypeMismatch) << text;
    }
}

TEST(ToDouble, MeetsTheLimitsOfAFloat) {
    for (const std::string& text :
         {std::string("1E400"), std::string("-1E99999999999999999999"), std::string(400, '9')})
        EXPECT_EQ(errorOf([&] { toDouble(text, kEnglish); }), kOverflow) << text;
    expectValues(kEnglish, {{"1E-400", 0}, {"0." + std::string(400, '0') + "1", 0}, {"0E99999", 0}});
}

TEST(ToDouble, TakesVariantsAsTheyAre) {
    EXPECT_EQ(toDouble(Variant("2,5"), kFrench), 2.5);
    EXPECT_EQ(toDouble(Variant(true), kFrench), -1);
    EXPECT_EQ(toDouble(Variant(), kFrench), 0);
    EXPECT_EQ(errorOf([] { toDouble(Variant(""), kFrench); }), kTypeMismatch);
    EXPECT_EQ(errorOf([] { toDouble(Variant(ObjectRef()), kFrench); }), kTypeMismatch);
}

TEST(ToDouble, ReadsBackWhatToTextGives) {
    double value = 1.0 / 7;
    for (int i = 0; i < 600; ++i, value *= -3.1) {
        for (const Regional& regional : {kEnglish, kFrench}) {
            const std::string text = toText(value, regional);
            EXPECT_EQ(toText(toDouble(text, regional), regional), text);
        }
    }
}

TEST(LeadingNumber, StopsAtTheFirstForeignCharacter) {
    // Only the point separates, whatever the settings; nothing inside is passed over.
    const Rows<const char*, double> rows{
        {"12b", 12}, {"", 0},     {"b12", 0},       {" 1 6 rue", 1}, {"001", 1}, {"2,5", 2}, {"1d2", 1},
        {"- 1", 0},  {"1\t2", 1}, {"-2.5.1", -2.5}, {"1e2x", 100},   {"1Ex", 1}, {"&HFF", 0}};
    for (const auto& [text, value] : rows) EXPECT_EQ(leadingNumber(text), value) << text;
    EXPECT_EQ(errorOf([] { leadingNumber("1e400"); }), kOverflow);
}

TEST(Rounding, GoesToTheEvenNeighbourAndOverflows) {
    const Rows<double, int> rows{{0.5, 0}, {1.5, 2}, {-2.5, -2}, {32767.4, 32767}, {-32768.5, -32768}};
    for (const auto& [value, rounded] : rows) EXPECT_EQ(toInt16(value), rounded);
    for (const double value : {32767.5, -32769.0, std::nan("")})
        EXPECT_EQ(errorOf([&] { toInt16(value); }), kOverflow) << value;
    EXPECT_EQ(toInt32(2147483647.25), 2147483647);
    EXPECT_EQ(errorOf([] { toInt32(2147483647.5); }), kOverflow);
}

TEST(Picture, RoundsAHalfAwayFromZeroOnTheDecimalTextToTheDecimalsAskedFor) {
    const struct {
        double value;
        int decimals;
        const char* text;
    } rows[] = {{2.675, 2, "2.68"},
                {1.005, 2, "1.01"},
                {12.346, 2, "12.35"},
                {-0.5, 0, "-1"},
                {0.5, 0, "1"},
                {9.999, 2, "10.00"},
                {0.05, 1, "0.1"},
                {0.04, 0, "0"},
                {2.5, 3, "2.500"},
                {0.001, 2, "0.00"},
                {-0.001, 2, "0.00"},
                {1e20, 1, "100000000000000000000.0"},
                {1e-7, 8, "0.00000010"},
                {-1234567.5, 0, "-1234568"},
                {0, 0, "0"}};
    for (const auto& row : rows) EXPECT_EQ(toPicture(row.value, row.decimals, kEnglish), row.text);
    EXPECT_EQ(toPicture(1.005, 2, kFrench), "1,01");
    EXPECT_EQ(toPicture(3, 0, kFrench, true), "3,");
}

}  // namespace
}  // namespace basic
