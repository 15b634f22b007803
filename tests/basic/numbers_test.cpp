#include "basic/numbers.h"

#include <cmath>
#include <gtest/gtest.h>

namespace basic {
namespace {

const Regional kEnglish = Regional::english();
const Regional kFrench = Regional::french();

template <typename Call>
int errorOf(Call call) {
    try {
        call();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

TEST(ToText, GivesFifteenDigitsWithoutTrailingZeros) {
    EXPECT_EQ(toText(0.5, kEnglish), "0.5");
    EXPECT_EQ(toText(-12.25, kEnglish), "-12.25");
    EXPECT_EQ(toText(0.1 + 0.2, kEnglish), "0.3");
    EXPECT_EQ(toText(1.0 / 3, kEnglish), "0.333333333333333");
    EXPECT_EQ(toText(2.0 / 3, kFrench), "0,666666666666667");
    EXPECT_EQ(toText(1234567.891, kFrench), "1234567,891");  // no thousands separator
    EXPECT_EQ(toText(-0.0, kEnglish), "0");
    EXPECT_EQ(toText(299999999999999.96, kEnglish), "300000000000000");
}

TEST(ToText, TurnsToAnExponentForVeryLargeAndVerySmallValues) {
    EXPECT_EQ(toText(999999999999999.0, kEnglish), "999999999999999");
    EXPECT_EQ(toText(1e15, kEnglish), "1E+15");
    EXPECT_EQ(toText(-1234567890123456.0, kFrench), "-1,23456789012346E+15");
    EXPECT_EQ(toText(0.0001, kEnglish), "0.0001");
    EXPECT_EQ(toText(0.00001, kEnglish), "1E-05");
    EXPECT_EQ(toText(1.5e-5, kFrench), "1,5E-05");
    EXPECT_EQ(toText(1e300, kEnglish), "1E+300");
}

TEST(ToText, GivesAFloatSevenDigits) {
    EXPECT_EQ(toText(0.1f, kEnglish), "0.1");
    EXPECT_EQ(toText(9750.0f, kFrench), "9750");
    EXPECT_EQ(toText(1.0f / 3, kFrench), "0,3333333");
    EXPECT_EQ(toText(1e7f, kEnglish), "1E+07");
}

TEST(ToText, TakesEveryVariantThatHasAText) {
    EXPECT_EQ(toText(Variant("a,b"), kFrench), "a,b");
    EXPECT_EQ(toText(Variant(std::int16_t{-3}), kFrench), "-3");
    EXPECT_EQ(toText(Variant(2.5), kFrench), "2,5");
    EXPECT_EQ(toText(Variant(true), kFrench), "True");
    EXPECT_EQ(toText(Variant(), kFrench), "");
    EXPECT_EQ(errorOf([] { toText(Variant(Doubles{1}), kFrench); }), kTypeMismatch);
    EXPECT_EQ(errorOf([] { toText(Variant(Missing{}), kFrench); }), kTypeMismatch);
}

TEST(ToDouble, ReadsTextUnderPointAndComma) {
    EXPECT_EQ(toDouble(" 12.5\t", kEnglish), 12.5);
    EXPECT_EQ(toDouble("12,5", kEnglish), 125);  // a thousands separator wherever it stands
    EXPECT_EQ(toDouble("1,2,34,.5", kEnglish), 1234.5);
    EXPECT_EQ(toDouble("- 5", kEnglish), -5);
    EXPECT_EQ(toDouble("5 -", kEnglish), -5);
    EXPECT_EQ(toDouble("(1,000)", kEnglish), -1000);
    EXPECT_EQ(toDouble("+.5", kEnglish), 0.5);
    EXPECT_EQ(toDouble("5.", kEnglish), 5);
    EXPECT_EQ(toDouble("1E3", kEnglish), 1000);
    EXPECT_EQ(toDouble("2.5d-1", kEnglish), 0.25);
    EXPECT_EQ(toDouble("&HFF", kEnglish), 255);
    EXPECT_EQ(toDouble(" &o17 ", kEnglish), 15);
    EXPECT_EQ(toDouble("0.1", kEnglish), 0.1);
}

TEST(ToDouble, ReadsTextUnderACommaAndBlanks) {
    EXPECT_EQ(toDouble("12,5", kFrench), 12.5);
    EXPECT_EQ(toDouble("1 234 567,5", kFrench), 1234567.5);
    EXPECT_EQ(toDouble("1\u00A0234", kFrench), 1234);
    EXPECT_EQ(toDouble("-1\u202F234,25", kFrench), -1234.25);
    EXPECT_EQ(toDouble("1,5E-05", kFrench), 1.5e-5);
    EXPECT_FALSE(isNumeric("12.5", kFrench));
    EXPECT_FALSE(isNumeric("1 234", kEnglish));
    const Regional german{",", "."};
    EXPECT_EQ(toDouble("1.234,5", german), 1234.5);
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
    EXPECT_EQ(errorOf([] { toDouble("1E400", kEnglish); }), kOverflow);
    EXPECT_EQ(errorOf([] { toDouble("-1E99999999999999999999", kEnglish); }), kOverflow);
    EXPECT_EQ(errorOf([] { toDouble(std::string(400, '9'), kEnglish); }), kOverflow);
    EXPECT_EQ(toDouble("1E-400", kEnglish), 0);
    EXPECT_EQ(toDouble("0." + std::string(400, '0') + "1", kEnglish), 0);
    EXPECT_EQ(toDouble("0E99999", kEnglish), 0);
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
    EXPECT_EQ(leadingNumber("12b"), 12);
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("b12"), 0);
    EXPECT_EQ(leadingNumber(" 1 6\t1\n5 rue"), 1615);
    EXPECT_EQ(leadingNumber("001"), 1);
    EXPECT_EQ(leadingNumber("2,5"), 2);  // only the point separates, whatever the settings
    EXPECT_EQ(leadingNumber("-2.5.1"), -2.5);
    EXPECT_EQ(leadingNumber("1e2x"), 100);
    EXPECT_EQ(leadingNumber("1Ex"), 1);
    EXPECT_EQ(leadingNumber("&HFF&"), 255);
    EXPECT_EQ(leadingNumber("&HFFFF"), -1);
    EXPECT_EQ(leadingNumber("&HFFFF&"), 65535);
    EXPECT_EQ(leadingNumber("&O17"), 15);
    EXPECT_EQ(errorOf([] { leadingNumber("1e400"); }), kOverflow);
}

TEST(Rounding, GoesToTheEvenNeighbourAndOverflows) {
    EXPECT_EQ(toInt16(0.5), 0);
    EXPECT_EQ(toInt16(1.5), 2);
    EXPECT_EQ(toInt16(-2.5), -2);
    EXPECT_EQ(toInt16(32767.4), 32767);
    EXPECT_EQ(toInt16(-32768.5), -32768);
    EXPECT_EQ(errorOf([] { toInt16(32767.5); }), kOverflow);
    EXPECT_EQ(errorOf([] { toInt16(-32769); }), kOverflow);
    EXPECT_EQ(errorOf([] { toInt16(std::nan("")); }), kOverflow);
    EXPECT_EQ(toInt32(2147483647.25), 2147483647);
    EXPECT_EQ(errorOf([] { toInt32(2147483647.5); }), kOverflow);
}

TEST(Picture, RoundsAHalfAwayFromZeroOnTheDecimalText) {
    EXPECT_EQ(toPicture(2.675, 2, kEnglish), "2.68");
    EXPECT_EQ(toPicture(1.005, 2, kFrench), "1,01");
    EXPECT_EQ(toPicture(12.346, 2, kEnglish), "12.35");
    EXPECT_EQ(toPicture(-0.5, 0, kEnglish), "-1");
    EXPECT_EQ(toPicture(0.5, 0, kEnglish), "1");
    EXPECT_EQ(toPicture(9.999, 2, kEnglish), "10.00");
    EXPECT_EQ(toPicture(0.05, 1, kEnglish), "0.1");
    EXPECT_EQ(toPicture(0.04, 0, kEnglish), "0");
}

TEST(Picture, GivesExactlyTheDecimalsAskedFor) {
    EXPECT_EQ(toPicture(2.5, 3, kFrench), "2,500");
    EXPECT_EQ(toPicture(0.001, 2, kEnglish), "0.00");
    EXPECT_EQ(toPicture(-0.001, 2, kEnglish), "0.00");  // no sign on a zero
    EXPECT_EQ(toPicture(1e20, 1, kEnglish), "100000000000000000000.0");
    EXPECT_EQ(toPicture(1e-7, 8, kEnglish), "0.00000010");
    EXPECT_EQ(toPicture(-1234567.5, 0, kEnglish), "-1234568");
    EXPECT_EQ(toPicture(3, 0, kFrench, true), "3,");
    EXPECT_EQ(toPicture(0, 0, kFrench), "0");
}

}  // namespace
}  // namespace basic
