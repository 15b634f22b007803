#include "labels/fm_att_format.h"
#include "labels/fm_param_ins.h"
#include "tests/labels/labels_world.h"

namespace labels {
namespace {

struct SideDialogsTest : testing::Test, LabelsWorld {
    void openFormat() { screen.click("BtnAttFormat"); }
    void ok() { screen.click("OKButton"); }
    void cancel() { screen.click("CancelButton"); }
    Texts remembered(int mode) { return {session.VTable[mode].begin(), session.VTable[mode].end()}; }
};

TEST_F(SideDialogsTest, FormatShowsTheModesFieldsInItsHeights) {
    struct Row {
        ValueMode mode;
        const char* visible;  ///< Combo1, Text3, Label6, and both of row 4, by a letter each
        forms::Twips frame, dialog;
        const char* caption;
    };
    const Row rows[] = {
        {kPointX, "C6", 1935, 3240, "Nombre de décimaux"},
        {kObjectLayer, "", 1515, 2820, "Nombre de décimaux"},
        {kCounter, "364", 2235, 3540, "Valeur initiale"},
        {kObjectColor, "4", 1515, 2820, "Valeur initiale"},  // row 4 is cut off
        {kPolygonArea, "C6", 1935, 3240, "Nombre de décimaux"},
    };
    block("TAG");
    for (const Row& row : rows) {
        mode(row.mode);
        openFormat();
        look([this, row] {
            EXPECT_TRUE(format().visible() && !dialog().visible());
            EXPECT_EQ(format().owner(), &session.form("fmOwner"));
            EXPECT_EQ(format().LabelMode.caption(), kModeTexts[row.mode]);
            std::string visible = format().Combo1.visible() ? "C" : "";
            visible += format().Text3.visible() ? "3" : "";
            visible += format().Label6.visible() ? "6" : "";
            visible += format().Text4.visible() && format().Label7.visible() ? "4" : "";
            EXPECT_EQ(visible, row.visible) << row.mode;
            EXPECT_EQ(format().Frame1.height(), row.frame);
            EXPECT_EQ(format().height(), row.dialog);
            EXPECT_EQ(format().Label6.caption(), row.caption) << row.mode;
        });
        cancel();
    }
    run();
}

TEST_F(SideDialogsTest, OkGivesTheFormatToTheAttributeAndToTheMode) {
    block("TAG");
    mode(kObjectLength);
    row(2);
    mode(kObjectLength);
    openFormat();
    screen.type("Text2", " m");
    screen.choose("Combo1", 2);
    ok();
    look([this] {
        EXPECT_EQ(slots(1), (Texts{"", " m", "2", "", ""})) << "a choice raises no change";
        EXPECT_EQ(labelCell(session, kDecimalsSlot, 1).kind(), basic::Variant::Kind::Int16);
        EXPECT_EQ(slots(0), Texts(5)) << "another attribute of the mode keeps its own";
    });
    openFormat();
    screen.type("Combo1", "0.000");
    ok();
    look([this] { EXPECT_EQ(remembered(kObjectLength), (Texts{"", " m", "3", "3", ""})) << "typing does"; });
    openFormat();
    screen.type("Combo1", "many");
    cancel();
    look([this] { EXPECT_EQ(slots(1), (Texts{"", " m", "3", "3", ""})) << "nothing changes"; });
    openFormat();
    screen.type("Combo1", "many");
    ok();
    look([this] { EXPECT_EQ(slots(1), (Texts{"", " m", "-1", "-1", ""})); });
    run();
}

TEST_F(SideDialogsTest, AModeThatIsNoneCantBeConfirmed) {
    block("TAG");
    screen.type("Combo1", "free");
    openFormat();
    screen.type("Text1", "q");
    ok();
    look([this] {
        EXPECT_TRUE(format().visible()) << "the failure leaves the dialog up";
        EXPECT_EQ(slots(0).front(), "q");
    });
    cancel();
    block("PLAIN");
    openFormat();
    ok();
    cancel();
    run();
    EXPECT_EQ(failures(),
              (Texts{"failure 9: Subscript out of range", "failure 91: Object variable not set"}));
}

TEST_F(SideDialogsTest, ParametersEnableWhatTheyUse) {
    block("TAG");
    screen.click("BtnParametre");
    screen.click("Option2");
    screen.click("CheckBox1");
    screen.click("CheckBox2");
    look([this] {
        EXPECT_FALSE(parameters().Text4.enabled());
        EXPECT_FALSE(parameters().Option1.enabled() || parameters().Option2.enabled());
        EXPECT_TRUE(parameters().Option2.value()) << "what was on stays on";
    });
    screen.click("CheckBox1");
    screen.click("CheckBox2");
    look([this] { EXPECT_TRUE(parameters().Option1.enabled() && parameters().Text4.enabled()); });
    ok();
    run();
}

}  // namespace
}  // namespace labels
