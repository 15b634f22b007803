#include "desk/dxf/tag_writer.h"
#include "desk/import/import_block.h"
#include "tests/drawing/plain_drawing.h"

namespace importing {
namespace {

using namespace drawing;

/// A drawing as a drafter keeps a block in: geometry on a layer of its own, an attribute definition, a nested
/// block, an anonymous one and one whose name the other drawing knows too.
std::unique_ptr<Drawing> blockFile(Kind kind) {
    PlainDrawing file(kind);
    file.header("9 $INSBASE 10 5.0 20 6.0 30 0.0").layer("16", "OWN 70 1 62 3");
    file.block("NEST").inBlock("CIRCLE 100 AcDbEntity 8 WALLS 100 AcDbCircle 10 0.0 20 0.0 40 2.0");
    file.block("*U1").inBlock("POINT 100 AcDbEntity 8 0 100 AcDbPoint 10 0.0 20 0.0");
    file.entity("ARC 5 60 100 AcDbEntity 8 OWN 100 AcDbCircle 10 1 20 2 40 3 100 AcDbArc 50 10 51 80");
    file.entity(
        "TEXT 5 65 100 AcDbEntity 8 0 100 AcDbText 10 1.0 20 2.0 40 3.0 1 d\xE9j\xE0 72 1 11 1.0 "
        "21 2.0 100 AcDbText 73 2 1001 ACAD 1005 60 1000 data");
    for (const char* words : {"61 2 NEST", "62 2 *U1", "63 2 PLAIN"})
        file.entity(std::string("INSERT 100 AcDbEntity 8 0 100 AcDbBlockReference 10 0.0 20 0.0 5 ") + words);
    file.entity(
        "ATTDEF 5 64 100 AcDbEntity 8 0 100 AcDbText 10 6.0 20 8.0 40 2.0 1 x 100 "
        "AcDbAttributeDefinition 3 Code? 2 CODE 70 0");
    return file.make();
}

std::vector<std::string> contentOf(const Drawing& drawing, const std::string& block) {
    std::vector<std::string> content;
    for (EntityId id : entitiesOf(drawing, drawing.blocks().find(block)))
        content.push_back(groupsOf(drawing, id));
    return content;
}

class Import : public testing::TestWithParam<std::tuple<Kind, Kind>> {};

TEST_P(Import, BringsABlockWithAllThatItNeeds) {
    const auto [to, from] = GetParam();
    const bool old = to == Kind::R12;
    const auto drawing = PlainDrawing(to).block("*U1").make();
    const std::string before = drawing->savedBytes();
    const std::size_t findings = drawing->findings().size();
    const ImportResult result = importBlock(*drawing, *blockFile(from), "window");
    EXPECT_FALSE(result.redefined);
    EXPECT_EQ(result.kept, std::vector<std::string>{"PLAIN"});
    EXPECT_TRUE(result.leftBehind.empty());
    const EntityId made = drawing->insertBlock(result.block, {100, 100, 0}, {1, 1, 1}, 0);

    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    EXPECT_EQ(saved->findings().size(), findings);
    const Block& block = saved->blocks()[saved->blocks().find("WINDOW")];
    EXPECT_EQ(block.basePoint, (Point3{5, 6, 0}));
    EXPECT_EQ(block.flags, 2);
    EXPECT_EQ(block.handle != 0, !old);
    ASSERT_EQ(block.entities.size(), 6u);
    EXPECT_EQ(block.attributeDefinitions.size(), 1u);
    EXPECT_EQ(saved->layer(block.entities[0]).color, 3);
    EXPECT_TRUE(saved->layer(block.entities[0]).frozen);
    EXPECT_EQ(saved->entityCount(saved->blocks().find("NEST")), 1u);
    // The anonymous block was renumbered: the drawing's own *U1 is another one.
    EXPECT_NE(saved->name(block.entities[3]), "*U1");
    EXPECT_EQ(saved->entityCount(saved->blocks().find(saved->name(block.entities[3]))), 1u);

    // Handles are new, and what names one in the data follows.
    const Handle arc = saved->handle(block.entities[0]);
    const std::string text = groupsOf(*saved, block.entities[1]);
    EXPECT_GE(arc, 0x100u);
    std::ostringstream expected;
    expected << "1005=" << std::hex << std::uppercase << arc << "|1000=data";
    EXPECT_TRUE(contains(text, expected.str())) << text;
    EXPECT_TRUE(contains(text, "1=déjà|")) << text;
    EXPECT_EQ(contains(text, "100=AcDbText|73=2|"), !old) << text;
    EXPECT_EQ(contains(groupsOf(*saved, block.entities[0]), "100="), !old);

    const AttribData code = drawing->attribute(drawing->attributes(made)[0]);
    EXPECT_EQ(code.tag, "CODE");
    EXPECT_EQ(code.position, (Point3{101, 102, 0}));

    drawing->undo();
    drawing->undo();
    EXPECT_EQ(drawing->savedBytes(), before);
    EXPECT_EQ(drawing->blocks().find("WINDOW"), kNoBlock);
    for (const Layer& layer : drawing->layers().all()) EXPECT_NE(layer.name, "OWN");
}

INSTANTIATE_TEST_SUITE_P(Versions, Import,
                         testing::Combine(testing::Values(Kind::R2000, Kind::R12),
                                          testing::Values(Kind::R2000, Kind::R12)));

TEST(ImportBlock, NestedReferencesOfFilesKeepTheirPath) {
    PlainDrawing file(Kind::R2000);
    file.block("SITE").inBlock("POINT 100 AcDbEntity 8 0 100 AcDbPoint 10 0.0 20 0.0");
    file.entity("INSERT 100 AcDbEntity 8 0 100 AcDbBlockReference 2 SITE 10 0.0 20 0.0");
    std::string text = file.text();
    const std::string plain = groups("2 SITE 70 0");
    text.replace(text.find(plain), plain.size(), groups("2 SITE 70 4 1 C:\\site.dxf"));
    const auto drawing = PlainDrawing(Kind::R2000).make();
    importBlock(*drawing, *Drawing::parse(text, "site.dxf"), "PLOT");
    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    const Block& site = saved->blocks()[saved->blocks().find("SITE")];
    EXPECT_TRUE(site.isXRef());
    EXPECT_EQ(site.xrefPath, "C:\\site.dxf");
}

TEST(ImportBlock, RedefinesABlockOfThatName) {
    const auto drawing = PlainDrawing(Kind::R2000).entity("INSERT 5 60 8 0 2 DOOR 10 0.0 20 0.0").make();
    const std::string before = drawing->savedBytes();
    const BlockId door = drawing->blocks().find("DOOR");
    const ImportResult first = importBlock(*drawing, *blockFile(Kind::R2000), "Door");
    EXPECT_TRUE(first.redefined);
    EXPECT_EQ(first.block, door);
    const std::uint64_t revision = drawing->revision();
    const ImportResult second = importBlock(*drawing, *blockFile(Kind::R12), "DOOR");
    EXPECT_EQ(second.block, door);
    EXPECT_GT(drawing->revision(), revision) << "whoever keeps what a block draws hears of it";
    EXPECT_EQ(second.kept.size(), 2u) << "NEST came with the first";
    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    EXPECT_TRUE(saved->findings().empty());
    EXPECT_EQ(contentOf(*saved, "DOOR").size(), 6u);
    EXPECT_EQ(contentOf(*saved, "DOOR"), contentOf(*drawing, "DOOR"));
    drawing->undo();
    drawing->undo();
    EXPECT_EQ(drawing->savedBytes(), before);
    EXPECT_EQ(contentOf(*drawing, "DOOR").size(), 4u);
    EXPECT_EQ(drawing->blocks()[door].attributeDefinitions.size(), 2u);
}

TEST(ImportBlock, RefusesWhatWouldHoldItself) {
    const auto drawing =
        PlainDrawing(Kind::R2000).block("NEST").inBlock("INSERT 5 91 8 0 2 WINDOW 10 0.0 20 0.0").make();
    const std::string before = drawing->savedBytes();
    const auto source = blockFile(Kind::R2000);
    // The drawing keeps its own NEST, which holds a reference of the new block.
    for (const char* name : {"PLAIN", "*Model_Space", "", "WINDOW"})
        EXPECT_EQ(errorOf([&] { importBlock(*drawing, *source, name); }), kInvalidInput) << name;
    EXPECT_EQ(drawing->savedBytes(), before);
    EXPECT_FALSE(drawing->canUndo());
}

TEST(ImportBlock, TellsWhatStaysBehindAndTurnsPolylinesOld) {
    const auto source =
        PlainDrawing(Kind::R2000)
            .entity(
                "LWPOLYLINE 5 60 100 AcDbEntity 8 WALLS 100 AcDbPolyline 90 2 70 1 43 0.5 38 7.0 10 1.0 "
                "20 2.0 42 0.5 10 3.0 20 4.0")
            .entity("ELLIPSE 5 61 8 0 10 0.0 20 0.0 11 1.0 21 0.0 40 0.5 41 0.0 42 6.0")
            .entity("IMAGE 5 62 100 AcDbEntity 8 0 100 AcDbRasterImage 340 70")
            .object("IMAGEDEF 5 70 330 1 100 AcDbRasterImageDef 1 picture.png")
            .make();
    const auto old = PlainDrawing(Kind::R12).make();
    const ImportResult result = importBlock(*old, *source, "SHAPE");
    EXPECT_EQ(result.leftBehind,
              (std::vector<std::string>{"ELLIPSE 61 is unknown in R12", "IMAGE 62 is unknown in R12"}));
    const EntityId polyline = entitiesOf(*old, result.block)[0];
    EXPECT_TRUE(contains(groupsOf(*old, polyline), "8=WALLS|66=1|10=0.0|20=0.0|30=7.0|70=1|40=0.5|41=0.5|"));
    ASSERT_EQ(old->parts(polyline).count, 3u);
    EXPECT_TRUE(contains(groupsOf(*old, polyline + 1), "10=1.0|20=2.0|30=7.0|42=0.5|"));

    const auto young = PlainDrawing(Kind::R2000).make();
    const ImportResult other = importBlock(*young, *source, "SHAPE");
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
    for (const Kind kind : {Kind::R2000, Kind::R12}) {
        const auto text =
            PlainDrawing(kind).entity("INSERT 5 60 8 0 2 PLAIN 10 1.0 20 2.0 30 0.0 41 2.0").make();
        const std::string bytes = binaryOf(*text);
        const auto binary = Drawing::parse(bytes, "binary.dxf");
        EXPECT_EQ(binary->savedBytes(), bytes);
        for (Drawing* drawing : {text.get(), binary.get()}) {
            const EntityId made =
                drawing->insertBlock(drawing->blocks().find("DOOR"), {1, 2, 3}, {1, 2, 1}, 0.5);
            drawing->setAttributeText(drawing->attributes(made)[0], "é");
            drawing->setVisible(made, false);
            drawing->setRotation(drawing->byHandle(0x60), 1);
            importBlock(*drawing, *blockFile(kind == Kind::R12 ? Kind::R2000 : Kind::R12), "WINDOW");
        }
        EXPECT_EQ(binary->savedBytes(), binaryOf(*text));
        while (binary->canUndo()) binary->undo();
        EXPECT_EQ(binary->savedBytes(), bytes);
    }
}

TEST(ImportOf, BlocksNestedTooDeepIsRefusedAndChangesNothing) {
    PlainDrawing file;
    constexpr int kNested = 8000;
    for (int i = 0; i < kNested; ++i)
        file.block("B" + std::to_string(i))
            .inBlock("INSERT 8 0 2 B" + std::to_string(i + 1) + " 10 0.0 20 0.0");
    file.block("B" + std::to_string(kNested)).entity("INSERT 8 0 2 B0 10 0.0 20 0.0");
    const auto drawing = PlainDrawing(Kind::R2000).make();
    const std::string before = drawing->savedBytes();
    EXPECT_EQ(errorOf([&] { importBlock(*drawing, *file.make(), "deep"); }), kInvalidInput);
    EXPECT_EQ(drawing->savedBytes(), before);
}

/// A value that can't be read stands behind much that came in already: all of it goes, within a step too.
TEST(ImportOf, AFileThatFailsOnItsWayChangesNothing) {
    PlainDrawing file(Kind::R2000);
    file.layer("1D", "OWN 70 0 62 3").block("FRESH").inBlock("POINT 5 91 8 OWN 10 0.0 20 0.0");
    file.entity("INSERT 5 92 8 0 2 FRESH 10 0.0 20 0.0")
        .entity(
            "LWPOLYLINE 5 93 100 AcDbEntity 8 0 100 AcDbPolyline 90 2.5 70 1 10 1.0 20 2.0 10 3.0 20 4.0");
    const auto source = file.make();
    for (const char* name : {"WINDOW", "DOOR"}) {
        const auto drawing = PlainDrawing(Kind::R2000).entity("INSERT 5 60 8 0 2 DOOR 10 0.0 20 0.0").make();
        const std::string before = drawing->savedBytes();
        const auto content = contentOf(*drawing, "DOOR");
        EXPECT_NE(errorOf([&] { importBlock(*drawing, *source, name); }), 0) << name;
        EXPECT_EQ(drawing->savedBytes(), before) << name;
        EXPECT_FALSE(drawing->canUndo()) << name;
        {
            const UndoStep step(*drawing);
            drawing->insertBlock(drawing->blocks().find("DOOR"), {1, 2, 3}, {1, 1, 1}, 0);
            const std::string amid = drawing->savedBytes();
            EXPECT_NE(errorOf([&] { importBlock(*drawing, *source, name); }), 0) << name;
            EXPECT_EQ(drawing->savedBytes(), amid) << name;
            EXPECT_EQ(contentOf(*drawing, "DOOR"), content) << name;
            EXPECT_EQ(drawing->blocks().find("FRESH"), kNoBlock) << name;
            importBlock(*drawing, *blockFile(Kind::R2000), name);
        }
        EXPECT_TRUE(Drawing::parse(drawing->savedBytes(), "saved.dxf")->findings().empty()) << name;
        drawing->undo();
        EXPECT_EQ(drawing->savedBytes(), before) << name;
    }
}

/// BLOCKS and ENTITIES both come behind a last line without its end.
TEST(ImportOf, ATargetThatBreaksOffCanBeReadAgain) {
    const std::string text = "0\nSECTION\n2\nSPARE\n0\nSE";
    const auto drawing = Drawing::parse(text, "open.dxf");
    const ImportResult made = importBlock(*drawing, *blockFile(Kind::R2000), "WINDOW");
    drawing->insertBlock(made.block, {1, 2, 3}, {1, 1, 1}, 0);
    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    EXPECT_EQ(saved->entityCount(saved->modelSpace()), 1u);
    EXPECT_EQ(saved->entityCount(saved->blocks().find("WINDOW")), drawing->entityCount(made.block));
}

/// A drawing without block records lists each block as a finding, stays usable, and takes no block file.
TEST(ImportOf, ATargetWithoutBlockRecordsSaysSo) {
    std::string text = PlainDrawing(Kind::R2000).text();
    const std::size_t table = text.find(groups("0 TABLE 2 BLOCK_RECORD"));
    text.erase(table, text.find(groups("0 ENDTAB"), table) + groups("0 ENDTAB").size() - table);
    const auto drawing = Drawing::parse(text, "no_records.dxf");
    EXPECT_EQ(drawing->findings().size(), 5u);
    for (const dxf::Finding& finding : drawing->findings()) EXPECT_EQ(finding.kind.code, "K6");
    try {
        importBlock(*drawing, *blockFile(Kind::R2000), "WINDOW");
        ADD_FAILURE() << "it was brought in";
    } catch (const basic::Error& error) {
        EXPECT_TRUE(contains(error.description(), "no table of block records")) << error.description();
    }
    EXPECT_EQ(drawing->savedBytes(), text);
    drawing->insertBlock(drawing->blocks().find("DOOR"), {1, 2, 3}, {1, 2, 1}, 0.5);
    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    EXPECT_EQ(saved->entityCount(saved->modelSpace()), 1u);
    EXPECT_EQ(saved->findings().size(), 5u);
}

TEST(ImportOf, ATargetGetsTheTablesThatItLacks) {
    const std::string text = groups("0 SECTION 2 HEADER 9 $ACADVER 1 AC1009 0 ENDSEC 0 EOF");
    PlainDrawing file(Kind::R12);
    file.layer("16", "OWN 70 0 62 3");
    file.entity("TEXT 8 OWN 7 STANDARD 6 NONE 10 1.0 20 2.0 40 3.0 1 a");
    file.entity("TEXT 8 OWN 7 NONE 10 1.0 20 2.0 40 3.0 1 b");
    const auto drawing = Drawing::parse(text, "bare.dxf");
    importBlock(*drawing, *file.make(), "note");
    EXPECT_TRUE(drawing->isModified());
    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    EXPECT_EQ(drawing->savedBytes().find("NONE"), std::string::npos);
    EXPECT_EQ(saved->layers().all().size(), 1u);
    const auto count = [bytes = drawing->savedBytes()](std::string_view word) {
        std::size_t found = 0;
        for (std::size_t at = 0; (at = bytes.find(word, at)) != std::string::npos; ++at) ++found;
        return found;
    };
    EXPECT_EQ(count("  0\r\nTABLE\r\n"), 3u) << "layers, styles, linetypes";
    EXPECT_EQ(count("  0\r\nENDTAB\r\n"), 3u);
    EXPECT_EQ(entitiesOf(*saved, saved->blocks().find("note")).size(), 2u);
    EXPECT_EQ(saved->findings().size(), 1u) << "ENTITIES is missing as before";
    drawing->undo();
    EXPECT_EQ(drawing->savedBytes(), text);
    EXPECT_FALSE(drawing->isModified());
}

}  // namespace
}  // namespace importing
