#include "tests/drawing/plain_drawing.h"

namespace drawing {
namespace {

TEST(Redo, GivesBackEachStateThatWasUndone) {
    const auto drawing = PlainDrawing(Kind::R2000)
                             .header("9 $CLAYER 8 0")
                             .entity("INSERT 5 60 330 1F 8 0 2 PLAIN 10 0.0 20 0.0 30 0.0")
                             .make();
    const EntityId old = drawing->byHandle(0x60);
    const EntityId first = drawing->firstFree();
    std::vector<std::string> states{drawing->savedBytes()};
    const auto step = [&](const char* name, auto&& edit) {
        drawing->beginStep(name);
        edit();
        drawing->endStep();
        states.push_back(drawing->savedBytes());
    };
    step("insert", [&] { drawing->insertBlock(drawing->blocks().find("DOOR"), {1, 1, 0}, {1, 1, 1}, 0); });
    step("write", [&] { drawing->setAttributeText(drawing->attributes(first)[0], std::string(5000, 'x')); });
    step("rename", [&] { drawing->setText(old, 2, {}, "FIXED"); });
    step("layers", [&] {
        drawing->setLayerState("walls", {5, false, true, true});
        drawing->setCurrentLayer("PLAIN");
    });
    step("erase", [&] { drawing->erase(first); });
    for (int round = 0; round < 2; ++round) {
        for (std::size_t i = states.size() - 1; i-- > 0;) {
            ASSERT_TRUE(drawing->undo());
            EXPECT_EQ(drawing->savedBytes(), states[i]);
        }
        EXPECT_FALSE(drawing->isModified());
        EXPECT_EQ(drawing->redoName(), "insert");
        for (std::size_t i = 1; i < states.size(); ++i) {
            ASSERT_TRUE(drawing->redo());
            EXPECT_EQ(drawing->savedBytes(), states[i]);
        }
        EXPECT_FALSE(drawing->redo());
        EXPECT_EQ(drawing->undoName(), "erase");
    }
    // What is looked up is in line too: the name index, the layer table, the numbers.
    drawing->undo();
    EXPECT_EQ(drawing->select({{2, std::string("DOOR")}}), std::vector<EntityId>{first});
    EXPECT_EQ(drawing->select({{2, std::string("FIXED")}}), std::vector<EntityId>{old});
    EXPECT_TRUE(drawing->layers().all()[1].locked);
    EXPECT_EQ(drawing->header().text("$CLAYER"), "PLAIN");
    drawing->undo();
    EXPECT_FALSE(drawing->layers().all()[1].locked);
    EXPECT_EQ(drawing->header().text("$CLAYER"), "0");
    // Another edit gives up what was undone; one that changes nothing doesn't.
    { const UndoStep nothing(*drawing); }
    EXPECT_TRUE(drawing->canRedo());
    drawing->addLine({}, {1, 0, 0});
    EXPECT_FALSE(drawing->canRedo());
}

TEST(Layers, AStateIsWrittenAndReadAgain) {
    const auto drawing = PlainDrawing(Kind::R2000).header("9 $CLAYER 8 0").make();
    drawing->setLayerState("OFF", {30, true, false, true});
    drawing->setCurrentLayer("off");
    const EntityId line = drawing->addLine({}, {1, 0, 0});
    EXPECT_EQ(drawing->layerName(line), "OFF") << "new entities go to the layer that is current now";
    EXPECT_EQ(errorOf([&] { drawing->erase(line); }), kLockedLayer);
    const auto again = Drawing::parse(drawing->savedBytes(), "again.dxf", Reading::Strict);
    const Layer& layer = again->layers().all()[5];
    EXPECT_EQ(layer.name, "OFF");
    EXPECT_EQ(layer.color, 30);
    EXPECT_TRUE(layer.locked && !layer.off && !layer.frozen);
    EXPECT_EQ(again->header().text("$CLAYER"), "OFF");
    EXPECT_EQ(errorOf([&] { drawing->setLayerState("none", {}); }), kKeyNotFound);
    EXPECT_EQ(errorOf([&] { drawing->setLayerState("0", {0}); }), kInvalidInput);
}

}  // namespace
}  // namespace drawing
