#include "labels/fm_att_format.h"
#include "labels/fm_param_ins.h"
#include "tests/labels/labels_world.h"

#include <gtest/gtest.h>

namespace labels {
namespace {

struct AttFormatTest : testing::Test, LabelsWorld {
    void open() { screen.click("BtnAttFormat"); }
    void ok() { screen.click("OKButton"); }
    void cancel() { screen.click("CancelButton"); }
    Texts slots(int position) {
        Texts found;
        for (int slot = 1; slot < 6; ++slot)
            found.push_back(
                basic::toText(labelCell(session, static_cast<LabelSlot>(slot), position), platform.numbers));
        return found;
    }
    Texts remembered(int mode) { return {session.VTable[mode].begin(), session.VTable[mode].end()}; }
};

TEST_F(AttFormatTest, ShowsTheModesFieldsInItsHeights) {
    struct Row {
        ValueMode mode;
        bool combo, text3, label6, row4;
        forms::Twips frame, dialog;
        const char* caption;
    };
    const Row rows[] = {
        {kPointX, true, false, true, false, 1935, 3240, "Nombre de décimaux"},
        {kObjectLayer, false, false, false, false, 1515, 2820, "Nombre de décimaux"},
        {kCounter, false, true, true, true, 2235, 3540, "Valeur initiale"},
        {kObjectColor, false, false, false, true, 1515, 2820, "Valeur initiale"},  // row 4 is cut off
        {kPolygonArea, true, false, true, false, 1935, 3240, "Nombre de décimaux"},
    };
    block("TAG");
    for (const Row& row : rows) {
        mode(row.mode);
        open();
        look([this, row] {
            EXPECT_TRUE(format().visible());
            EXPECT_FALSE(dialog().visible());
            EXPECT_EQ(format().owner(), &session.form("fmOwner"));
            EXPECT_EQ(format().LabelTag.caption(), "A");
            EXPECT_EQ(format().LabelMode.caption(), kModeTexts[row.mode]);
            EXPECT_EQ(format().Label1.caption(), "Attribute 1:");
            EXPECT_EQ(format().Combo1.visible(), row.combo) << row.mode;
            EXPECT_EQ(format().Text3.visible(), row.text3) << row.mode;
            EXPECT_EQ(format().Label6.visible(), row.label6) << row.mode;
            EXPECT_EQ(format().Text4.visible() && format().Label7.visible(), row.row4) << row.mode;
            EXPECT_EQ(format().Frame1.height(), row.frame);
            EXPECT_EQ(format().height(), row.dialog);
            EXPECT_EQ(format().Label6.caption(), row.caption) << row.mode;
        });
        cancel();
    }
    close();
    run();
}

TEST_F(AttFormatTest, OkGivesTheFormatToTheAttributeAndToTheMode) {
    block("TAG");
    mode(kObjectLength);
    row(2);
    mode(kObjectLength);
    open();
    look([this] {
        EXPECT_EQ(format().Text1.text() + format().Text2.text() + format().Text3.text(), "");
        EXPECT_EQ(format().Combo1.text(), "0") << "an empty row: the first mask";
    });
    screen.type("Text1", "L=");
    screen.type("Text2", " m");
    screen.choose("Combo1", 2);
    ok();
    look([this] {
        EXPECT_EQ(slots(1), (Texts{"L=", " m", "2", "", ""}));
        EXPECT_EQ(labelCell(session, kDecimalsSlot, 1).kind(), basic::Variant::Kind::Int16);
        EXPECT_EQ(remembered(kObjectLength), (Texts{"L=", " m", "2", "", ""})) << "a choice raises no change";
        EXPECT_EQ(slots(0), Texts(5)) << "another attribute of the mode keeps its own";
        EXPECT_TRUE(dialog().visible());
        EXPECT_EQ(dialog().ListView1.selectedItem().index(), 2);
    });
    open();
    screen.type("Combo1", "0.000");
    screen.type("Text1", "");
    ok();
    look([this] { EXPECT_EQ(remembered(kObjectLength), (Texts{"", " m", "3", "3", ""})) << "typing does"; });
    open();
    screen.type("Combo1", "many");
    look([this] { EXPECT_EQ(format().Text3.text(), "-1"); });
    cancel();
    look([this] { EXPECT_EQ(slots(1), (Texts{"", " m", "3", "3", ""})) << "nothing changes"; });
    open();
    look([this] { EXPECT_EQ(format().Combo1.text() + "|" + format().Text3.text(), "0.000|3"); });
    screen.type("Combo1", "many");
    ok();
    look([this] { EXPECT_EQ(slots(1), (Texts{"", " m", "-1", "-1", ""})); });
    close();
    run();
}

TEST_F(AttFormatTest, CountersAreSetAnewByOk) {
    block("ROOM");
    mode(kCounter);
    withoutLeader();
    open();
    screen.type("Text3", "100");
    screen.type("Text4", "-5");
    ok();
    point({});
    point({});
    escape();
    insert();
    open();
    ok();
    point({});
    escape();
    insert();
    close();
    run();
    EXPECT_EQ(column("ROOM"), (Texts{"100", "95", "100"}));
    EXPECT_EQ(remembered(kCounter), (Texts{"", "", "0", "100", "-5"}));
}

TEST_F(AttFormatTest, AModeThatIsNoneCantBeConfirmed) {
    session.VTable[kCounter] = {"p", "s", "", "1", "2"};
    block("TAG");
    mode(kCounter);
    open();
    cancel();
    screen.type("Combo1", "free");
    open();
    look([this] {
        EXPECT_EQ(format().LabelMode.caption(), "free");
        EXPECT_EQ(format().Text1.text(), "p") << "the fields of the opening before";
        EXPECT_EQ(format().height(), 3240);
    });
    screen.type("Text1", "q");
    ok();
    look([this] {
        EXPECT_TRUE(format().visible()) << "the failure leaves the dialog up";
        EXPECT_EQ(labelCell(session, kPrefixSlot, 0).text(), "q");
    });
    cancel();
    block("PLAIN");
    open();
    ok();
    cancel();
    close();
    run();
    EXPECT_EQ(failures(), (Texts{"failure 9", "failure 91"}));
    EXPECT_EQ(remembered(kCounter).at(0), "p");
}

struct ParamInsTest : testing::Test, LabelsWorld {
    void open() { screen.click("BtnParametre"); }
    void back() { screen.click("OKButton"); }
    std::size_t boxes() const { return screen.boxes.size(); }
    void expectBoxes(std::size_t count, bool option2) {
        look([=, this] {
            EXPECT_EQ(boxes(), count);
            EXPECT_EQ(parameters().Option2.value(), option2);
            EXPECT_EQ(parameters().Option1.value(), !option2);
        });
    }
};

TEST_F(ParamInsTest, KeepsItsStateWhileItIsAway) {
    block("TAG");
    look([this] { EXPECT_FALSE(parameters().visible()); });
    open();
    look([this] {
        EXPECT_EQ(parameters().caption(), "Vorlane 1.0 : Insertion parameters");
        EXPECT_FALSE(dialog().visible());
        EXPECT_EQ(parameters().CheckBox2.value(), 1);
        EXPECT_TRUE(parameters().Option1.value());
        EXPECT_TRUE(parameters().Text4.enabled());
    });
    screen.type("Text4", "30");
    screen.click("CheckBox1");
    look([this] { EXPECT_FALSE(parameters().Text4.enabled()); });
    screen.click("Option2");
    screen.click("CheckBox2");
    look([this] {
        EXPECT_FALSE(parameters().Option1.enabled() || parameters().Option2.enabled());
        EXPECT_TRUE(parameters().Option2.value()) << "what was on stays on";
    });
    back();
    look([this] { EXPECT_TRUE(dialog().visible()); });
    open();
    look([this] { EXPECT_EQ(parameters().Text4.text(), "30"); });
    screen.click("CheckBox1");
    screen.click("CheckBox2");
    look([this] { EXPECT_TRUE(parameters().Option1.enabled() && parameters().Text4.enabled()); });
    back();
    close();
    run();
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_EQ(screen.log, (Texts{"show fmLabels", "hide fmLabels", "show fmParamIns", "hide fmParamIns",
                                 "show fmLabels", "hide fmLabels", "show fmParamIns", "hide fmParamIns",
                                 "show fmLabels", "hide fmLabels"}));
}

TEST_F(ParamInsTest, CorrectsTheLeadersOriginForMoreThanOneAutoValue) {
    block("TAG");
    open();
    screen.click("Option2");
    back();
    mode(kPointX);
    expectBoxes(0, true);
    row(2);
    mode(kCounter);
    expectBoxes(1, false);
    look([this] {
        EXPECT_EQ(subItems(3).at(1), "Incrément Auto") << "the mode stays";
        const forms::MessageBox& box = screen.boxes.at(0);
        EXPECT_EQ(box.title, "Vorlane : Erreur");
        EXPECT_EQ(box.icon, forms::MessageBox::Icon::Exclamation);
        EXPECT_EQ(box.text,
                  "L'option 'ligne de repérage à partir du point de sélection'\r\n"
                  "n 'est pas valable avec plus d'une valeur Auto ni avec\r\n"
                  "avec des valeurs Auto polyclic.\r\n"
                  "Vorlane a corrigé le choix.");
    });
    open();
    screen.click("Option2");  // put right at once
    expectBoxes(2, false);
    back();
    mode(kManual);
    open();
    screen.click("Option2");
    expectBoxes(2, true);
    back();
    close();
    run();
}

TEST_F(ParamInsTest, CorrectsItForASinglePolygonAlsoWithTheLeaderOff) {
    look([this] { parameters().Option2.setValue(true); });
    expectBoxes(0, true);  // without rows there is nothing to correct
    block("TAG");
    open();
    screen.click("CheckBox2");
    back();
    mode(kObjectColor);
    expectBoxes(0, true);
    mode(kPolygonPerimeter);
    expectBoxes(1, false);
    close();
    run();
}

TEST_F(ParamInsTest, CountsAModeThatTheListNoLongerShows) {
    block("TAG");
    row(3);
    mode(kPolygonLength);
    row(1);
    block("TAG");
    screen.choose("Combo2", "ROOM");
    open();
    screen.click("Option2");
    expectBoxes(0, true);  // two rows: the stale third isn't among them
    back();
    block("TAG");
    look([this] { EXPECT_EQ(subItems(3), Texts(3, "Saisie manuel")); });
    mode(kPointY);
    expectBoxes(1, false);
    close();
    run();
}

}  // namespace
}  // namespace labels
