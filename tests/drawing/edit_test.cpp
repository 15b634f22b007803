#include "tests/drawing/plain_drawing.h"

namespace drawing {
namespace {

class Edit : public testing::Test {
  protected:
    static PlainDrawing withDoor() {
        return PlainDrawing(Kind::R2000)
            .entity(
                "INSERT 5 60 330 1F 100 AcDbEntity 8 0 100 AcDbBlockReference 66 1 2 DOOR 10 1.50 20 2.0 "
                "30 0.0 1001 ACAD 1040 41.0")
            .entity(
                "ATTRIB 5 61 330 60 100 AcDbEntity 8 0 100 AcDbText 10 1.5 20 4.0 30 0.0 40 2.5 1 old "
                "100 AcDbAttribute 2 TAG 70 0")
            .entity("SEQEND 5 62 330 60 100 AcDbEntity 8 0")
            .entity("LINE 5 63 330 1F 100 AcDbEntity 8 LOCKED 100 AcDbLine 10 0.0 20 0.0 11 1.0 21 1.0");
    }

    const std::unique_ptr<Drawing> drawing = withDoor().make();
    const EntityId door = drawing->byHandle(0x60);
    const EntityId tag = drawing->byHandle(0x61);
    const EntityId line = drawing->byHandle(0x63);
};

TEST_F(Edit, KeepsEveryOtherGroup) {
    drawing->setInsertionPoint(door, {1.5, 2, 0});
    drawing->setScale(door, {1, 1, 1});
    drawing->setVisible(door, true);
    drawing->setAttributeText(tag, "old");
    EXPECT_EQ(drawing->savedBytes(), withDoor().text()) << "no change is none";
    EXPECT_FALSE(drawing->canUndo());

    drawing->setRotation(door, kPi / 4);
    // The new group stands behind the subclass, before the extended data with its look-alike.
    EXPECT_EQ(groupsOf(*drawing, door),
              "0=INSERT|5=60|330=1F|100=AcDbEntity|8=0|100=AcDbBlockReference|66=1|2=DOOR|10=1.50|20=2.0|"
              "30=0.0|50=45.0|1001=ACAD|1040=41.0|");
    drawing->setVisible(door, false);
    EXPECT_FALSE(drawing->isDisplayed(door));
    EXPECT_TRUE(contains(groupsOf(*drawing, door), "8=0|60=1|100=AcDbBlockReference"));
    EXPECT_FALSE(drawing->common(tag).visible);
    drawing->setVisible(door, true);
    drawing->setRotation(door, 0);
    EXPECT_EQ(drawing->placement(door).rotation, 0);
    EXPECT_FALSE(contains(groupsOf(*drawing, door), "60=1"));
}

TEST_F(Edit, AttributesFollowTheirReference) {
    drawing->setInsertionPoint(door, {11.5, 2, 1});
    EXPECT_EQ(drawing->attribute(tag).position, (Point3{11.5, 4, 1}));
    drawing->setScale(door, {2, 2, 2});
    expectNear(drawing->attribute(tag).position, {11.5, 6, 1}, 1e-12);
    EXPECT_NEAR(drawing->attribute(tag).height, 5, 1e-12);
    drawing->setRotation(door, kPi);
    expectNear(drawing->attribute(tag).position, {11.5, -2, 1}, 1e-12);
    EXPECT_NEAR(drawing->attribute(tag).rotation, kPi, 1e-12);
    EXPECT_EQ(errorOf([&] { drawing->setScale(door, {0, 1, 1}); }), kInvalidInput);
}

TEST_F(Edit, TextsGoThroughTheEncoding) {
    drawing->setAttributeText(tag, "porte d’été Ω");
    EXPECT_EQ(drawing->attributeText(tag), "porte d’été Ω");
    EXPECT_TRUE(contains(drawing->bytes(tag), "porte d\x92\xE9t\xE9 \\U+03A9"));
    drawing->setAttributeText(tag, "");
    EXPECT_EQ(drawing->attributeText(tag), "");
}

TEST(AttributeText, AJustifiedOneBeginsWhereItsTextDoes) {
    PlainDrawing plain(Kind::R2000);
    plain.entity("INSERT 5 60 330 1F 100 AcDbEntity 8 0 100 AcDbBlockReference 66 1 2 DOOR 10 0.0 20 0.0");
    int handle = 0x61;
    // Centred, right, upwards and left: four characters, eight wide, written at 11.
    for (const char* words : {"10 6.0 20 1.0 30 0.0 40 2.5 1 abcd 72 1 11 10.0 21 1.0",
                              "10 2.0 20 1.0 40 2.5 1 abcd 72 2 11 10.0 21 1.0",
                              "10 3.0 20 6.0 40 2.5 1 abcd 50 90 72 4 11 4.0 21 10.0",
                              "10 2.0 20 1.0 40 2.5 1 abcd 11 2.0 21 3.0"}) {
        std::ostringstream number;
        number << std::hex << handle++;
        plain.entity("ATTRIB 5 " + number.str() + " 330 60 100 AcDbEntity 8 0 100 AcDbText " + words +
                     " 100 AcDbAttribute 2 TAG 70 0");
    }
    const auto drawing = plain.entity("SEQEND 5 65 330 60 100 AcDbEntity 8 0").make();
    const Point3 wanted[][2] = {
        {{8, 1, 0}, {10, 1, 0}}, {{6, 1, 0}, {10, 1, 0}}, {{3, 8, 0}, {3, 10, 0}}, {{2, 1, 0}, {2, 1, 0}}};
    for (Handle each = 0x61; each < 0x65; ++each) {
        const EntityId id = drawing->byHandle(each);
        drawing->setAttributeText(id, "ab");
        expectNear(drawing->attribute(id).position, wanted[each - 0x61][0]);
        drawing->setAttributeText(id, "");
        expectNear(drawing->attribute(id).position, wanted[each - 0x61][1]);
        EXPECT_EQ(drawing->attributeText(id), "");
    }
}

TEST_F(Edit, ErrorsOfTheHost) {
    EXPECT_EQ(errorOf([&] { drawing->setNumber(line, 10, "AcDbLine", 3); }), kLockedLayer);
    EXPECT_EQ(errorOf([&] { drawing->placement(line); }), kNotApplicable);
    EXPECT_EQ(errorOf([&] { drawing->setAttributeText(door, "x"); }), kNotApplicable);
    drawing->erase(door);
    EXPECT_EQ(errorOf([&] { drawing->attributeText(tag); }), kObjectErased);
    EXPECT_EQ(errorOf([&] { drawing->erase(door); }), kObjectErased);
    EXPECT_EQ(drawing->byHandle(0x61), kNoEntity);
}

TEST_F(Edit, AMultiLineTextSaysTheSameInBothPlaces) {
    std::string text = withDoor().text();
    text.replace(text.find("AC1015"), 6, "AC1032");
    const std::string attribute = groups("100 AcDbAttribute 2 TAG 70 0");
    text.insert(text.find(attribute) + attribute.size(),
                groups("71 2 101 Embedded~Object 10 1.5 20 4.0 30 0.0 40 2.5 3 ol 1 d"));
    const auto multi = Drawing::parse(text, "multi.dxf");
    EXPECT_TRUE(multi->attribute(tag).multiLine);
    EXPECT_EQ(multi->attributeText(tag), "old");
    const std::string longText(300, 'x');
    multi->setAttributeText(tag, longText);
    EXPECT_EQ(multi->attributeText(tag), longText);
    multi->setInsertionPoint(door, {2.5, 2, 0});
    EXPECT_TRUE(contains(groupsOf(*multi, tag),
                         "101=Embedded Object|10=2.5|20=4.0|30=0.0|40=2.5|3=" + std::string(250, 'x') +
                             "|1=" + std::string(50, 'x') + "|"));
}

TEST(Groups, OfAnyCodeAreSetWhereTheyBelong) {
    const auto drawing =
        PlainDrawing(Kind::R2000)
            .header("9 $INSBASE 10 1.5 20 2.5 30 3.5 9 $INSUNITS 70 4")
            .entity(
                "CIRCLE 5 60 100 AcDbEntity 8 0 100 AcDbCircle 10 0.0 20 0.0 40 1.0 210 0.0 220 0.6 230 -0.8")
            .entity("INSERT 5 61 100 AcDbEntity 8 0 100 AcDbBlockReference 2 DOOR 10 0.0 20 0.0")
            .make();
    const EntityId circle = drawing->byHandle(0x60), door = drawing->byHandle(0x61);
    drawing->setInteger(circle, 62, "AcDbEntity", 5);
    drawing->setInteger(circle, 60, "AcDbEntity", 1);
    drawing->setNumber(circle, 40, "AcDbCircle", 2.5);
    EXPECT_EQ(errorOf([&] { drawing->setNumber(circle, 40, "AcDbCircle", INFINITY); }), kInvalidInput);
    EXPECT_TRUE(contains(groupsOf(*drawing, circle), "62=5|60=1|100=AcDbCircle|10=0.0|20=0.0|40=2.5|"))
        << groupsOf(*drawing, circle);
    const CommonData common = drawing->common(circle);
    EXPECT_EQ(common.color, 5);
    EXPECT_FALSE(common.visible);
    expectNear(common.extrusion, {0, 0.6, -0.8});
    EXPECT_TRUE(drawing->common(door).visible);
    EXPECT_EQ(drawing->common(door).extrusion, (Point3{0, 0, 1}));
    drawing->setText(door, 2, "AcDbBlockReference", "plain");
    drawing->setText(door, 8, "AcDbEntity", "WALLS");
    EXPECT_EQ(drawing->name(door), "PLAIN");
    EXPECT_EQ(drawing->layerName(door), "WALLS");
    EXPECT_EQ(drawing->header().point("$INSBASE"), (Point3{1.5, 2.5, 3.5}));
    EXPECT_EQ(drawing->header().integer("$INSUNITS"), 4);
    EXPECT_EQ(drawing->header().code("$INSUNITS"), 70);
    EXPECT_EQ(drawing->header().point("$NOSUCH"), std::nullopt);
    EXPECT_EQ(drawing->header().code("$NOSUCH"), -1);
}

TEST(Erasing, TakesWhatTheEntityOwns) {
    const PlainDrawing sample =
        PlainDrawing(Kind::R2000)
            .entity("INSERT 5 60 102 {ACAD_XDICTIONARY 360 70 102 } 330 1F 8 0 66 1 2 DOOR 10 0.0 20 0.0")
            .entity("SEQEND 5 61 8 0")
            .entity("LINE 5 62 330 1F 100 AcDbEntity 8 0 100 AcDbLine 10 0.0 20 0.0 11 1.0 21 1.0")
            .object("DICTIONARY 5 70 330 60 100 AcDbDictionary 281 1 3 X 360 71 3 OTHER 350 72")
            .object("XRECORD 5 71 330 70 100 AcDbXrecord 280 1")
            .object("XRECORD 5 72 330 1 100 AcDbXrecord 280 1")
            .object("GROUP 5 73 330 1 100 AcDbGroup 300 g 70 0 71 1 340 60 340 62");
    const auto drawing = sample.make();
    drawing->erase(drawing->byHandle(0x60));
    EXPECT_EQ(drawing->byHandle(0x70), kNoEntity);
    EXPECT_EQ(drawing->byHandle(0x71), kNoEntity);
    EXPECT_NE(drawing->byHandle(0x72), kNoEntity) << "it has another owner";
    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    EXPECT_EQ(groupsOf(*saved, saved->byHandle(0x73)),
              "0=GROUP|5=73|330=1|100=AcDbGroup|300=g|70=0|71=1|340=62|");
    EXPECT_EQ(saved->entityCount(saved->modelSpace()), 1u);
    ASSERT_TRUE(drawing->undo());
    EXPECT_EQ(drawing->savedBytes(), sample.text());
}

TEST(Erase, AChainOfOwnersMayBeOfAnyLength) {
    constexpr int kChain = 80000;
    PlainDrawing file(Kind::R2000);
    file.entity(
        "LINE 5 60 102 {ACAD_XDICTIONARY 360 1000 102 } 330 1F 100 AcDbEntity 8 0 100 AcDbLine "
        "10 0.0 20 0.0 11 1.0 21 1.0");
    std::ostringstream chain;
    chain << std::hex;
    for (int i = 0x1000; i < 0x1000 + kChain; ++i)
        chain << "0 DICTIONARY 5 " << i << " 330 " << (i == 0x1000 ? 0x60 : i - 1)
              << " 100 AcDbDictionary 280 1 281 1 3 next 360 " << i + 1 << " ";
    file.object(chain.str().substr(2));
    const auto drawing = file.make();
    drawing->erase(drawing->byHandle(0x60));
    EXPECT_EQ(drawing->byHandle(0x1000 + kChain - 1), kNoEntity);
    EXPECT_EQ(drawing->savedBytes().find("DICTIONARY\r"), std::string::npos);
}

}  // namespace
}  // namespace drawing
