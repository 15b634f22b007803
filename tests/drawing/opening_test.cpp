#include "desk/drawing/work_watch.h"
#include "tests/drawing/plain_drawing.h"

namespace drawing {
namespace {

TEST(Opening, ReadsBlocksSpacesAndLayers) {
    const auto drawing = PlainDrawing(Kind::R2000)
                             .entity("CIRCLE 5 61 67 1 8 WALLS 10 0.0 20 0.0 40 1.0")
                             .object("LAYOUT 5 70 100 AcDbPlotSettings 1 page 100 AcDbLayout 1 Sheet 330 1E")
                             .make();
    EXPECT_TRUE(drawing->findings().empty());
    std::string names;
    for (const Block& block : drawing->blocks().all()) names += block.name + " ";
    EXPECT_EQ(names, "*Model_Space *Paper_Space DOOR FIXED PLAIN ");
    const Block& paper = drawing->blocks()[drawing->blocks().paperSpace()];
    EXPECT_EQ(paper.layoutName, "Sheet");
    EXPECT_EQ(paper.entities, std::vector<EntityId>{drawing->byHandle(0x61)});
    EXPECT_EQ(drawing->layer(drawing->byHandle(0x61)).color, 3);

    const Block& door = drawing->blocks()[drawing->blocks().find("door")];
    EXPECT_EQ(door.attributeDefinitions.size(), 2u);
    EXPECT_TRUE(door.hasConstantAttributes);
    EXPECT_EQ(door.basePoint, (Point3{1, 0, 0}));
    const Block& fixed = drawing->blocks()[drawing->blocks().find("FIXED")];
    EXPECT_TRUE(fixed.attributeDefinitions.empty());
    EXPECT_TRUE(fixed.hasAttributes());
}

TEST(Opening, TellsHowFarItIsAndEndsWhereItsListenerGivesUp) {
    std::string lines;
    for (int i = 0; i < 2000; ++i) lines += " 0 LINE 8 0 10 " + std::to_string(i);
    const std::string text = groups("0 SECTION 2 ENTITIES" + lines + " 0 ENDSEC 0 EOF");
    std::vector<double> shares;
    const auto open = [&](std::size_t enough) {
        const WorkWatch watch([&, enough](double share) {
            shares.push_back(share);
            if (shares.size() == enough) throw std::runtime_error("enough");
        });
        WorkWatch::stage(0.5, 1);
        Drawing::parse(text, "many.dxf");
    };
    open(0);
    ASSERT_GT(shares.size(), 5u);
    EXPECT_TRUE(std::is_sorted(shares.begin(), shares.end()));
    EXPECT_TRUE(shares.front() >= 0.5 && shares.front() < 0.6 && shares.back() > 0.9 && shares.back() <= 1);
    shares.clear();
    EXPECT_THROW(open(3), std::runtime_error);
    Drawing::parse(text, "many.dxf");
    EXPECT_EQ(shares.size(), 3u) << "a watch that is gone hears nothing";
}

TEST(Opening, EntitiesWithoutHandlesAreToldApart) {
    for (const char* layer :
         {"0 TABLE 2 LAYER 0 LAYER 2 0 0 ENDTAB", "0 TABLE 2 LAYER 0 LAYER 5 7 2 0 0 ENDTAB"}) {
        const std::string text = groups(
            "0 SECTION 2 HEADER 9 $ACADVER 1 AC1009 0 ENDSEC 0 SECTION 2 TABLES " + std::string(layer) +
            " 0 ENDSEC 0 SECTION 2 ENTITIES 0 LINE 8 0 0 LINE 8 0 0 ENDSEC 0 EOF");
        const auto drawing = Drawing::parse(text, "bare.dxf");
        const auto lines = modelEntities(*drawing);
        ASSERT_EQ(lines.size(), 2u);
        EXPECT_NE(drawing->handle(lines[0]), drawing->handle(lines[1]));
        for (const EntityId line : lines) EXPECT_EQ(drawing->byHandle(drawing->handle(line)), line);
        EXPECT_EQ(drawing->byHandle(0), kNoEntity);
        EXPECT_EQ(drawing->savedBytes(), text) << "these handles are the session's own";
    }
}

TEST(Opening, HandlesFarApartAreFound) {
    PlainDrawing plain;
    std::vector<Handle> handles;
    for (Handle i = 1; i <= 300; ++i) handles.push_back(i % 3 == 0 ? 0x100 + i : (i << 40) + (i % 7) * 64);
    for (const Handle handle : handles) {
        std::ostringstream words;
        words << "LINE 5 " << std::hex << handle << " 8 0";
        plain.entity(words.str());
    }
    const auto drawing = plain.make();
    const auto lines = modelEntities(*drawing);
    ASSERT_EQ(lines.size(), handles.size());
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(drawing->byHandle(handles[i]), lines[i]) << i;
    EXPECT_EQ(drawing->byHandle((Handle{1} << 41) + 1), kNoEntity);
    EXPECT_EQ(drawing->byHandle(4), kNoEntity);
}

TEST(Opening, MakesTheSpacesOfAnR12FileThatHasNone) {
    const std::string text = PlainDrawing().entity("LINE 8 0 10 0.0 20 0.0 11 1.0 21 1.0").text();
    const auto drawing = Drawing::parse(text, "bare.dxf");
    ASSERT_EQ(drawing->blocks().size(), 2u);
    EXPECT_EQ(drawing->blocks()[0].name, "*Model_Space");
    EXPECT_TRUE(drawing->blocks()[1].isLayout());
    EXPECT_EQ(drawing->blocks().find("$MODEL_SPACE"), drawing->modelSpace());
    EXPECT_EQ(drawing->entityCount(drawing->modelSpace()), 1u);
    EXPECT_EQ(drawing->savedBytes(), text);
}

TEST(Opening, GathersThePartsOfAnEntity) {
    PlainDrawing plain(Kind::R2000);
    plain.entity("INSERT 5 60 8 0 66 1 2 DOOR 10 0.0 20 0.0")
        .entity("ATTRIB 5 61 8 0 10 0.0 20 0.0 40 1.0 1 a 2 TAG 70 0")
        .entity("ATTRIB 5 62 8 0 10 0.0 20 0.0 40 1.0 1 b 2 Width 70 0")
        .entity("SEQEND 5 63 8 0");
    plain.entity("POLYLINE 5 64 8 0 66 1 70 1").entity("VERTEX 5 65 8 0 10 0 20 0").entity("SEQEND 5 66 8 0");
    const auto drawing = plain.make();
    const EntityId insert = drawing->byHandle(0x60);
    EXPECT_EQ(modelEntities(*drawing), (std::vector{insert, drawing->byHandle(0x64)}));
    ASSERT_EQ(drawing->attributes(insert).size(), 2u);
    EXPECT_EQ(drawing->attributeTag(drawing->attributes(insert)[1]), "Width");
    EXPECT_EQ(drawing->parts(drawing->byHandle(0x64)).count, 2u);
    EXPECT_EQ(drawing->mainEntity(drawing->byHandle(0x62)), insert);
    EXPECT_TRUE(drawing->findings().empty());
}

// A record has little room: large numbers of parts and large handles stand elsewhere, and a name of its own
// for each of many entities has to be told from the others.
TEST(Opening, KeepsLargeHandlesManyPartsAndManyNames) {
    PlainDrawing plain(Kind::R2000);
    plain.entity("POLYLINE 5 123456789A 8 0 66 1 70 1");
    for (int i = 0; i < 300; ++i) plain.entity("VERTEX 8 0 10 " + std::to_string(i) + ".0 20 0.0");
    plain.entity("SEQEND 8 0");
    for (int i = 0; i < 300; ++i) {
        const std::string number = std::to_string(i);
        plain.entity("INSERT 5 1A0000" + std::to_string(1000 + i) + " 8 L" + number + " 2 B" + number +
                     " 10 0.0 20 0.0");
    }
    const auto drawing = plain.make();
    const std::string before = drawing->savedBytes();
    const EntityId polyline = drawing->byHandle(0x123456789A);
    ASSERT_EQ(drawing->handle(polyline), 0x123456789Au);
    EXPECT_EQ(drawing->parts(polyline).count, 301u);
    for (int i = 0; i < 300; ++i) {
        const EntityId insert = polyline + 302 + static_cast<EntityId>(i);
        const std::string number = std::to_string(i);
        EXPECT_EQ(drawing->name(insert), std::string("B").append(number));
        EXPECT_EQ(drawing->layerName(insert), std::string("L").append(number));
        const Filter filter{{2, std::string("b").append(number)}, {8, std::string("l").append(number)}};
        EXPECT_EQ(drawing->select(filter), std::vector{insert});
    }
    drawing->setText(polyline, 8, "", "WALLS");
    drawing->erase(polyline);
    EXPECT_FALSE(contains(drawing->savedBytes(), "VERTEX"));
    EXPECT_EQ(drawing->handle(drawing->addLine({}, {1, 1, 0})), 0x1A0000129Au);
    while (drawing->undo()) continue;
    EXPECT_EQ(drawing->savedBytes(), before);
    EXPECT_EQ(drawing->parts(drawing->byHandle(0x123456789A)).count, 301u);
    while (drawing->redo()) continue;
    EXPECT_FALSE(contains(drawing->savedBytes(), "VERTEX"));
    EXPECT_NE(drawing->byHandle(0x1A0000129A), kNoEntity);
}

TEST(Opening, ListsWhatIsWrongAndKeepsItsBytes) {
    PlainDrawing sample(Kind::R2000, "10");
    sample.entity("LINE 5 60 8 0 10 0.0 20 0.0 11 1.0 21 1.0")
        .entity("LINE 5 60 8 0 10 5.0 20 0.0 11 1.0 21 1.0")
        .entity("INSERT 5 62 8 0 66 1 2 NOWHERE 10 0.0 20 0.0")
        .entity("ATTRIB 5 63 8 0 10 0.0 20 0.0 40 1.0 1 a 2 TAG 70 0")
        .entity("POINT 5 64 8 0 10 0.0 20 0.0")
        .entity("VERTEX 5 65 8 0 10 0.0 20 0.0")
        .inBlock("ENDBLK 8 0")
        .inBlock("BLOCK 5 70 8 0 2 OPEN 70 0 10 0.0 20 0.0")
        .inBlock("LINE 5 71 8 0 10 0.0 20 0.0 11 1.0 21 1.0");
    std::string text = sample.text();
    const std::string lastEnd = groups("0 ENDBLK 8 0");
    text.erase(text.rfind(lastEnd), lastEnd.size());
    const auto drawing = Drawing::parse(text, "wrong.dxf");
    std::string findings;
    for (const dxf::Finding& finding : drawing->findings()) findings += finding.reason + "\n";
    for (const char* part : {"the handle is taken", "SEQEND of this INSERT is missing", "NOWHERE",
                             "VERTEX that belongs to no entity", "this block has no ENDBLK",
                             "no block record: OPEN", "$HANDSEED"})
        EXPECT_TRUE(contains(findings, part)) << part << " isn't among " << findings;
    EXPECT_EQ(drawing->entityCount(drawing->blocks().find("OPEN")), 1u);
    EXPECT_EQ(drawing->savedBytes(), text);
    // The first of two keeps its handle, and no new object gets one that is taken.
    EXPECT_TRUE(contains(groupsOf(*drawing, drawing->byHandle(0x60)), "10=0.0"));
    EXPECT_EQ(drawing->handle(drawing->addLine({}, {1, 1, 0})), 0x72u);
    EXPECT_THROW(Drawing::parse(text, "wrong.dxf", Reading::Strict), dxf::ReadError);
}

// What is added stands in front of a piece of a group at the end, so that the file can be read again.
TEST(Opening, AFileThatEndsAmidAGroupTakesWhatIsAdded) {
    const std::string zero(1, '\0');
    for (const std::string& text : {"AutoCAD Binary DXF\r\n\x1a" + zero + zero + zero + "SECTION" + zero +
                                        "\x02" + zero + "SPARE" + zero + zero + zero + "LI",
                                    std::string("  0\nSECTION\n  2\nSPARE\n  0"),
                                    std::string("  0\nSECTION\n  2\nSPARE\n  0\nENDSEC\n  9")}) {
        const auto drawing = Drawing::parse(text, "cut.dxf");
        EXPECT_EQ(drawing->savedBytes(), text);
        drawing->addLine({0, 0, 0}, {1, 1, 0});
        const auto again = Drawing::parse(drawing->savedBytes(), "saved.dxf");
        EXPECT_EQ(again->entityCount(again->modelSpace()), 1u);
        drawing->undo();
        EXPECT_EQ(drawing->savedBytes(), text);
    }
}

}  // namespace
}  // namespace drawing
