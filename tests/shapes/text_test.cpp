#include "desk/shapes/mtext_layout.h"
#include "desk/shapes/read_text.h"
#include "tests/drawing/plain_drawing.h"

#include <cmath>
#include <sstream>

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
        if (piece.struckOut) result += "k";
        if (piece.font.bold) result += "b";
        if (piece.font.italic) result += "i";
        if (piece.font.kind != TextFont::Kind::Sans)
            result += piece.font.kind == TextFont::Kind::Mono ? "M" : "S";
        if (piece.frame.xAxis.x != piece.frame.yAxis.y) result += "w" + hundredths(piece.frame.xAxis.x);
        if (piece.frame.yAxis.x != 0) result += "q" + hundredths(piece.frame.yAxis.x);
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

TEST(MTextTest, EachCodeSetsWhatFollowsInItsBraces) {
    const std::pair<const char*, const char*> rows[] = {
        {"\\fArial|b1|i1|c0;A\\FTimes;A\\fCourier New|b0|i0;A", "A@0,-100bi A@99,-100S A@189,-100M "},
        {"\\W2;A\\W0.5x;A\\W0;A", "A@0,-100w200 A@186,-100 A@279,-100 "},
        {"\\T2;AA\\T1;A", "AA@0,-100 A@373,-100 "},
        {"\\Q45;A", "A@0,-100q100 "},
        {"\\C0;A\\C256;A\\C255;A", "A@0,-100 A@93,-100 A@186,-100c255 "},
        {"\\c255;A\\c16711680;A\\c65280;A", "A@0,-100c16711680 A@93,-100c255 A@186,-100c65280 "},
        {"\\OA\\oB\\KA\\kB", "A@0,-100o B@93,-100 A@186,-100k B@279,-100 "},
        {"{\\LA{\\HB;B}C}D", "A@0,-100u B@93,-100u C@186,-100u D@287,-100 "},
        {"}A", "A@0,-100 "},
        {"A^IB^JC^D", "A@0,-100 B@493,-100 C@0,-267 ^@101,-267 D@166,-267 "},
        {"A\tB\nC", "A@0,-100 B@493,-100 C@0,-267 "},
        {"\\S1^2;A", "1@0,-35h70 2@0,-135h70 A@54,-100 "},
        {"\\S1#22;", "1@27,-35h70 22@0,-135h70o "},
        {"\\SA", "A@0,-35h70 "},
        {"\\pi1,l2;A\\PB", "A@300,-100 B@300,-267 "},
        {"\\pqc;A\\pqr;B\\PC", "A@407,-100 B@500,-100 C@899,-267 "},
        {"\\pxqc;A", "A@453,-100 "},
        {"\\pqj,t5;A", "A@0,-100 "},
        {"\\H0.5;A\\H2;A\\PA", "A@0,-200h50 A@47,-200h200 A@0,-533h200 "},
        {"A\\XB\\NC\\", "A@0,-100 B@0,-267 C@0,-433 \\@101,-433 "},
        {"%%C%%p%%%%%065A", "\u2300@0,-100 \u00B1@84,-100 %@168,-100 A@292,-100 A@385,-100 "},
        {"%%7\\U+41", "%@0,-100 %@124,-100 7@248,-100 U@326,-100 +41@427,-100 "},
        {"\\LA B\\l C", "A@0,-100u  @93,-100u B@132,-100u C@264,-100 "},
    };
    for (const auto& [text, told] : rows) EXPECT_EQ(laidOut(text, 10), told) << text;
    EXPECT_EQ(laidOut("A", 10, 1), "A@453,-100 ");
    EXPECT_EQ(laidOut("AAA\\pqc;  AAA AAA", 4), "AAA@0,-100 AAA@60,-267 AAA@60,-433 ");
    EXPECT_EQ(laidOut("AAAAAAAA A", 4), "AAAAAAAA@0,-100 A@0,-267 ");
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

TEST(TextStyles, TheirFontsComeFromTheFileOrTheExtendedData) {
    std::string text = PlainDrawing(drawing::Kind::R2000).text();
    text.insert(text.find(drawing::groups("0 STYLE")),
                drawing::groups("0 STYLE 2 Mono 41 0.5 50 45 3 consola.ttf "
                                "0 STYLE 2 Book 3 x 1001 ACAD 1000 Times 1071 50331648 "
                                "0 STYLE 2 Bold 3 arialbd.ttf 41 0 1001 OTHER 1000 Times 1071 16777216 "
                                "0 STYLE 2 Slant 1001 ACAD 1071 16777216"));
    const auto drawing = drawing::Drawing::parse(text, "styles.dxf");
    const TextStyles styles(*drawing);
    const auto told = [&](const char* name) {
        const TextStyle& style = styles.find(name);
        return std::to_string(static_cast<int>(style.font.kind)) + (style.font.bold ? "b" : "") +
               (style.font.italic ? "i" : "") + " " + std::to_string(std::lround(style.widthFactor * 100)) +
               " " + std::to_string(std::lround(style.oblique * 1000));
    };
    const auto kind = [](TextFont::Kind font) { return std::to_string(static_cast<int>(font)); };
    EXPECT_EQ(told("MONO"), kind(TextFont::Kind::Mono) + " 50 785");
    EXPECT_EQ(told("book"), kind(TextFont::Kind::Serif) + "bi 100 0");
    EXPECT_EQ(told("Bold"), kind(TextFont::Kind::Sans) + "b 100 0");
    EXPECT_EQ(told("Slant"), kind(TextFont::Kind::Sans) + "i 100 0");
    EXPECT_EQ(told(""), told("Standard"));
}

TEST(TextGround, StandsAboutTheTextAsItsGroupsSay) {
    struct Row {
        const char* words;
        const char* told;
    };
    const Row rows[] = {{"45 1.5", "none"},
                        {"90 1 45 1.5 63 3", "filled c3 0,-1.5 2,3"},
                        {"90 1 421 255", "filled c255 0,-1.5 2,3"},
                        {"90 3 45 2 63 3", "filled -1,-2.5 3,4"},
                        {"90 16 45 1", "framed 1,-0.5 1,2"},
                        {"90 17 45 1", "filled framed 1,-0.5 1,2"}};
    for (const Row& row : rows) {
        const auto drawing =
            PlainDrawing().entity(std::string("MTEXT 8 0 10 1 20 2 40 2 41 0 71 1 1 A ") + row.words).make();
        const auto ground =
            readMTextGround(drawing->tags(drawing::modelEntities(*drawing)[0]), TextStyles(*drawing));
        std::ostringstream told;
        if (!ground) {
            told << "none";
        } else {
            if (ground->isFilled) told << "filled ";
            if (ground->color) told << "c" << (*ground->color & 0xFFFFFF) << " ";
            if (ground->isFramed) told << "framed ";
            const Point3 low = startPoint(ground->border[0]), high = startPoint(ground->border[2]);
            told << low.x << "," << low.y << " "
                 << std::round((high.x - 2 * textAdvance("A", {})) * 1e6) / 1e6 << "," << high.y;
        }
        EXPECT_EQ(told.str(), row.told);
    }
}

}  // namespace
}  // namespace shapes
