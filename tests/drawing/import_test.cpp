#include "desk/dxf/tag_writer.h"
#include "tests/drawing/sample_drawing.h"

namespace drawing {
namespace {

/// A drawing as a drafter keeps a block in: geometry on a layer of its own, an attribute definition, a nested
/// block, an anonymous one and one whose name the other drawing knows too.
std::unique_ptr<Drawing> blockFile(bool r12) {
    const auto part = [&](const char* marker) { return r12 ? std::string() : std::string(" 100 ") + marker; };
    const std::string frame = part("AcDbEntity");
    SampleDrawing file(r12);
    file.header("9 $INSBASE 10 5.0 20 6.0 30 0.0")
        .block("BLOCK 8 0 2 NEST 70 0 10 0.0 20 0.0")
        .block("CIRCLE" + frame + " 8 WALLS" + part("AcDbCircle") + " 10 0.0 20 0.0 40 2.0")
        .block("ENDBLK 8 0")
        .block("BLOCK 8 0 2 *U1 70 1 10 0.0 20 0.0")
        .block("POINT" + frame + " 8 0" + part("AcDbPoint") + " 10 0.0 20 0.0")
        .block("ENDBLK 8 0")
        .model("ARC 5 60" + frame + " 8 OWN" + part("AcDbCircle") + " 10 1.0 20 2.0 40 3.0" +
               part("AcDbArc") + " 50 10.0 51 80.0")
        .model("TEXT 5 65" + frame + " 8 0" + part("AcDbText") +
               " 10 1.0 20 2.0 40 3.0 1 d\xE9j\xE0 72 1 11 1.0 21 2.0" + part("AcDbText") +
               " 73 2 1001 ACAD 1005 60 1000 data")
        .model("INSERT 5 61" + frame + " 8 0" + part("AcDbBlockReference") + " 2 NEST 10 0.0 20 0.0")
        .model("INSERT 5 62" + frame + " 8 0" + part("AcDbBlockReference") + " 2 *U1 10 0.0 20 0.0")
        .model("INSERT 5 63" + frame + " 8 0" + part("AcDbBlockReference") + " 2 PLAIN 10 0.0 20 0.0")
        .model("ATTDEF 5 64" + frame + " 8 0" + part("AcDbText") + " 10 6.0 20 8.0 40 2.0 1 x" +
               part("AcDbAttributeDefinition") + " 3 Code? 2 CODE 70 0");
    std::string text = file.text();
    // A fifth layer, green and frozen.
    const std::string table = SampleDrawing::words(r12 ? "0 TABLE 2 LAYER 70 9" : "100 AcDbSymbolTable 70 9");
    const std::size_t at =
        text.find(table, r12 ? 0 : text.find(SampleDrawing::words("2 LAYER"))) + table.size();
    text.insert(
        at,
        SampleDrawing::words("0 LAYER 5 15") +
            (r12 ? "" : SampleDrawing::words("330 2 100 AcDbSymbolTableRecord 100 AcDbLayerTableRecord")) +
            SampleDrawing::words("2 OWN 70 1 62 3 6 CONTINUOUS"));
    return Drawing::parse(text, "block.dxf");
}

std::vector<std::string> contentOf(const Drawing& drawing, const std::string& block) {
    std::vector<std::string> content;
    for (EntityId id : entitiesOf(drawing, drawing.blocks().find(block)))
        content.push_back(groupsOf(drawing, id));
    return content;
}

class Import : public testing::TestWithParam<std::pair<bool, bool>> {};

TEST_P(Import, BringsABlockWithAllThatItNeeds) {
    const auto [toR12, fromR12] = GetParam();
    const auto drawing =
        SampleDrawing(toR12).block("BLOCK 8 0 2 *U1 70 1 10 0.0 20 0.0").block("ENDBLK 8 0").make();
    const std::string before = drawing->savedBytes();
    const std::size_t findings = drawing->findings().size();
    const ImportResult result = drawing->importBlock(*blockFile(fromR12), "window");
    EXPECT_FALSE(result.redefined);
    EXPECT_EQ(result.kept, std::vector<std::string>{"PLAIN"});
    EXPECT_TRUE(result.leftBehind.empty());
    const EntityId made = drawing->insertBlock(result.block, {100, 100, 0}, {1, 1, 1}, 0);

    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    EXPECT_EQ(saved->findings().size(), findings);
    const Block& block = saved->blocks()[saved->blocks().find("WINDOW")];
    EXPECT_EQ(block.basePoint, (Point3{5, 6, 0}));
    EXPECT_EQ(block.flags, 2);
    EXPECT_EQ(block.handle != 0, !toR12);
    ASSERT_EQ(block.entities.size(), 6u);
    EXPECT_EQ(block.attributeDefinitions.size(), 1u);
    EXPECT_EQ(saved->layer(block.entities[0]).color, 3);
    EXPECT_TRUE(saved->layer(block.entities[0]).frozen);
    EXPECT_EQ(saved->name(block.entities[2]), "NEST");
    EXPECT_EQ(saved->entityCount(saved->blocks().find("NEST")), 1u);
    // The anonymous block was renumbered: the drawing's own *U1 is another one.
    EXPECT_NE(saved->name(block.entities[3]), "*U1");
    EXPECT_EQ(saved->entityCount(saved->blocks().find(saved->name(block.entities[3]))), 1u);
    EXPECT_EQ(saved->name(block.entities[4]), "PLAIN");

    // Handles are new, and what names one in the data follows.
    const Handle arc = saved->handle(block.entities[0]);
    const std::string text = groupsOf(*saved, block.entities[1]);
    EXPECT_GE(arc, 0x100u);
    char expected[40];
    std::snprintf(expected, sizeof expected, "1005=%llX|1000=data", static_cast<unsigned long long>(arc));
    EXPECT_NE(text.find(expected), std::string::npos) << text;
    EXPECT_NE(text.find("1=déjà|"), std::string::npos) << text;
    EXPECT_EQ(text.find("100=AcDbText|73=2|") != std::string::npos, !toR12) << text;
    EXPECT_EQ(groupsOf(*saved, block.entities[0]).find("100=") != std::string::npos, !toR12);

    const AttribData code = drawing->attribute(drawing->attributes(made)[0]);
    EXPECT_EQ(code.tag, "CODE");
    EXPECT_EQ(code.position, (Point3{101, 102, 0}));

    drawing->undo();
    drawing->undo();
    EXPECT_EQ(drawing->savedBytes(), before);
    EXPECT_EQ(drawing->blocks().find("WINDOW"), kNoBlock);
}

INSTANTIATE_TEST_SUITE_P(Versions, Import,
                         testing::Values(std::pair(false, false), std::pair(false, true),
                                         std::pair(true, false), std::pair(true, true)));

TEST(ImportBlock, RedefinesABlockOfThatName) {
    const auto drawing = SampleDrawing().model("INSERT 5 60 8 0 2 DOOR 10 0.0 20 0.0").make();
    const std::string before = drawing->savedBytes();
    const BlockId door = drawing->blocks().find("DOOR");
    const ImportResult first = drawing->importBlock(*blockFile(false), "Door");
    EXPECT_TRUE(first.redefined);
    EXPECT_EQ(first.block, door);
    const ImportResult second = drawing->importBlock(*blockFile(true), "DOOR");
    EXPECT_EQ(second.block, door);
    EXPECT_EQ(second.kept.size(), 2u) << "NEST came with the first";
    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    EXPECT_TRUE(saved->findings().empty());
    EXPECT_EQ(saved->blocks()[saved->blocks().find("DOOR")].name, "DOOR");
    EXPECT_EQ(contentOf(*saved, "DOOR").size(), 6u);
    EXPECT_EQ(contentOf(*saved, "DOOR"), contentOf(*drawing, "DOOR"));
    drawing->undo();
    drawing->undo();
    EXPECT_EQ(drawing->savedBytes(), before);
    EXPECT_EQ(contentOf(*drawing, "DOOR").size(), 4u);
    EXPECT_EQ(drawing->blocks()[door].attributeDefinitions.size(), 2u);
}

TEST(ImportBlock, RefusesWhatWouldHoldItself) {
    const auto drawing = SampleDrawing()
                             .block("BLOCK 5 90 8 0 2 NEST 70 0 10 0.0 20 0.0")
                             .block("INSERT 5 91 8 0 2 WINDOW 10 0.0 20 0.0")
                             .block("ENDBLK 5 92 8 0")
                             .make();
    const std::string before = drawing->savedBytes();
    const auto source = blockFile(false);
    EXPECT_EQ(errorOf([&] { drawing->importBlock(*source, "PLAIN"); }), kInvalidInput);
    EXPECT_EQ(errorOf([&] { drawing->importBlock(*source, "*Model_Space"); }), kInvalidInput);
    EXPECT_EQ(errorOf([&] { drawing->importBlock(*source, ""); }), kInvalidInput);
    // The drawing keeps its own NEST, which holds a reference of the new block.
    EXPECT_EQ(errorOf([&] { drawing->importBlock(*source, "WINDOW"); }), kInvalidInput);
    EXPECT_EQ(drawing->savedBytes(), before);
    EXPECT_FALSE(drawing->canUndo());
}

TEST(ImportBlock, TellsWhatStaysBehindAndTurnsPolylinesOld) {
    const auto source = SampleDrawing()
                            .model(
                                "LWPOLYLINE 5 60 100 AcDbEntity 8 WALLS 100 AcDbPolyline 90 2 70 1 43 0.5 38 "
                                "7.0 10 1.0 20 2.0 42 0.5 10 3.0 20 4.0")
                            .model(
                                "ELLIPSE 5 61 100 AcDbEntity 8 0 100 AcDbEllipse 10 0.0 20 0.0 11 1.0 21 0.0 "
                                "40 0.5 41 0.0 42 6.0")
                            .model("IMAGE 5 62 100 AcDbEntity 8 0 100 AcDbRasterImage 340 70")
                            .object("IMAGEDEF 5 70 330 1 100 AcDbRasterImageDef 1 picture.png")
                            .make();
    const auto old = SampleDrawing(true).make();
    const ImportResult result = old->importBlock(*source, "SHAPE");
    EXPECT_EQ(result.leftBehind,
              (std::vector<std::string>{"ELLIPSE 61 is unknown in R12", "IMAGE 62 is unknown in R12"}));
    const EntityId polyline = entitiesOf(*old, result.block)[0];
    EXPECT_NE(groupsOf(*old, polyline).find("8=WALLS|66=1|10=0.0|20=0.0|30=7.0|70=1|40=0.5|41=0.5|"),
              std::string::npos);
    ASSERT_EQ(old->parts(polyline).count, 3u);
    EXPECT_NE(groupsOf(*old, polyline + 1).find("10=1.0|20=2.0|30=7.0|42=0.5|"), std::string::npos);

    const auto young = SampleDrawing().make();
    const ImportResult other = young->importBlock(*source, "SHAPE");
    EXPECT_EQ(other.leftBehind,
              std::vector<std::string>{"IMAGE 62 depends on an object that stays behind: IMAGEDEF"});
    EXPECT_EQ(young->entityCount(other.block), 2u);
}

/// The groups of a drawing as binary DXF.
std::string binaryOf(const Drawing& drawing) {
    dxf::Format format = drawing.format();
    format.binary = true;
    format.wideCodes = format.hasSubclasses();
    std::string bytes(dxf::kBinarySentinel);
    dxf::TagWriter writer(format, bytes);
    const std::string text = drawing.savedBytes();
    dxf::TagReader reader({text, &drawing.format(), {}}, 0, text.size());
    for (dxf::Tag tag; reader.next(tag);) writer.copy(tag);
    return bytes;
}

TEST(BinaryDrawing, IsEditedLikeATextOne) {
    for (const bool r12 : {false, true}) {
        const auto text =
            SampleDrawing(r12).model("INSERT 5 60 8 0 2 PLAIN 10 1.0 20 2.0 30 0.0 41 2.0").make();
        const std::string bytes = binaryOf(*text);
        const auto binary = Drawing::parse(bytes, "binary.dxf");
        EXPECT_EQ(binary->savedBytes(), bytes);
        for (Drawing* drawing : {text.get(), binary.get()}) {
            const EntityId made =
                drawing->insertBlock(drawing->blocks().find("DOOR"), {1, 2, 3}, {1, 2, 1}, 0.5);
            drawing->setAttributeText(drawing->attributes(made)[0], "é");
            drawing->setVisible(made, false);
            drawing->setRotation(drawing->byHandle(0x60), 1);
            drawing->importBlock(*blockFile(!r12), "WINDOW");
        }
        EXPECT_EQ(binary->savedBytes(), binaryOf(*text));
        while (binary->undo()) {
        }
        EXPECT_EQ(binary->savedBytes(), bytes);
    }
}

}  // namespace
}  // namespace drawing
