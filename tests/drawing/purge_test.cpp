#include "tests/drawing/plain_drawing.h"

namespace drawing {
namespace {

/// FIXED is needed by nothing; OUTER by nothing, and INNER, which has a dictionary, by OUTER alone.
PlainDrawing withUnused(Kind kind) {
    PlainDrawing plain(kind);
    plain.block("INNER")
        .inBlock("LINE 5 71 102 {ACAD_XDICTIONARY 360 90 102 } 8 0 10 0.0 20 0.0 11 1.0 21 0.0")
        .block("OUTER")
        .inBlock("INSERT 5 72 8 0 2 inner 10 0.0 20 0.0 30 0.0")
        .block("ARROW")
        .inBlock("LINE 5 73 8 0 10 0.0 20 0.0 11 1.0 21 0.0")
        .header("9 $DIMBLK1 1 ARROW")
        .entity("INSERT 5 60 330 1F 8 0 2 DOOR 10 0.0 20 0.0 30 0.0")
        .object("DICTIONARY 5 90 330 71 100 AcDbDictionary 3 KEY 360 91")
        .object("XRECORD 5 91 330 90 100 AcDbXrecord 1 inside")
        .object("XRECORD 5 92 330 C 100 AcDbXrecord 340 51");
    return plain;
}

TEST(Purge, DeletesWhatNothingNeeds) {
    for (const Kind kind : {Kind::R12, Kind::R2000}) {
        const auto drawing = withUnused(kind).make();
        const std::string before = drawing->savedBytes();
        // The circle of PLAIN is pointed to by an object; R12 has none.
        const std::vector<std::string> expected =
            kind == Kind::R2000 ? std::vector<std::string>{"FIXED", "INNER", "OUTER"}
                                : std::vector<std::string>{"FIXED", "PLAIN", "INNER", "OUTER"};
        EXPECT_EQ(drawing->purgeBlocks(), expected);
        EXPECT_TRUE(drawing->isModified());
        const std::string purged = drawing->savedBytes();
        EXPECT_FALSE(contains(purged, "OUTER") || contains(purged, "inside") || contains(purged, "FIXED"));
        EXPECT_EQ(drawing->blocks().find("FIXED"), kNoBlock);
        const auto saved = Drawing::parse(purged, "saved.dxf");
        EXPECT_LE(saved->findings().size(), withUnused(kind).make()->findings().size());
        EXPECT_TRUE(saved->unusedBlocks().empty());
        EXPECT_TRUE(drawing->purgeBlocks().empty());

        ASSERT_TRUE(drawing->undo());
        EXPECT_EQ(drawing->savedBytes(), before);
        EXPECT_FALSE(drawing->isModified());
        EXPECT_NE(drawing->blocks().find("fixed"), kNoBlock);
        ASSERT_TRUE(drawing->redo());
        EXPECT_EQ(drawing->savedBytes(), purged);
        EXPECT_EQ(drawing->blocks().find("FIXED"), kNoBlock);
        drawing->undo();
        drawing->insertBlock(drawing->blocks().find("OUTER"), {}, {1, 1, 1}, 0);
        EXPECT_EQ(drawing->purgeBlocks().front(), "FIXED");
        EXPECT_NE(drawing->blocks().find("INNER"), kNoBlock) << "used by what is used";
    }
}

TEST(MoveToSpace, ANewReferenceStandsInALayoutAfterSaving) {
    for (const Kind kind : {Kind::R12, Kind::R2000}) {
        for (const char* name : {"*Paper_Space", "*Paper_Space0"}) {
            if (kind == Kind::R12 && std::string(name) == "*Paper_Space0") continue;
            PlainDrawing plain(kind);
            plain.entity("LINE 5 60 8 0 67 1 10 0.0 20 0.0 11 1.0 21 0.0");
            if (kind == Kind::R2000)
                plain.block("*Paper_Space0").inBlock("LINE 5 61 8 0 67 1 10 0.0 20 0.0 11 1.0 21 0.0");
            const auto drawing = plain.make();
            const std::string before = drawing->savedBytes();
            const BlockId space = drawing->blocks().find(name);
            const EntityId made =
                drawing->insertBlock(drawing->blocks().find("DOOR"), {1, 1, 0}, {1, 1, 1}, 0);
            const EntityId line = drawing->addLine({}, {1, 0, 0});
            const std::string inserted = drawing->savedBytes();
            drawing->moveToSpace(made, space);
            EXPECT_EQ(entitiesOf(*drawing, space).back(), made);
            EXPECT_EQ(modelEntities(*drawing), std::vector<EntityId>{line});
            const std::string moved = drawing->savedBytes();

            const auto saved = Drawing::parse(moved, "saved.dxf");
            EXPECT_EQ(saved->findings().size(), plain.make()->findings().size());
            const EntityId again = entitiesOf(*saved, saved->blocks().find(name)).back();
            EXPECT_EQ(saved->name(again), "DOOR") << name;
            EXPECT_EQ(saved->attributes(again).size(), 2u);
            EXPECT_EQ(modelEntities(*saved).size(), 1u);
            const bool hasOwner = kind == Kind::R2000 && std::string(name) == "*Paper_Space";
            EXPECT_EQ(contains(groupsOf(*saved, again), "|330=1E|"), hasOwner) << groupsOf(*saved, again);

            ASSERT_TRUE(drawing->undo());
            EXPECT_EQ(drawing->savedBytes(), inserted);
            EXPECT_EQ(modelEntities(*drawing), (std::vector<EntityId>{made, line}));
            ASSERT_TRUE(drawing->redo());
            EXPECT_EQ(drawing->savedBytes(), moved);
            while (drawing->undo()) {
            }
            EXPECT_EQ(drawing->savedBytes(), before);
            while (drawing->redo()) {
            }
            EXPECT_EQ(drawing->savedBytes(), moved);
            EXPECT_EQ(errorOf([&] { drawing->moveToSpace(drawing->byHandle(0x60), drawing->modelSpace()); }),
                      kNotApplicable);
        }
    }
}

}  // namespace
}  // namespace drawing
