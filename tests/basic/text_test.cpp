#include "basic/text.h"

#include "basic/code_page.h"
#include "basic/shown_text.h"

#include <gtest/gtest.h>
#include <unordered_set>
#include <vector>

namespace basic {
namespace {

TEST(Utf8, KeepsWellFormedAndIllFormedTexts) {
    // Every length of sequence, then a stray continuation, a cut sequence, overlong forms, a surrogate, too
    // high.
    for (const char* text :
         {"aé€\U0001D11E", "\u0800\uFFFD\U00010000\U0010FFFF", "\u0080\u07FF", "\x80x", "\xE9t\xE9", "\xC3",
          "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF\xFE"}) {
        std::string copy;
        const std::string_view view(text);
        for (std::size_t position = 0; position < view.size();)
            appendCharacter(copy, nextCharacter(view, position));
        EXPECT_EQ(copy, text);
    }
    for (const char32_t whole : {0x80, 0x7FF, 0x800, 0xFFFD, 0x10000, 0x10FFFF}) {
        std::string text;
        appendCharacter(text, whole);
        std::size_t end = 0;
        EXPECT_EQ(nextCharacter(text, end), whole);
        EXPECT_EQ(end, text.size());
    }
    std::size_t position = 0;
    EXPECT_EQ(nextCharacter("€", position), 0x20ACu);
    EXPECT_EQ(position, 3u);
    position = 0;
    nextCharacter("\xE2\x82", position);
    EXPECT_EQ(position, 1u);  // one byte, one character
}

TEST(ShownText, ShowsWhatWouldRuleTheScreenAndKeepsItUnderAnEdit) {
    const std::string raw =
        "caf\u00E9\tA\x1B[2J\x07\r\n\x7F\u009B \x9BxÀ\xE9 abc\u202Edef\u2066\u2028\u200F\u061C";
    EXPECT_EQ(shownText(raw),
              "caf\u00E9\tA^[[2J^G^M\n^?\\x9B \\x9BxÀ\xE9 abc\\U+202Edef\\U+2066\\U+2028\\U+200F\\U+061C");
    struct Edit {
        const char *before, *edited, *meant;
    };
    for (const Edit& edit : {Edit{"a\x1B|b\u202E", "a^[|b\\U+202E", "a\x1B|b\u202E"},
                             {"a\x1B|b\u202E", "a^[|Xb\\U+202E", "a\x1B|Xb\u202E"},
                             {"a\x1B|b\u202E", "a^|b\\U+202E", "a^|b\u202E"},
                             {"a\x1B|b\u202E", "", ""},
                             {"aa", "a", "a"},
                             {"", "^[", "^["}})
        EXPECT_EQ(meantText(edit.before, edit.edited), edit.meant);
}

TEST(Case, MapsTheThreeAlphabets) {
    EXPECT_EQ(toUpper("porte-à-faux éœÿ ß10"), "PORTE-À-FAUX ÉŒŸ ß10");
    EXPECT_EQ(toLower("ÀÉŒŸ×Ž ĹŃ"), "àéœÿ×ž ĺń");
    EXPECT_EQ(toUpper("άλφα ώς"), "ΆΛΦΑ ΏΣ");
    EXPECT_EQ(toLower("ЁЖИКІЏ"), "ёжикіџ");
    EXPECT_EQ(toUpper("\xE9t"), "\xE9T");
    for (char32_t c = 0xA0; c < 0x1F00; ++c) {
        std::string letter;
        appendCharacter(letter, c);
        EXPECT_EQ(toUpper(toLower(toUpper(letter))), toUpper(letter)) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(Case, DoesNotCountInComparisons) {
    EXPECT_TRUE(equalIgnoringCase("Étage", "éTAGE"));
    EXPECT_TRUE(equalIgnoringCase("ΣΑΣ", "σας"));
    EXPECT_FALSE(equalIgnoringCase("Etage", "Étage"));
    EXPECT_FALSE(equalIgnoringCase("ab", "abc"));
    EXPECT_FALSE(equalIgnoringCase("×", "÷"));
    EXPECT_FALSE(equalIgnoringCase("\xE9", "\xC9"));
}

TEST(Order, IsThatOfAUsersLists) {
    const std::vector<std::string> sorted{
        "",     "*U2",  "_arrow", "{x}",  "0",    "12", "2", "Abri", "ADCADD_ZZ", "aérer", "bac", "cœur",
        "cofr", "cote", "coté",   "côte", "côté", "e",  "é", "eb",   "f",         "Ωmega", "Жук", "建"};
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        for (std::size_t k = 0; k < sorted.size(); ++k) {
            const int expected = i < k ? -1 : static_cast<int>(i > k);
            EXPECT_EQ(compareText(sorted[i], sorted[k]), expected) << sorted[i] << " and " << sorted[k];
        }
    }
}

TEST(Order, TellsApartAllButCase) {
    EXPECT_EQ(compareText("PORTE é", "porte É"), 0);
    EXPECT_NE(compareText("œuf", "oeuf"), 0);
    EXPECT_NE(compareText("e\u0301", "é"), 0);
    EXPECT_EQ(compareText("abce\u0301", "abcE\u0301"), 0);
    EXPECT_LT(compareText("abce\u0301b", "abcec"), 0);  // an accent of its own is no letter
    EXPECT_NE(compareText("a\xE9", "a\xEA"), 0);
}

TEST(Names, HashAndCompareWithoutAsciiCase) {
    const std::unordered_set<std::string, NameHash, NameEqual> names{"Door", "WINDOW"};
    EXPECT_TRUE(names.contains(std::string_view("DOOR")));
    EXPECT_TRUE(names.contains(std::string_view("window")));
    EXPECT_FALSE(names.contains(std::string_view("doors")));
    EXPECT_FALSE(NameEqual()("[", "{"));  // 32 apart and no letters
}

TEST(Text, TrimsAndReplaces) {
    EXPECT_EQ(trim("  a b  "), "a b");
    EXPECT_EQ(trim("   "), "");
    EXPECT_EQ(trim("\ta"), "\ta");
    EXPECT_EQ(replaceAll("aXXbXXX", "XX", "Y"), "aYbYX");
    EXPECT_EQ(replaceAll("\\\\", "\\", "\\\\"), "\\\\\\\\");
}

TEST(CodePage, TranslatesEveryByteBothWays) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
    EXPECT_EQ(toCodePage(fromCodePage(bytes)), bytes);
    EXPECT_EQ(fromCodePage("N\xB0 \x80 \x9C \x9F \x81"), "N° € œ Ÿ \u0081");
}

TEST(CodePage, AsksForWhatItLacks) {
    EXPECT_EQ(toCodePage("Ж→œ\u0080"), "??\x9C?");
    EXPECT_EQ(toCodePage("\xE9t\xE9"), "\xE9t\xE9");

    // A system of another one: 0xE9 is a Cyrillic letter, and the letter of before is lost.
    CodePage cyrillic = windows1252();
    cyrillic[0xE9 - 0x80] = U'й';
    useCodePage(cyrillic);
    EXPECT_EQ(fromCodePage("\xE9\x80"), "й€");
    EXPECT_EQ(toCodePage("йé€"), "\xE9?\x80");
    useCodePage(windows1252());
}

}  // namespace
}  // namespace basic
