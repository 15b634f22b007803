#include "tests/drawing/plain_drawing.h"

namespace drawing {
namespace {

TEST(Insertion, MakesAttributesFromTheDefinitions) {
    const auto drawing = PlainDrawing(Kind::R2000).make();
    const EntityId id = drawing->insertBlock(drawing->blocks().find("DOOR"), {10, 20, 5}, {2, 2, 2}, kPi / 2);
    EXPECT_EQ(groupsOf(*drawing, id),
              "0=INSERT|5=100|330=1F|100=AcDbEntity|8=0|100=AcDbBlockReference|66=1|2=DOOR|10=10.0|20=20.0|"
              "30=5.0|41=2.0|42=2.0|43=2.0|50=90.0|");
    const std::vector<EntityId> attributes = drawing->attributes(id);
    ASSERT_EQ(attributes.size(), 2u);
    const AttribData tag = drawing->attribute(attributes[0]);
    EXPECT_EQ(tag.tag + "=" + tag.text + " on " + tag.common.layer, "TAG=T0 on WALLS");
    // 1,2 seen from the base point 1,0 is 0,2; doubled and turned by a quarter it is -4,0.
    expectNear(tag.position, {6, 20, 5});
    EXPECT_DOUBLE_EQ(tag.height, 5);
    EXPECT_DOUBLE_EQ(tag.rotation, kPi / 2);
    const AttribData width = drawing->attribute(attributes[1]);
    EXPECT_EQ(width.common.color, 1);
    EXPECT_EQ(width.flags, 8);
    EXPECT_EQ(width.horizontal, 1);
    expectNear(width.alignment, {8, 20, 5});
    EXPECT_EQ(drawing->mainEntity(attributes[1]), id);
    EXPECT_EQ(groupsOf(*drawing, drawing->byHandle(0x103)), "0=SEQEND|5=103|330=100|100=AcDbEntity|8=0|");
}

TEST(Insertion, WritesNothingElseThanTheNewAndTheSeed) {
    for (const bool old : {false, true}) {
        PlainDrawing sample(old ? Kind::R12 : Kind::R2000);
        const auto drawing = sample.make();
        drawing->insertBlock(drawing->blocks().find("PLAIN"), {1, 2, 0}, {1, 1, 1}, 0);
        sample.entity(
            "INSERT 5 100 330 1F 100 AcDbEntity 8 0 100 AcDbBlockReference 2 PLAIN 10 1.0 20 2.0 30 0.0");
        std::string expected = sample.text();
        const std::string seed = groups("9 $HANDSEED 5 100");
        expected.replace(expected.find(seed), seed.size(), groups("9 $HANDSEED 5 101"));
        EXPECT_EQ(drawing->savedBytes(), expected);
        EXPECT_TRUE(drawing->isModified());
    }
}

TEST(Insertion, TakesTheHeadersSettings) {
    PlainDrawing sample(Kind::R2000);
    sample.header("9 $CLAYER 8 walls 9 $CECOLOR 62 5 9 $CELTYPE 6 DASHED 9 $CELTSCALE 40 2.0");
    const auto drawing = sample.header("9 $CELWEIGHT 370 30").make();
    EXPECT_EQ(groupsOf(*drawing, drawing->addLine({0, 0, 0}, {1, 2, 3})),
              "0=LINE|5=100|330=1F|100=AcDbEntity|8=WALLS|6=DASHED|62=5|48=2.0|370=30|100=AcDbLine|10=0.0|"
              "20=0.0|30=0.0|11=1.0|21=2.0|31=3.0|");
    const auto locked = PlainDrawing(Kind::R2000).header("9 $CLAYER 8 LOCKED").make();
    EXPECT_TRUE(locked->isOnLockedLayer(locked->addLine({}, {1, 0, 0})));

    const auto bare = PlainDrawing(Kind::R12).header("9 $HANDLING 70 0").make();
    const EntityId id = bare->insertBlock(bare->blocks().find("DOOR"), {}, {1, 1, 1}, 0);
    EXPECT_EQ(groupsOf(*bare, id), "0=INSERT|8=0|66=1|2=DOOR|10=0.0|20=0.0|30=0.0|") << "without handles";
    EXPECT_EQ(groupsOf(*bare, bare->attributes(id)[0]),
              "0=ATTRIB|8=WALLS|10=0.0|20=2.0|30=0.0|40=2.5|1=T0|2=TAG|70=0|");
}

TEST(Insertion, AttributesTakeOverFieldLengthAndLock) {
    PlainDrawing sample(Kind::R2000);
    sample.block("LONG").inBlock(
        "ATTDEF 100 AcDbEntity 8 0 100 AcDbText 39 0.5 10 1.0 20 2.0 30 0.0 40 2.5 1 x "
        "100 AcDbAttributeDefinition 3 ? 2 A 70 4 73 12 74 2");
    const auto drawing = sample.make();
    const EntityId id = drawing->insertBlock(drawing->blocks().find("LONG"), {}, {1, 1, 1}, 0);
    EXPECT_EQ(groupsOf(*drawing, drawing->attributes(id)[0]),
              "0=ATTRIB|5=101|330=100|100=AcDbEntity|8=0|100=AcDbText|39=0.5|10=1.0|20=2.0|30=0.0|40=2.5|1=x|"
              "11=0.0|21=0.0|31=0.0|100=AcDbAttribute|2=A|70=4|73=12|74=2|");
}

TEST(Insertion, RefusesWhatTheHostRefuses) {
    const auto drawing = PlainDrawing(Kind::R2000).make();
    const std::string before = drawing->savedBytes();
    const BlockId door = drawing->blocks().find("DOOR");
    const std::tuple<BlockId, Vector3, double, int> rows[] = {
        {door, {1, 0, 1}, 0, kInvalidInput},
        {door, {1, 1, 1}, INFINITY, kInvalidInput},
        {door, {1e308, 1e308, 1}, 0, basic::kOverflow},
        {drawing->modelSpace(), {1, 1, 1}, 0, kInvalidInput},
        {kNoBlock, {1, 1, 1}, 0, kKeyNotFound},
    };
    for (const auto& [block, scale, rotation, number] : rows)
        EXPECT_EQ(errorOf([&, b = block, s = scale, r = rotation] { drawing->insertBlock(b, {}, s, r); }),
                  number);
    EXPECT_EQ(drawing->savedBytes(), before);
}

TEST(Insertion, StretchesMirrorsAndSlantsTexts) {
    struct Row {
        Vector3 scale;
        double oblique;  ///< the definition's rotation, degrees
        Point3 position;
        double height, widthFactor, rotation, slant;
        int generation;
    };
    // A text of height 1 at 2,1 in the block. Under 45 degrees, stretched along X, it leans.
    const double leaning = 2 / std::sqrt(2.5);
    const Row rows[] = {
        {{3, 2, 1}, 0, {6, 2, 0}, 2, 1.5, 0, 0, 0},
        {{-1, 1, 1}, 0, {-2, 1, 0}, 1, 1, 0, 0, 2},
        {{1, -1, 1}, 0, {2, -1, 0}, 1, 1, 0, 0, 4},
        {{-1, -1, 1}, 0, {-2, -1, 0}, 1, 1, kPi, 0, 0},
        {{2, 1, 1}, 45, {4, 1, 0}, leaning, 1.25, std::atan(0.5), -std::atan(0.75), 0},
    };
    for (const Row& row : rows) {
        const auto drawing = PlainDrawing(Kind::R12)
                                 .block("ONE")
                                 .inBlock("ATTDEF 8 0 10 2.0 20 1.0 30 0.0 40 1.0 3 ? 1 a 2 A 70 0 50 " +
                                          std::to_string(row.oblique))
                                 .make();
        const EntityId id = drawing->insertBlock(drawing->blocks().find("ONE"), {}, row.scale, 0);
        const AttribData text = drawing->attribute(drawing->attributes(id)[0]);
        expectNear(text.position, row.position, 1e-12);
        EXPECT_NEAR(text.height, row.height, 1e-12);
        EXPECT_NEAR(text.rotation, row.rotation, 1e-12);
        EXPECT_NEAR(text.oblique, row.slant, 1e-12);
        EXPECT_EQ(text.generation, row.generation);
        EXPECT_NEAR(text.widthFactor, row.widthFactor, 1e-12);
    }
}

TEST(Insertion, ADrawingThatUsesTheHighestHandleGetsThoseOfItsGaps) {
    for (const char* highest : {"FFFFFFFFFFFFFFFF", "FFFFFFFFFFFFFFFE", "FFFFFFFFFFFFFFFD"}) {
        const auto drawing =
            PlainDrawing(Kind::R2000)
                .entity("LINE 5 " + std::string(highest) +
                        " 330 1F 100 AcDbEntity 8 0 100 AcDbLine 10 0.0 20 0.0 11 1.0 21 1.0")
                .make();
        for (int i = 0; i < 3; ++i) drawing->insertBlock(drawing->blocks().find("DOOR"), {}, {1, 1, 1}, 0);
        const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
        EXPECT_EQ(modelEntities(*saved).size(), 4u) << highest;
        // No seed can be above them; but no handle is there twice.
        for (const dxf::Finding& finding : saved->findings())
            EXPECT_EQ(finding.kind.code, "R5") << finding.reason;
    }
}

}  // namespace
}  // namespace drawing
