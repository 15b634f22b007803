#include "basic/wide.h"

#include <gtest/gtest.h>

namespace basic {
namespace {

TEST(Wide, KeepsEveryText) {
    // Latin, beyond the first plane, a byte that is no UTF-8, a NUL.
    for (const std::string& text : {std::string("Fen\u00EAtre \u20AC"), std::string("\U0001F6AA!"),
                                    std::string("a\xE9z"), std::string("a\0b", 3)})
        EXPECT_EQ(fromWide(toWide(text)), text);
    EXPECT_EQ(toWide("\u00E9\U0001F6AA"), std::wstring(L"\u00E9") + wchar_t(0xD83D) + wchar_t(0xDEAA));
}

}  // namespace
}  // namespace basic
