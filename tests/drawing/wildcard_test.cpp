#include "desk/drawing/wildcard.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace drawing {
namespace {

TEST(WildcardTest, FollowsTheHostsRules) {
    struct Row {
        const char* pattern;
        std::vector<const char*> matches, misses;
    };
    const Row rows[] = {
        {"DOOR_80", {"door_80"}, {"DOOR_800"}},
        {"", {""}, {"A"}},
        // One character each.
        {"DOOR_##", {"DOOR_80"}, {"DOOR_8"}},
        {"@OOR", {"DOOR", "éOOR"}, {"1OOR"}},
        {"A.B", {"A-B"}, {"AxB"}},
        {"A?B", {"AéB"}, {"AB"}},
        // Runs.
        {"*", {""}, {}},
        {"D*_*0", {"DOOR_80"}, {"DOOR_81"}},
        {"**OO*", {"DOOOR"}, {}},
        {"a*b*c", {"aXbXbXc"}, {}},
        // Alternatives and negation, which belongs to its own pattern.
        {"WINDOW,DOOR*", {"DOOR_80"}, {"TABLE"}},
        {"~DOOR*", {"TABLE"}, {"DOOR_80"}},
        {"~DOOR*,DOOR_80", {"DOOR_80"}, {}},
        {"A~B", {"A~B"}, {}},
        // Sets.
        {"DOOR_[789]0", {"DOOR_80"}, {"DOOR_60"}},
        {"DOOR_[~789]0", {"DOOR_60"}, {"DOOR_80"}},
        {"[a-f]", {"E"}, {"G"}},
        {"[f-a]", {"e"}, {}},
        {"[a-]", {"-"}, {}},
        {"[-a]", {"-"}, {}},
        {"[]a]", {"]"}, {}},
        {"[a`]]", {"]"}, {}},
        {"[,#]", {"#"}, {"7"}},
        {"A[B", {"A[B"}, {}},
        // Taken literally.
        {"`*U12", {"*U12"}, {"AU12"}},
        {"A`,B", {"A,B"}, {}},
        {"A`", {"A`"}, {}},
        // Case beyond ASCII.
        {"PIÈCE*", {"pièce 1"}, {}},
    };
    for (const Row& row : rows) {
        for (const char* text : row.matches) EXPECT_TRUE(matchesWildcard(row.pattern, text)) << row.pattern;
        for (const char* text : row.misses) EXPECT_FALSE(matchesWildcard(row.pattern, text)) << row.pattern;
    }
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
}  // namespace drawing
