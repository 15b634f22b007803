#include "tests/drawing/sample_drawing.h"

namespace drawing {
namespace {

constexpr double kQuarter = kPi / 2;

TEST(Insertion, MakesAttributesFromTheDefinitions) {
    const auto drawing = SampleDrawing().make();
    const BlockId door = drawing->blocks().find("DOOR");
    const EntityId id = drawing->insertBlock(door, {10, 20, 5}, {2, 2, 2}, kQuarter);
    EXPECT_EQ(groupsOf(*drawing, id),
              "0=INSERT|5=100|330=1F|100=AcDbEntity|8=0|100=AcDbBlockReference|66=1|2=DOOR|10=10.0|20=20.0|"
              "30=5.0|41=2.0|"
              "42=2.0|43=2.0|50=90.0|");
    const std::vector<EntityId> attributes = drawing->attributes(id);
    ASSERT_EQ(attributes.size(), 2u);
    const AttribData tag = drawing->attribute(attributes[0]);
    EXPECT_EQ(tag.tag, "TAG");
    EXPECT_EQ(tag.text, "T0");
    EXPECT_EQ(tag.common.layer, "WALLS");
    // 1,2 seen from the base point 1,0 is 0,2; doubled and turned by a quarter it is -4,0.
    EXPECT_NEAR(tag.position.x, 6, 1e-9);
    EXPECT_NEAR(tag.position.y, 20, 1e-9);
    EXPECT_NEAR(tag.position.z, 5, 1e-9);
    EXPECT_DOUBLE_EQ(tag.height, 5);
    EXPECT_DOUBLE_EQ(tag.rotation, kQuarter);
    const AttribData width = drawing->attribute(attributes[1]);
    EXPECT_EQ(width.common.color, 1);
    EXPECT_EQ(width.flags, 8);
    EXPECT_EQ(width.horizontal, 1);
    EXPECT_NEAR(width.alignment.x, 8, 1e-9);
    EXPECT_NEAR(width.alignment.y, 20, 1e-9);
    EXPECT_EQ(drawing->mainEntity(attributes[1]), id);
    EXPECT_EQ(groupsOf(*drawing, drawing->byHandle(0x103)), "0=SEQEND|5=103|330=100|100=AcDbEntity|8=0|");
}

TEST(Insertion, WritesNothingElseThanTheNewAndTheSeed) {
    for (const bool r12 : {false, true}) {
        const std::string before = SampleDrawing(r12).text();
        const auto drawing = SampleDrawing(r12).make();
        drawing->insertBlock(drawing->blocks().find("PLAIN"), {1, 2, 0}, {1, 1, 1}, 0);
        const std::string added =
            SampleDrawing::words(r12 ? "0 INSERT 5 100 8 0 2 PLAIN 10 1.0 20 2.0 30 0.0"
                                     : "0 INSERT 5 100 330 1F 100 AcDbEntity 8 0 100 AcDbBlockReference 2 "
                                       "PLAIN 10 1.0 20 2.0 30 0.0");
        std::string expected = before;
        const std::string entities = SampleDrawing::words("2 ENTITIES");
        expected.insert(expected.find(entities) + entities.size(), added);
        const std::string seed = SampleDrawing::words("9 $HANDSEED 5 100");
        expected.replace(expected.find(seed), seed.size(), SampleDrawing::words("9 $HANDSEED 5 101"));
        EXPECT_EQ(drawing->savedBytes(), expected);
        EXPECT_TRUE(drawing->isModified());
    }
}

TEST(Insertion, TakesTheCurrentProperties) {
    const auto drawing = SampleDrawing()
                             .header(
                                 "9 $CLAYER 8 walls 9 $CECOLOR 62 5 9 $CELTYPE 6 DASHED 9 $CELTSCALE 40 2.0 "
                                 "9 $CELWEIGHT 370 30")
                             .make();
    const EntityId line = drawing->addLine({0, 0, 0}, {1, 2, 3});
    EXPECT_EQ(groupsOf(*drawing, line),
              "0=LINE|5=100|330=1F|100=AcDbEntity|8=WALLS|6=DASHED|62=5|48=2.0|370=30|100=AcDbLine|10=0.0|20="
              "0.0|30=0.0|"
              "11=1.0|21=2.0|31=3.0|");
    const auto locked = SampleDrawing().header("9 $CLAYER 8 LOCKED").make();
    EXPECT_TRUE(locked->isOnLockedLayer(locked->addLine({}, {1, 0, 0})));
}

TEST(Insertion, GivesNoHandlesWhereTheDrawingHasNone) {
    const auto drawing = SampleDrawing(true).header("9 $HANDLING 70 0").make();
    const EntityId id = drawing->insertBlock(drawing->blocks().find("DOOR"), {}, {1, 1, 1}, 0);
    EXPECT_EQ(groupsOf(*drawing, id), "0=INSERT|8=0|66=1|2=DOOR|10=0.0|20=0.0|30=0.0|");
    EXPECT_EQ(groupsOf(*drawing, drawing->attributes(id)[0]),
              "0=ATTRIB|8=WALLS|10=0.0|20=2.0|30=0.0|40=2.5|1=T0|2=TAG|70=0|");
}

TEST(Insertion, RefusesWhatTheHostRefuses) {
    const auto drawing = SampleDrawing().make();
    const BlockId door = drawing->blocks().find("DOOR");
    const std::string before = drawing->savedBytes();
    EXPECT_EQ(errorOf([&] { drawing->insertBlock(door, {}, {1, 0, 1}, 0); }), kInvalidInput);
    EXPECT_EQ(errorOf([&] { drawing->insertBlock(door, {}, {1, 1, 1}, INFINITY); }), kInvalidInput);
    EXPECT_EQ(errorOf([&] { drawing->insertBlock(drawing->modelSpace(), {}, {1, 1, 1}, 0); }), kInvalidInput);
    EXPECT_EQ(errorOf([&] { drawing->insertBlock(kNoBlock, {}, {1, 1, 1}, 0); }), kKeyNotFound);
    EXPECT_NE(errorOf([&] { drawing->insertBlock(door, {}, {1e308, 1e308, 1}, 0); }), 0);
    EXPECT_EQ(drawing->savedBytes(), before);
}

TEST(Insertion, AddsAMissingEntitiesSection) {
    const std::string text = SampleDrawing::words("0 SECTION 2 HEADER 9 $ACADVER 1 AC1009 0 ENDSEC 0 EOF");
    const auto drawing = Drawing::parse(text, "bare.dxf");
    drawing->addLine({}, {1, 1, 0});
    const auto again = Drawing::parse(drawing->savedBytes(), "again.dxf");
    EXPECT_EQ(again->entityCount(again->modelSpace()), 1u);
    EXPECT_LE(again->findings().size(), drawing->findings().size());
}

/// How a text of height 1 along X at 2,1 in the block comes out.
AttribData placed(const Vector3& scale, double rotation, const std::string& attdef = "1 a 2 A 70 0") {
    const auto drawing = SampleDrawing(true)
                             .block("BLOCK 8 0 2 ONE 70 2 10 0.0 20 0.0")
                             .block("ATTDEF 8 0 10 2.0 20 1.0 30 0.0 40 1.0 3 ? " + attdef)
                             .block("ENDBLK 8 0")
                             .make();
    const EntityId id = drawing->insertBlock(drawing->blocks().find("ONE"), {}, scale, rotation);
    return drawing->attribute(drawing->attributes(id)[0]);
}

TEST(Insertion, StretchesMirrorsAndSlantsTexts) {
    const AttribData stretched = placed({3, 2, 1}, 0);
    EXPECT_EQ(stretched.position, (Point3{6, 2, 0}));
    EXPECT_DOUBLE_EQ(stretched.height, 2);
    EXPECT_DOUBLE_EQ(stretched.widthFactor, 1.5);

    const AttribData backward = placed({-1, 1, 1}, 0);
    EXPECT_EQ(backward.position, (Point3{-2, 1, 0}));
    EXPECT_EQ(backward.generation, 2);
    EXPECT_DOUBLE_EQ(backward.rotation, 0);
    const AttribData upsideDown = placed({1, -1, 1}, 0);
    EXPECT_EQ(upsideDown.generation, 4);
    EXPECT_DOUBLE_EQ(upsideDown.rotation, 0);
    const AttribData turned = placed({-1, -1, 1}, 0);
    EXPECT_EQ(turned.generation, 0);
    EXPECT_DOUBLE_EQ(turned.rotation, kPi);

    // A text under 45 degrees in a block that is stretched along X leans.
    const AttribData slanted = placed({2, 1, 1}, 0, "1 a 2 A 70 0 50 45.0");
    EXPECT_NEAR(std::tan(slanted.rotation), 0.5, 1e-12);
    EXPECT_NEAR(slanted.height, 2 / std::sqrt(2.5), 1e-12);
    EXPECT_NEAR(std::tan(slanted.oblique), -1.5 / 2, 1e-12);
}

}  // namespace
}  // namespace drawing
