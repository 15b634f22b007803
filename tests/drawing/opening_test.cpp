#include "tests/drawing/sample_drawing.h"

namespace drawing {
namespace {

TEST(Opening, ReadsBlocksSpacesAndLayers) {
    const auto drawing = SampleDrawing()
                             .model("LINE 5 60 8 WALLS 10 0.0 20 0.0 11 1.0 21 1.0")
                             .model("CIRCLE 5 61 67 1 8 0 10 0.0 20 0.0 40 1.0")
                             .object("LAYOUT 5 70 100 AcDbPlotSettings 1 page 100 AcDbLayout 1 Sheet 330 1E")
                             .make();
    EXPECT_TRUE(drawing->findings().empty());
    std::vector<std::string> names;
    for (const Block& block : drawing->blocks().all()) names.push_back(block.name);
    EXPECT_EQ(names, (std::vector<std::string>{"*Model_Space", "*Paper_Space", "DOOR", "FIXED", "PLAIN"}));
    const Block& paper = drawing->blocks()[drawing->blocks().paperSpace()];
    EXPECT_EQ(paper.layoutName, "Sheet");
    EXPECT_EQ(drawing->entityCount(drawing->modelSpace()), 1u);
    EXPECT_EQ(drawing->entityCount(drawing->blocks().paperSpace()), 1u);
    EXPECT_EQ(drawing->owner(drawing->byHandle(0x61)), drawing->blocks().paperSpace());

    const Block& door = drawing->blocks()[drawing->blocks().find("door")];
    EXPECT_EQ(door.attributeDefinitions.size(), 2u);
    EXPECT_TRUE(door.hasConstantAttributes);
    EXPECT_EQ(door.basePoint, (Point3{1, 0, 0}));
    const Block& fixed = drawing->blocks()[drawing->blocks().find("FIXED")];
    EXPECT_TRUE(fixed.attributeDefinitions.empty());
    EXPECT_TRUE(fixed.hasAttributes());

    const EntityId line = drawing->byHandle(0x60);
    EXPECT_EQ(drawing->layerName(line), "WALLS");
    EXPECT_EQ(drawing->objectName(line), "AcDbLine");
    EXPECT_EQ(drawing->layer(line).color, 3);
}

TEST(Opening, MakesTheSpacesOfAnR12FileThatHasNone) {
    const std::string text =
        SampleDrawing::words("0 SECTION 2 ENTITIES 0 LINE 8 0 10 0.0 20 0.0 11 1.0 21 1.0 0 ENDSEC 0 EOF");
    const auto drawing = Drawing::parse(text, "bare.dxf");
    ASSERT_EQ(drawing->blocks().size(), 2u);
    EXPECT_EQ(drawing->blocks()[0].name, "*Model_Space");
    EXPECT_TRUE(drawing->blocks()[1].isLayout());
    EXPECT_EQ(drawing->blocks().find("$MODEL_SPACE"), drawing->modelSpace());
    EXPECT_EQ(drawing->entityCount(drawing->modelSpace()), 1u);
    EXPECT_EQ(drawing->savedBytes(), text);
}

TEST(Opening, GathersThePartsOfAnEntity) {
    const auto drawing = SampleDrawing()
                             .model("INSERT 5 60 8 0 66 1 2 DOOR 10 0.0 20 0.0")
                             .model("ATTRIB 5 61 8 0 10 0.0 20 0.0 40 1.0 1 a 2 TAG 70 0")
                             .model("ATTRIB 5 62 8 0 10 0.0 20 0.0 40 1.0 1 b 2 Width 70 0")
                             .model("SEQEND 5 63 8 0")
                             .model("POLYLINE 5 64 8 0 66 1 70 1")
                             .model("VERTEX 5 65 8 0 10 0.0 20 0.0")
                             .model("SEQEND 5 66 8 0")
                             .make();
    const EntityId insert = drawing->byHandle(0x60);
    EXPECT_EQ(entitiesOf(*drawing, drawing->modelSpace()).size(), 2u);
    ASSERT_EQ(drawing->attributes(insert).size(), 2u);
    EXPECT_EQ(drawing->attributeTag(drawing->attributes(insert)[1]), "Width");
    EXPECT_EQ(drawing->parts(drawing->byHandle(0x64)).count, 2u);
    EXPECT_EQ(drawing->mainEntity(drawing->byHandle(0x62)), insert);
    EXPECT_TRUE(drawing->findings().empty());
}

TEST(Opening, ListsWhatIsWrongAndKeepsItsBytes) {
    SampleDrawing sample;
    sample.model("LINE 5 60 8 0 10 0.0 20 0.0 11 1.0 21 1.0")
        .model("LINE 5 60 8 0 10 5.0 20 0.0 11 1.0 21 1.0")
        .model("INSERT 5 62 8 0 66 1 2 NOWHERE 10 0.0 20 0.0")
        .model("ATTRIB 5 63 8 0 10 0.0 20 0.0 40 1.0 1 a 2 TAG 70 0")
        .model("POINT 5 64 8 0 10 0.0 20 0.0")
        .model("VERTEX 5 65 8 0 10 0.0 20 0.0")
        .block("BLOCK 5 70 8 0 2 OPEN 70 0 10 0.0 20 0.0")
        .block("LINE 5 71 8 0 10 0.0 20 0.0 11 1.0 21 1.0")
        .seed("10");
    const auto drawing = sample.make();
    EXPECT_TRUE(hasFinding(*drawing, "the handle is taken"));
    EXPECT_TRUE(hasFinding(*drawing, "SEQEND of this INSERT is missing"));
    EXPECT_TRUE(hasFinding(*drawing, "NOWHERE"));
    EXPECT_TRUE(hasFinding(*drawing, "VERTEX that belongs to no entity"));
    EXPECT_TRUE(hasFinding(*drawing, "this block has no ENDBLK"));
    EXPECT_TRUE(hasFinding(*drawing, "no block record: OPEN"));
    EXPECT_TRUE(hasFinding(*drawing, "$HANDSEED"));
    EXPECT_EQ(drawing->entityCount(drawing->blocks().find("OPEN")), 1u);
    EXPECT_EQ(drawing->savedBytes(), sample.text());
    // The first of two keeps its handle, and no new object gets one that is taken.
    EXPECT_NE(groupsOf(*drawing, drawing->byHandle(0x60)).find("10=0.0"), std::string::npos);
    EXPECT_EQ(drawing->handle(drawing->addLine({}, {1, 1, 0})), 0x72u);

    EXPECT_THROW(sample.make(Reading::Strict), dxf::ReadError);
}

TEST(Opening, CorpusComesBackToTheByte) {
    const std::string folder = VORLANE_ROOT "/../shared/corpus/";
    int seen = 0;
    for (const char* name : {"architecture", "attribute", "custom_blocks", "example_2000", "example_2018",
                             "example_r12", "floorplan", "furniture", "multi_insert_with_attribs",
                             "table_with_block", "ts1_2018", "uncommon", "visibility"}) {
        const std::string bytes = bytesOfFile(folder + name + ".dxf");
        if (bytes.empty()) continue;
        ++seen;
        const auto drawing = Drawing::open(folder + name + ".dxf");
        EXPECT_TRUE(drawing->savedBytes() == bytes) << name;
        EXPECT_TRUE(drawing->findings().empty()) << name << ": " << dxf::toText(drawing->findings().front());
        EXPECT_FALSE(drawing->isModified());
    }
    if (seen == 0) GTEST_SKIP() << "the corpus isn't here";
    EXPECT_EQ(seen, 13);
}

}  // namespace
}  // namespace drawing
