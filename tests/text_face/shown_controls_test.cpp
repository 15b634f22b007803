#include "faces/text/shown_controls.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

TEST(ShownControls, SendsNoControlCharacterToTheTerminal) {
    std::ostringstream output;
    {
        const text_face::ShownControls shown(output);
        output << "caf\u00E9\tA\u00C2"
               << "\x1B[2J" << '\x07' << "\r\n\x7F\u009B"
               << "31m \xC2"
               << "\x9D"
               << "\xC2\xC2z\n"
               << "\xE2\x80"
               << "\xAE€\xE2"
               << "\x1B\n"
               << std::flush << "\xC2";
    }
    output << "\x1B";
    EXPECT_EQ(output.str(),
              "caf\u00E9\tA\u00C2^[[2J^G^M\n^?\\x9B31m \\x9D\xC2\xC2z\n\\U+202E€\xE2^[\n\xC2\x1B");
}

}  // namespace
