#include "tests/drawing/plain_drawing.h"
#include "tests/fakes/temp_folder.h"

namespace drawing {
namespace {

TEST(Undo, StepsComeBackOneByOne) {
    const auto drawing =
        PlainDrawing(Kind::R2000).entity("INSERT 5 60 330 1F 8 0 2 PLAIN 10 0.0 20 0.0 30 0.0").make();
    const EntityId old = drawing->byHandle(0x60);
    std::vector<std::string> states{drawing->savedBytes()};
    {
        const UndoStep step(*drawing);
        const EntityId made = drawing->insertBlock(drawing->blocks().find("DOOR"), {1, 1, 0}, {1, 1, 1}, 0);
        for (std::size_t i = 0; i < 3; ++i)
            drawing->setAttributeText(drawing->attributes(made)[0], std::string(20 * i, 'x'));
        drawing->setRotation(old, 1);
        drawing->setRotation(old, 2);
    }
    states.push_back(drawing->savedBytes());
    drawing->setScale(old, {3, 3, 3});
    states.push_back(drawing->savedBytes());
    drawing->erase(old);
    EXPECT_EQ(drawing->entityCount(drawing->modelSpace()), 1u);
    for (; !states.empty(); states.pop_back()) {
        ASSERT_TRUE(drawing->undo());
        EXPECT_EQ(drawing->savedBytes(), states.back());
    }
    EXPECT_FALSE(drawing->undo());
    EXPECT_FALSE(drawing->isModified());
    // The handle is free again, the number of the undone entity stays dead.
    const EntityId line = drawing->addLine({}, {1, 0, 0});
    EXPECT_EQ(drawing->byHandle(0x100), line);
    drawing->undo();
    EXPECT_NE(drawing->addLine({}, {2, 0, 0}), line);
    EXPECT_TRUE(drawing->isErased(line));
}

TEST(Undo, VariablesOfTheHeaderAreSetAndTakenBack) {
    const auto drawing = PlainDrawing(Kind::R2000).header("9 $CLAYER 8 0 9 $LTSCALE 40 2.0").make();
    const std::string before = drawing->savedBytes();
    drawing->setVariable("$clayer", 8, std::string("WALLS"));
    EXPECT_EQ(drawing->layerName(drawing->addLine({}, {1, 0, 0})), "WALLS");
    drawing->setVariable("$INSUNITS", 70, std::int64_t{6});
    drawing->setVariable("$INSBASE", 10, Point3{1, 2, 3});
    const auto saved = Drawing::parse(drawing->savedBytes(), "saved.dxf");
    EXPECT_EQ(saved->header().text("$CLAYER"), "WALLS");
    EXPECT_EQ(saved->header().integer("$INSUNITS"), 6);
    EXPECT_EQ(saved->header().point("$INSBASE"), (Point3{1, 2, 3}));
    EXPECT_EQ(saved->header().number("$LTSCALE"), 2);
    EXPECT_TRUE(saved->findings().empty());
    while (drawing->undo()) {
    }
    EXPECT_EQ(drawing->savedBytes(), before);
    EXPECT_EQ(drawing->layerName(drawing->addLine({}, {1, 0, 0})), "0");
    const auto bare = PlainDrawing().make();
    EXPECT_EQ(errorOf([&] { bare->setVariable("$CLAYER", 8, std::string("0")); }), kInvalidInput);
}

TEST(Undo, ATrialInsertionLeavesNothing) {
    const auto drawing = PlainDrawing(Kind::R2000).make();
    const std::string before = drawing->savedBytes();
    const BlockId door = drawing->blocks().find("DOOR");
    drawing->beginStep();
    const EntityId kept = drawing->insertBlock(door, {}, {1, 1, 1}, 0);
    const EntityId trial = drawing->insertBlock(door, {}, {1, 1, 1}, 0);
    const std::vector<EntityId> attributes = drawing->attributes(trial);
    drawing->erase(trial);
    EXPECT_EQ(errorOf([&] { drawing->attributeText(attributes[0]); }), kObjectErased);
    drawing->endStep();
    EXPECT_EQ(modelEntities(*drawing), std::vector<EntityId>{kept});
    EXPECT_EQ(drawing->attributeText(drawing->attributes(kept)[0]), "T0");
    drawing->undo();
    EXPECT_EQ(drawing->savedBytes(), before);
}

TEST(Undo, AStepThatLeavesNothingIsNone) {
    const auto drawing = PlainDrawing(Kind::R2000).entity("LINE 5 60 330 1F 100 AcDbEntity 8 0").make();
    const std::string before = drawing->savedBytes();
    {
        const UndoStep step(*drawing);
        drawing->erase(drawing->insertBlock(drawing->blocks().find("DOOR"), {}, {1, 1, 1}, 0));
        drawing->setVisible(drawing->byHandle(0x60), false);
        drawing->setVisible(drawing->byHandle(0x60), true);
    }
    EXPECT_FALSE(drawing->canUndo());
    EXPECT_FALSE(drawing->isModified());
    EXPECT_EQ(drawing->savedBytes(), before) << "the handle seed too";
}

TEST(Undo, ADrawingWithoutSectionsGetsOneOnlyForWhatStays) {
    const std::string text = groups("0 SECTION 2 HEADER 9 $ACADVER 1 AC1009 0 ENDSEC 0 EOF");
    const auto drawing = Drawing::parse(text, "bare.dxf");
    drawing->beginStep();
    const EntityId first = drawing->addLine({}, {1, 0, 0});
    const EntityId second = drawing->addLine({}, {2, 0, 0});
    const auto again = Drawing::parse(drawing->savedBytes(), "again.dxf");
    EXPECT_EQ(again->entityCount(again->modelSpace()), 2u);
    drawing->erase(first);
    drawing->erase(second);
    drawing->endStep();
    EXPECT_EQ(drawing->savedBytes(), text) << "not even an empty section";
    drawing->undo();
    EXPECT_EQ(drawing->entityCount(drawing->modelSpace()), 0u);
    EXPECT_EQ(drawing->savedBytes(), text);
}

TEST(Undo, BehindTheSavedStateItIsAChange) {
    const fakes::TempFolder folder;
    const auto drawing = PlainDrawing(Kind::R2000).make();
    drawing->addLine({}, {1, 0, 0});
    drawing->save(folder.file("saved.dxf"));
    EXPECT_FALSE(drawing->isModified());
    drawing->undo();
    EXPECT_TRUE(drawing->isModified());
}

}  // namespace
}  // namespace drawing
