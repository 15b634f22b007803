#include "desk/picture/picture.h"

#include "desk/picture/dashes.h"
#include "drawn.h"

namespace picture {
namespace {

using drawing::PlainDrawing;
using Lines = std::vector<std::string>;

TEST(PictureTest, ColoursComeFromEntityLayerBlockAndReference) {
    PlainDrawing plain;
    plain.block("IN").inBlock("LINE 8 0 10 0 20 0 11 1 21 0");  // layer 0: the reference's layer
    plain.inBlock("LINE 8 0 62 0 10 0 20 1 11 1 21 1");         // ByBlock
    plain.inBlock("LINE 8 WALLS 10 0 20 2 11 1 21 2").inBlock("LINE 8 OFF 10 0 20 3 11 1 21 3");
    plain.block("OUT").inBlock("INSERT 2 IN 8 0 62 0 10 0 20 0");
    plain.entity("INSERT 2 OUT 8 LOCKED 62 5 10 10 20 0")
        .entity("LINE 8 WALLS 420 66051 62 1 10 0 20 9 11 1 21 9");
    EXPECT_EQ(drawn(*plain.make()),
              (Lines{"ff0000 10,0 11,0", "0000ff 10,1 11,1", "00ff00 10,2 11,2", "010203 0,9 1,9"}));
}

TEST(PictureTest, TransparencyComesFromEntityLayerAndReference) {
    PlainDrawing plain;
    plain.layer("30", "GLASS 70 0 62 4 1001 AcCmTransparency 1071 33554559");  // 0x0200007F
    plain.block("B").inBlock("LINE 8 0 440 16777216 10 0 20 0 11 1 21 0");     // ByBlock
    plain.entity("SOLID 8 GLASS 10 0 20 0 11 1 21 0 12 0 22 1 13 1 23 1");
    plain.entity("INSERT 2 B 8 0 440 33554483 10 0 20 5")
        .entity("LINE 8 GLASS 440 33554687 10 0 20 9 11 1 21 9");
    EXPECT_EQ(drawn(*plain.make()),
              (Lines{"fill1 00ffff 50% 0,0 1,0 1,1 0,1", "fore 20% 0,5 1,5", "00ffff 0,9 1,9"}));
}

TEST(PictureTest, AnMTextCoversWhatLiesBehindIt) {
    PlainDrawing plain;
    const std::string text = " 10 0 20 10 40 2 71 1 1 I 45 1.5 ";
    plain.entity("MTEXT 8 0" + text + "90 1 63 2").entity("MTEXT 8 0" + text + "90 19");
    const Lines lines = drawn(*plain.make());
    ASSERT_EQ(lines.size(), 5u);
    EXPECT_EQ(lines[0].substr(0, 16), "fill1 ffff00 -1,");
    EXPECT_EQ(lines[2].substr(0, 6), "cover ");
    EXPECT_EQ(lines[3].substr(0, 8), "fore -1,");
}

TEST(PictureTest, ALinetypeBeginsAnewAtEachVertexUnlessItRunsThrough) {
    PlainDrawing plain(drawing::Kind::R2000);
    plain.entity("LWPOLYLINE 5 60 8 0 6 HIDDEN 90 3 70 0 10 0 20 0 10 8 20 0 10 8 20 8");
    plain.entity("LWPOLYLINE 5 61 8 0 6 HIDDEN 90 3 70 128 10 0 20 0 10 8 20 0 10 8 20 8");
    const auto drawing = plain.make();
    Picture picture(*drawing);
    const DisplayList& list = picture.list(drawing->modelSpace());
    ASSERT_EQ(list.strokes.size(), 2u);
    EXPECT_TRUE(list.strokes[0].dashesEach);
    EXPECT_FALSE(list.strokes[1].dashesEach);
}

TEST(PictureTest, WhatIsHiddenAndWhatIsNotDrawnIsCountedApart) {
    PlainDrawing plain;
    plain.block("B").inBlock("BODY 8 0").inBlock("LINE 8 PLAIN 10 0 20 0 11 1 21 0");
    plain.entity("LINE 8 OFF 10 0 20 0 11 1 21 0").entity("LINE 8 FROZEN 10 0 20 0 11 1 21 0");
    plain.entity("LINE 8 0 60 1 10 0 20 0 11 1 21 0").entity("3DSOLID 8 0").entity("TEXT 8 0 40 1 1 ~");
    // Of a reference on a layer that is off, what stands on other layers is drawn.
    const auto drawing = plain.entity("INSERT 2 B 8 OFF 10 5 20 0").entity("INSERT 2 B 8 0 10 7 20 0").make();
    Picture picture(*drawing);
    const Counts counts = picture.counts(drawing->modelSpace());
    EXPECT_EQ(counts.off, 1u);
    EXPECT_EQ(counts.frozen, 1u);
    EXPECT_EQ(counts.invisible, 1u);
    EXPECT_EQ(counts.notDrawn, (std::map<std::string, std::size_t>{{"3DSOLID", 1}, {"BODY", 1}}));
    EXPECT_EQ(drawn(picture, drawing->modelSpace()), (Lines{"fore 5,0 6,0", "fore 7,0 8,0"}));
}

TEST(PictureTest, WidthsAttributesAndArrays) {
    PlainDrawing plain(drawing::Kind::R2000);
    plain.entity("LWPOLYLINE 5 60 8 0 90 3 70 0 43 2 10 0 20 0 10 10 20 0 10 10 20 5");
    plain.entity("LWPOLYLINE 5 61 8 0 90 2 70 0 10 0 20 9 40 2 41 0 10 10 20 9");
    plain.entity("INSERT 5 62 2 FIXED 8 0 10 50 20 0 41 -1 70 2 44 20");
    const Lines lines = drawn(*plain.make());
    EXPECT_EQ(lines[0], "fore w2 0,0 10,0 10,5");
    EXPECT_EQ(lines[1], "fill1 fore 0,10 10,9 10,9 0,8");
    EXPECT_EQ(lines[2], "'us' fore 50,0");
    EXPECT_EQ(lines[3], "'us' fore 70,0");
}

TEST(PictureTest, HatchPatternsAreClippedToTheirArea) {
    PlainDrawing plain;
    plain.entity(
        "HATCH 8 0 10 0 20 0 30 0 2 LINE 70 0 71 0 91 2 92 3 72 0 73 1 93 4 10 0 20 0 10 10 20 0 10 10 20 10"
        " 10 0 20 10 97 0 92 2 72 0 73 1 93 4 10 4 20 4 10 6 20 4 10 6 20 6 10 4 20 6 97 0 75 0 76 1 52 0 41 "
        "1"
        " 77 0 78 1 53 0 43 0 44 0 45 0 46 5 79 0 98 0");
    const auto drawing = plain.make();
    EXPECT_EQ(drawn(*drawing), (Lines{"fore 0,0 10,0", "fore 0,5 4,5", "fore 6,5 10,5"}));
    // Too far away to tell the lines apart it is a tone.
    Picture picture(*drawing);
    Notes notes;
    RenderOptions options;
    options.frame = {-100, -100, 100, 100};
    Projection far = plainProjection();
    far.toX.x = far.toY.y = 0.4;
    Renderer(picture, notes, options).draw(drawing->modelSpace(), far);
    EXPECT_EQ(notes.lines, (Lines{"fill2 fore 35% 0,0 4,0 4,4 0,4 1.6,1.6 2.4,1.6 2.4,2.4 1.6,2.4"}));
}

TEST(PictureTest, ALayoutShowsTheModelThroughItsViewports) {
    PlainDrawing plain(drawing::Kind::R2000);
    plain.entity("LINE 5 60 8 0 10 100 20 100 11 110 21 100")
        .entity("LINE 5 61 8 WALLS 10 100 20 103 11 110 21 103");
    plain.entity(
        "VIEWPORT 5 62 67 1 8 0 10 5 20 5 40 10 41 10 68 2 69 2 12 105 22 102 17 0 27 0 45 20 331 11");
    plain.entity("VIEWPORT 5 63 67 1 8 0 10 5 20 5 40 10 41 10 68 1 69 1 12 105 22 102 45 20");
    const auto drawing = plain.make();
    Picture picture(*drawing);
    // At half size about 105,102; the layer WALLS (handle 11) is frozen in it.
    EXPECT_EQ(
        drawn(picture, drawing->blocks().paperSpace()),
        (Lines{"fore 0,0 10,0 10,10 0,10 0,0", "clip fore 0,0 10,0 10,10 0,10", "fore 2.5,4 7.5,4", "end"}));
    EXPECT_EQ(drawn(picture, drawing->modelSpace()).size(), 2u);
}

TEST(PictureTest, APictureDrawnInPortionsIsTheSame) {
    PlainDrawing plain;
    plain.block("ROW");
    for (int i = 0; i < 90; ++i)
        plain.inBlock("LINE 8 0 10 " + std::to_string(i) + " 20 0 11 " + std::to_string(i) + " 21 1");
    plain.block("NEST").inBlock("INSERT 2 ROW 8 0 10 0 20 0 70 2 71 3 44 200 45 10");
    plain.entity("INSERT 2 NEST 8 0 10 0 20 0").entity("INSERT 2 NEST 8 0 10 0 20 500 50 90");
    const auto drawing = plain.entity("RAY 8 0 10 0 20 -50 11 1 21 0").make();
    Picture picture(*drawing);
    Notes notes;
    RenderOptions options;
    options.frame = {-1e4, -1e4, 1e4, 1e4};
    options.smallest = 0;
    Renderer renderer(picture, notes, options);
    renderer.start(drawing->modelSpace(), plainProjection());
    std::size_t portions = 1;
    while (!renderer.resume([] { return true; })) ++portions;
    EXPECT_GT(portions, 10u);
    EXPECT_EQ(notes.lines, drawn(*drawing));
    EXPECT_EQ(notes.lines.size(), 2u * 6 * 90 + 1);
    // Of a part only what is near, whatever stands in an array; what has no end is never far.
    EXPECT_EQ(drawn(picture, drawing->modelSpace(), {199.5, 9.5, 201.5, 10.5}),
              (Lines{"fore 200,10 200,11", "fore 201,10 201,11"}));
    EXPECT_EQ(drawn(picture, drawing->modelSpace(), {5000, -51, 5001, -49}).size(), 1u);
}

TEST(PictureTest, AnUpdateKeepsWhatDidNotChange) {
    PlainDrawing plain(drawing::Kind::R2000);
    for (const char* y : {"0", "1", "2"}) {
        plain.entity(std::string("INSERT 2 PLAIN 8 0 10 0 20 ") + y + " 5 6" + y);
    }
    const auto drawing = plain.make();
    const std::vector<EntityId> ids = modelEntities(*drawing);
    const BlockId model = drawing->modelSpace();
    Picture picture(*drawing);
    picture.list(model);
    drawing->setInsertionPoint(ids[1], {30, 30, 0});
    drawing->erase(ids[0]);
    drawing->addLine({0, 0, 0}, {-50, 0, 0});
    picture.update();
    EXPECT_EQ(picture.itemOf(model, ids[0]), std::nullopt);
    ASSERT_EQ(picture.itemOf(model, ids[2]), 1u);
    EXPECT_EQ(picture.list(model).items[0].bounds.high.x, 31);
    EXPECT_EQ(picture.extents(model).low.x, -50);
    EXPECT_EQ(picture.extents(model).low.y, 0);
    while (drawing->undo()) {
    }
    picture.update();
    EXPECT_EQ(drawn(picture, model), drawn(*drawing));
}

TEST(DashesTest, EndsHaveADashAndOnlyWhatIsSeenIsGivenOut) {
    const LineType type{{4, -2}, 6};
    const Point2 line[] = {{0, 0}, {24, 0}};
    Lines found;
    const auto note = [&](std::span<const Point2> part) {
        std::ostringstream text;
        text << part.front().x << "-" << part.back().x;
        found.push_back(text.str());
    };
    dashPolyline(line, type, 1, {-100, -1, 100, 1}, note);
    EXPECT_EQ(found, (Lines{"0-5", "7-11", "13-17", "19-24"}));
    found.clear();
    dashPolyline(line, type, 1, {8, -1, 14, 1}, note);
    EXPECT_EQ(found, (Lines{"8-11", "13-14"}));
    found.clear();
    dashPolyline(line, type, 4, {-100, -1, 100, 1}, note);
    EXPECT_EQ(found, (Lines{"0-24"}));
}

}  // namespace
}  // namespace picture
