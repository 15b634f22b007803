#include "labels/fm_labels.h"

#include "tests/fakes/layout_check.h"
#include "tests/labels/labels_world.h"

namespace labels {
namespace {

struct FmLabelsTest : testing::Test, LabelsWorld {};

TEST_F(FmLabelsTest, ABlockFillsTheRowsFromATrialReference) {
    block("TAG");
    look([this] {
        EXPECT_FLOAT_EQ(dialog().ListView1.columnHeaders().item(1).width, dialog().ListView1.width() / 7);
        EXPECT_FLOAT_EQ(dialog().ListView1.columnHeaders().item(4).width, dialog().ListView1.width() / 3);
        EXPECT_EQ(subItems(1), (Texts{"A", "B", "C"}));
        EXPECT_EQ(subItems(2), (Texts{"a", "b", "c"}));
        EXPECT_EQ(parameters().Text1.text() + parameters().Text3.text() + parameters().Text4.text(), "110");
        EXPECT_EQ(session.LabelTable[0].size(), 3U);
        EXPECT_TRUE(references("TAG").empty()) << "the trial is gone";
        parameters().Text4.setText("45");
    });
    block("PLAIN");
    look([this] {
        EXPECT_EQ(dialog().ListView1.listItems().count(), 0);
        EXPECT_EQ(session.LabelTable[0].size(), 3U) << "never shrinks";
        EXPECT_EQ(parameters().Text4.text(), "0") << "each block puts the fields back";
    });
    screen.type("Combo2", "tag");
    look([this] { EXPECT_EQ(dialog().blockName(), "TAG") << "as the host spells it"; });
    // Without a selected row the key and the typing fail, the mode doesn't.
    block("PLAIN");
    screen.key("ListView1", forms::Key::Down);
    screen.type("Text1", "y");
    mode(kObjectArea);
    run();
    EXPECT_EQ(failures(), Texts(2, "failure 91: Object variable not set"));
}

TEST_F(FmLabelsTest, AModeTakesItsRememberedFormat) {
    session.VTable[kCounter] = {"p", "s", "2", "001", "5"};
    block("TAG");
    row(2);
    mode(kCounter);
    look([this] {
        EXPECT_EQ(slots(1), (Texts{"p", "s", "2", "001", "5"}));
        EXPECT_EQ(labelCell(session, kModeSlot, 1).kind(), basic::Variant::Kind::Int16);
        EXPECT_TRUE(labelCell(session, kModeSlot, 0).isEmpty());
    });
    screen.type("Combo1", "typed mode");
    look([this] {
        EXPECT_EQ(subItems(3), (Texts{"Saisie manuel", "typed mode", "Saisie manuel"}));
        EXPECT_EQ(labelMode(session, 1), -1);
        EXPECT_EQ(slots(1).front(), "p") << "the slots stay";
        EXPECT_TRUE(dialog().BtnAttFormat.enabled() && !dialog().Text1.enabled());
    });
    screen.type("Combo1", "Couleur");
    look([this] { EXPECT_EQ(labelMode(session, 1), kObjectColor) << "a typed entry is that mode"; });
    // The modes of a block before stay in the table, unseen until their row is shown.
    block("TAG");
    look([this] {
        EXPECT_EQ(subItems(3), Texts(3, "Saisie manuel"));
        EXPECT_EQ(labelMode(session, 1), kObjectColor);
    });
    row(2);
    look([this] { EXPECT_EQ(subItems(3).at(1), "Couleur"); });
    mode(kManual);
    look([this] { EXPECT_EQ(dialog().activeControl(), &dialog().Text1); });
    run();
    EXPECT_TRUE(failures().empty());
}

TEST_F(FmLabelsTest, ASecondCommandOnTheSameObjectsStartsItsTableAnew) {
    block("TAG");
    row(2);
    mode(kPointX);
    run();
    look([this] {
        EXPECT_EQ(format().Combo1.listCount(), 20) << "the masks are added once more";
        EXPECT_EQ(format().Combo1.list(13), "0.000");
        EXPECT_EQ(dialog().modeCount(), 13);
        EXPECT_EQ(session.LabelTable[0].size(), 3U);
    });
    row(3);
    run();
    EXPECT_TRUE(failures().empty());
}

TEST_F(FmLabelsTest, OverlapsNothingAndFitsItsForm) {
    expectTidy(dialog());
    expectTidy(parameters());
    for (const ValueMode mode : {kObjectLength, kObjectLayer, kCounter}) {
        format().showFieldsOf(mode);
        expectTidy(format());
    }
    format().showFieldsOf(kObjectColor);
    EXPECT_TRUE(format().Text4.visible());
    EXPECT_GE(format().Text4.top(), format().Frame1.height()) << "cut off";
}

}  // namespace
}  // namespace labels
