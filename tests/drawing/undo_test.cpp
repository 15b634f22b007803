#include "tests/drawing/sample_drawing.h"

namespace drawing {
namespace {

TEST(Undo, StepsComeBackOneByOne) {
    const auto drawing =
        SampleDrawing()
            .model(
                "INSERT 5 60 330 1F 100 AcDbEntity 8 0 100 AcDbBlockReference 2 PLAIN 10 0.0 20 0.0 30 0.0")
            .make();
    const EntityId old = drawing->byHandle(0x60);
    std::vector<std::string> states{drawing->savedBytes()};
    {
        const UndoStep step(*drawing);
        const EntityId made = drawing->insertBlock(drawing->blocks().find("DOOR"), {1, 1, 0}, {1, 1, 1}, 0);
        for (int i = 0; i < 3; ++i)
            drawing->setAttributeText(drawing->attributes(made)[0], std::string(20 * i, 'x'));
        drawing->setRotation(old, 1);
        drawing->setRotation(old, 2);
    }
    states.push_back(drawing->savedBytes());
    drawing->setScale(old, {3, 3, 3});
    states.push_back(drawing->savedBytes());
    drawing->erase(old);
    EXPECT_EQ(drawing->entityCount(drawing->modelSpace()), 1u);
    while (!states.empty()) {
        ASSERT_TRUE(drawing->undo());
        EXPECT_EQ(drawing->savedBytes(), states.back());
        states.pop_back();
    }
    EXPECT_FALSE(drawing->undo());
    EXPECT_FALSE(drawing->isModified());
    EXPECT_EQ(drawing->store().nextHandle(), 0x100u);
}

TEST(Undo, NumbersOfUndoneEntitiesStayDead) {
    const auto drawing = SampleDrawing().make();
    const EntityId line = drawing->addLine({}, {1, 0, 0});
    drawing->undo();
    const EntityId other = drawing->addLine({}, {2, 0, 0});
    EXPECT_NE(line, other);
    EXPECT_TRUE(drawing->isErased(line));
    EXPECT_EQ(drawing->byHandle(0x100), other);
}

TEST(Undo, ATrialInsertionLeavesNothing) {
    const auto drawing = SampleDrawing().make();
    const std::string before = drawing->savedBytes();
    const BlockId door = drawing->blocks().find("DOOR");
    drawing->beginStep();
    const EntityId kept = drawing->insertBlock(door, {}, {1, 1, 1}, 0);
    const EntityId trial = drawing->insertBlock(door, {}, {1, 1, 1}, 0);
    const std::vector<EntityId> attributes = drawing->attributes(trial);
    drawing->erase(trial);
    EXPECT_EQ(errorOf([&] { drawing->attributeText(attributes[0]); }), kObjectErased);
    drawing->endStep();
    EXPECT_EQ(entitiesOf(*drawing, drawing->modelSpace()), std::vector<EntityId>{kept});
    EXPECT_EQ(drawing->attributeText(drawing->attributes(kept)[0]), "T0");
    drawing->undo();
    EXPECT_EQ(drawing->savedBytes(), before);
}

TEST(Undo, ErasedOutOfOrderTheyAreGoneAllTheSame) {
    const std::string text = SampleDrawing::words("0 SECTION 2 HEADER 9 $ACADVER 1 AC1009 0 ENDSEC 0 EOF");
    const auto drawing = Drawing::parse(text, "bare.dxf");
    drawing->beginStep();
    const EntityId first = drawing->addLine({}, {1, 0, 0});
    const EntityId second = drawing->addLine({}, {2, 0, 0});
    drawing->erase(first);
    drawing->erase(second);
    drawing->endStep();
    EXPECT_EQ(drawing->savedBytes(), text) << "not even an empty section";
    drawing->undo();
    EXPECT_EQ(drawing->entityCount(drawing->modelSpace()), 0u);
    EXPECT_EQ(drawing->savedBytes(), text);
}

TEST(Undo, SavingMarksTheState) {
    const auto drawing = SampleDrawing().make();
    drawing->addLine({}, {1, 0, 0});
    const std::string path = testing::TempDir() + "vorlane_drawing_save.dxf";
    drawing->save(path);
    EXPECT_FALSE(drawing->isModified());
    EXPECT_EQ(drawing->path(), path);
    EXPECT_EQ(bytesOfFile(path), drawing->savedBytes());
    drawing->undo();
    EXPECT_TRUE(drawing->isModified());
    std::remove(path.c_str());
}

TEST(Undo, CorpusReplacementComesBackToTheByte) {
    const std::string folder = VORLANE_ROOT "/../shared/corpus/";
    for (const char* name :
         {"architecture", "example_2000", "example_r12", "multi_insert_with_attribs", "ts1_2018"}) {
        const std::string bytes = bytesOfFile(folder + name + ".dxf");
        if (bytes.empty()) GTEST_SKIP() << "the corpus isn't here";
        const auto drawing = Drawing::open(folder + name + ".dxf");
        drawing->beginStep();
        for (EntityId id : drawing->select({{0, "INSERT"}})) {
            const InsertData old = drawing->insert(id);
            const EntityId made = drawing->insertBlock(old.block, old.insertion, old.placement.scale, 0.3);
            for (EntityId part : drawing->attributes(made)) drawing->setAttributeText(part, "à la place");
            drawing->erase(id);
        }
        drawing->endStep();
        const std::string replaced = drawing->savedBytes();
        const auto again = Drawing::parse(replaced, name);
        EXPECT_TRUE(again->findings().empty()) << name << ": " << dxf::toText(again->findings().front());
        EXPECT_EQ(again->entityCount(again->modelSpace()), drawing->entityCount(drawing->modelSpace()));
        ASSERT_TRUE(drawing->undo());
        EXPECT_TRUE(drawing->savedBytes() == bytes) << name;
    }
}

}  // namespace
}  // namespace drawing
