#include "desk/drawing/wildcard.h"

#include <gtest/gtest.h>
#include <string>

using drawing::hasWildcard;
using drawing::matchesWildcard;
using drawing::Wildcard;

namespace {

struct Case {
    const char* pattern;
    const char* text;
    bool matches;
};

TEST(WildcardTest, FollowsTheHostsRules) {
    const Case cases[] = {
        {"DOOR_80", "door_80", true},
        {"DOOR_80", "DOOR_800", false},
        {"", "", true},
        {"", "A", false},
        {"AcDbBlockreference", "AcDbBlockReference", true},
        // One character each.
        {"DOOR_##", "DOOR_80", true},
        {"DOOR_##", "DOOR_8", false},
        {"@OOR", "DOOR", true},
        {"@OOR", "1OOR", false},
        {"@", "é", true},
        {"A.B", "A-B", true},
        {"A.B", "AxB", false},
        {"A?B", "AéB", true},
        {"A?B", "AB", false},
        // Runs.
        {"*", "", true},
        {"D*_*0", "DOOR_80", true},
        {"D*_*0", "DOOR_81", false},
        {"*OO*", "DOOOR", true},
        {"**R", "DOOR", true},
        {"a*b*c", "aXbXbXc", true},
        // Alternatives and negation, which belongs to its own pattern.
        {"WINDOW,DOOR*", "DOOR_80", true},
        {"WINDOW,DOOR*", "TABLE", false},
        {"~DOOR*", "TABLE", true},
        {"~DOOR*", "DOOR_80", false},
        {"~DOOR*,DOOR_80", "DOOR_80", true},
        {"A~B", "A~B", true},
        // Sets.
        {"DOOR_[789]0", "DOOR_80", true},
        {"DOOR_[~789]0", "DOOR_80", false},
        {"DOOR_[~789]0", "DOOR_60", true},
        {"[a-f]", "E", true},
        {"[f-a]", "e", true},
        {"[a-f]", "G", false},
        {"[a-]", "-", true},
        {"[-a]", "-", true},
        {"[]a]", "]", true},
        {"[a`]]", "]", true},
        {"[,#]", "#", true},
        {"[,#]", "7", false},
        {"A[B", "A[B", true},
        // Taken literally.
        {"`*U12", "*U12", true},
        {"`*U12", "AU12", false},
        {"A`,B", "A,B", true},
        {"A`", "A`", true},
        // Case beyond ASCII.
        {"PIÈCE*", "pièce 1", true},
    };
    for (const Case& test : cases) {
        EXPECT_EQ(matchesWildcard(test.pattern, test.text), test.matches)
            << '"' << test.pattern << "\" against \"" << test.text << '"';
    }
}

TEST(WildcardTest, KnowsPlainNames) {
    for (const char* plain : {"DOOR_80", "A-B", "A~B", "A]", "", "pièce 1"}) EXPECT_FALSE(hasWildcard(plain));
    for (const char* wild : {"A*", "A?", "A#", "@", "A.B", "~A", "[A", "A,B", "`A"})
        EXPECT_TRUE(hasWildcard(wild));
}

// Naive backtracking would take 2^40 steps here.
TEST(WildcardTest, ManyRunsStayQuick) {
    std::string pattern;
    for (int i = 0; i < 40; ++i) pattern += "*a";
    const Wildcard wildcard(pattern + "b");
    EXPECT_FALSE(wildcard.matches(std::string(20000, 'a')));
    EXPECT_TRUE(wildcard.matches(std::string(20000, 'a') + "b"));
}

}  // namespace
