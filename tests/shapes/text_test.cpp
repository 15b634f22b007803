#include "desk/shapes/mtext_layout.h"
#include "desk/shapes/read_text.h"
#include "tests/drawing/plain_drawing.h"

namespace shapes {
namespace {

using drawing::PlainDrawing;

/// The pieces of an MTEXT 1 high, "text@x,y" in hundredths.
std::string laidOut(const std::string& content, double width = 0, int column = 0) {
    MTextFormat format;
    format.width = width;
    format.column = column;
    std::string result;
    for (const TextPiece& piece : layOutMText(content, format).pieces) {
        const auto hundredths = [](double value) { return std::to_string(std::lround(value * 100)); };
        result +=
            piece.text + "@" + hundredths(piece.frame.origin.x) + "," + hundredths(piece.frame.origin.y);
        if (piece.frame.yAxis.y != 1) result += "h" + hundredths(piece.frame.yAxis.y);
        if (piece.underlined) result += "u";
        if (piece.overlined) result += "o";
        if (piece.color) result += "c" + std::to_string(*piece.color & 0xFFFFFF);
        result += " ";
    }
    return result;
}

TEST(MTextTest, CodesParagraphsAndWrapping) {
    EXPECT_EQ(laidOut("AB\\PC"), "AB@0,-100 C@0,-267 ");
    EXPECT_EQ(laidOut("{\\H2x;\\C1;A}B"), "A@0,-200h200c1 B@186,-200 ");
    EXPECT_EQ(laidOut("\\LA\\lB\\~C\\\\"), "A@0,-100u B@93,-100 \u00A0@186,-100 C@225,-100 \\@326,-100 ");
    EXPECT_EQ(laidOut("AAA AAA", 4), "AAA@0,-100 AAA@0,-267 ");
    EXPECT_EQ(laidOut("AAA", 10, 2), "AAA@721,-100 ");
    EXPECT_EQ(laidOut("\\A1;%%d\\U+00E9"), "\u00B0@0,-100 \u00E9@84,-100 ");
    EXPECT_EQ(laidOut("\\S1/2;"), "1@0,-35h70 2@0,-135h70o ");
}

TEST(LineTextTest, PiecesStandWhereTheTextIsAlignedAndFollowItsCodes) {
    const auto drawing = PlainDrawing()
                             .entity("TEXT 8 0 10 0 20 0 11 10 21 0 40 2 1 %%uAA%%uA 72 2")
                             .entity("TEXT 8 0 10 0 20 0 11 30 21 0 40 2 1 AAA 72 5")
                             .make();
    const auto ids = modelEntities(*drawing);
    const auto pieces = readTexts(*drawing, TextStyles(*drawing), ids[0], true);
    ASSERT_EQ(pieces.size(), 2u);
    const double letter = textAdvance("A", {}) * 2;
    EXPECT_EQ(pieces[0].text, "AA");
    EXPECT_TRUE(pieces[0].underlined);
    EXPECT_FALSE(pieces[1].underlined);
    drawing::expectNear(pieces[0].frame.origin, {10 - 3 * letter, 0, 0});
    drawing::expectNear(pieces[1].frame.apply({pieces[1].width, 1, 0}), {10, 2, 0});
    // Fitted between its points it fills the whole length at its own height.
    const auto fitted = readTexts(*drawing, TextStyles(*drawing), ids[1], true);
    drawing::expectNear(fitted[0].frame.apply({fitted[0].width, 1, 0}), {30, 2, 0});
}

}  // namespace
}  // namespace shapes
