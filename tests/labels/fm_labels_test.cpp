#include "labels/fm_labels.h"

#include "tests/labels/labels_world.h"

#include <gtest/gtest.h>

namespace labels {
namespace {

using forms::Key;

struct FmLabelsTest : testing::Test, LabelsWorld {
    /// "enabled" letters of Inserer, Parametre, Combo1, Text1, attFormat.
    std::string enabled() {
        std::string found;
        const auto add = [&](const forms::Control& control, char letter) {
            if (control.enabled()) found += letter;
        };
        add(dialog().BtnInserer, 'I');
        add(dialog().BtnParametre, 'P');
        add(dialog().Combo1, 'C');
        add(dialog().Text1, 'T');
        add(dialog().BtnAttFormat, 'F');
        return found;
    }
    void expectEnabled(const std::string& letters) {
        look([this, letters] { EXPECT_EQ(enabled(), letters); });
    }
};

TEST_F(FmLabelsTest, OpensWithTheBlocksTheModesAndTheMasks) {
    EXPECT_EQ(enabled(), "") << "as created";
    host.addBlock("*D1");
    host.addBlock("XREF").isXRef = true;
    session.dropForm("fmLabels");
    look([this] {
        EXPECT_EQ(dialog().caption(), "Vorlane 1.0 : Labelling");
        EXPECT_EQ(dialog().owner(), &session.form("fmOwner"));
        EXPECT_EQ(dialog().BtnAttFormat.toolTipText(), "Attribute format");
        Texts blocks, modes, masks;
        for (int i = 0; i < dialog().Combo2.listCount(); ++i) blocks.push_back(dialog().Combo2.list(i));
        EXPECT_EQ(blocks, (Texts{"*D1", "PLAIN", "ROOM", "TAG"})) << "in text order";
        EXPECT_EQ(dialog().modeCount(), 13);
        EXPECT_EQ(dialog().Combo1.text(), "Saisie manuel");
        EXPECT_EQ(dialog().modeEntry(kObjectColor), "Couleur");
        EXPECT_EQ(format().Combo1.listCount(), 10);
        EXPECT_EQ(format().Combo1.list(9), "0.000000000");
        EXPECT_EQ(enabled(), "T") << "the list index 0 has run EtatTBox1";
        const auto& headers = dialog().ListView1.columnHeaders();
        ASSERT_EQ(headers.count(), 4);
        EXPECT_EQ(headers.item(4).text, "Mode de détermination");
        EXPECT_FLOAT_EQ(headers.item(1).width, dialog().ListView1.width() / 7);
        EXPECT_FLOAT_EQ(headers.item(4).width, dialog().ListView1.width() / 3);
        EXPECT_EQ(session.LabelTable.size(), 6U);
        EXPECT_EQ(session.LabelTable[5].size(), 1U);
    });
    close();
    run();
}

TEST_F(FmLabelsTest, ABlockFillsTheRowsFromATrialReference) {
    block("TAG");
    look([this] {
        EXPECT_EQ(dialog().ListView1.listItems().item(3).text(), "Attribut 3");
        EXPECT_EQ(subItems(1), (Texts{"A", "B", "C"}));
        EXPECT_EQ(subItems(2), (Texts{"a", "b", "c"}));
        EXPECT_EQ(subItems(3), (Texts{"Saisie manuel", "Saisie manuel", "Saisie manuel"}));
        EXPECT_EQ(dialog().Label3.caption(), "Value of Attribut 1 :");
        EXPECT_EQ(dialog().Text1.text(), "a");
        EXPECT_EQ(parameters().Text1.text() + parameters().Text3.text() + parameters().Text4.text(), "110");
        EXPECT_EQ(session.LabelTable[0].size(), 3U);
        EXPECT_TRUE(host.references("TAG").empty()) << "the trial is gone";
        EXPECT_EQ(dialog().blockName(), "TAG");
        parameters().Text4.setText("45");
    });
    expectEnabled("IPCT");
    mode(kCounter);
    expectEnabled("IPCF");
    block("PLAIN");
    look([this] {
        EXPECT_EQ(dialog().ListView1.listItems().count(), 0);
        EXPECT_EQ(session.LabelTable[0].size(), 3U) << "never shrinks";
        EXPECT_EQ(parameters().Text4.text(), "0") << "each block puts the fields back";
    });
    expectEnabled("IPCF");
    screen.type("Combo2", "tag");
    look([this] { EXPECT_EQ(dialog().blockName(), "TAG") << "as the host spells it"; });
    screen.type("Combo2", "tagg");
    look([this] {
        EXPECT_EQ(dialog().ListView1.listItems().count(), 0);
        EXPECT_EQ(dialog().blockName(), "TAG") << "the last good one";
    });
    screen.type("Combo2", "");
    close();
    run();
    EXPECT_TRUE(failures().empty());
}

TEST_F(FmLabelsTest, ModesOfABlockBeforeStayInTheTable) {
    session.VTable[kObjectLength][0] = "L=";
    block("TAG");
    row(3);
    mode(kObjectLength);
    row(1);
    block("ROOM");
    block("TAG");
    look([this] {
        EXPECT_EQ(subItems(3), Texts(3, "Saisie manuel"));
        EXPECT_EQ(labelMode(session, 2), kObjectLength) << "stale";
        EXPECT_EQ(labelCell(session, kPrefixSlot, 2).text(), "L=");
    });
    row(3);
    look([this] { EXPECT_EQ(subItems(3).at(2), "Longueur Auto Monoclic") << "once it is shown"; });
    close();
    run();
}

TEST_F(FmLabelsTest, AModeTakesItsRememberedFormat) {
    session.VTable[kCounter] = {"p", "s", "2", "001", "5"};
    block("TAG");
    row(2);
    mode(kCounter);
    look([this] {
        Texts slots;
        for (int slot = 1; slot < 6; ++slot)
            slots.push_back(labelCell(session, static_cast<LabelSlot>(slot), 1).text());
        EXPECT_EQ(slots, (Texts{"p", "s", "2", "001", "5"}));
        EXPECT_EQ(labelCell(session, kModeSlot, 1).kind(), basic::Variant::Kind::Int16);
        EXPECT_TRUE(labelCell(session, kModeSlot, 0).isEmpty());
    });
    screen.type("Combo1", "typed mode");
    look([this] {
        EXPECT_EQ(subItems(3), (Texts{"Saisie manuel", "typed mode", "Saisie manuel"}));
        EXPECT_EQ(labelMode(session, 1), -1);
        EXPECT_EQ(labelCell(session, kPrefixSlot, 1).text(), "p") << "the slots stay";
        EXPECT_EQ(enabled(), "IPCF");
    });
    screen.type("Combo1", "Couleur");
    look([this] { EXPECT_EQ(labelMode(session, 1), kObjectColor) << "a typed entry is that mode"; });
    mode(kManual);
    look([this] {
        EXPECT_EQ(enabled(), "IPCT");
        EXPECT_EQ(dialog().activeControl(), &dialog().Text1);
    });
    screen.type("Text1", "hand");
    row(1);
    look([this] {
        EXPECT_EQ(subItems(2), (Texts{"a", "hand", "c"}));
        EXPECT_EQ(dialog().Text1.text(), "a");
    });
    close();
    run();
}

TEST_F(FmLabelsTest, TheFieldsLagOneRowBehindTheArrowKeys) {
    block("TAG");
    screen.key("ListView1", Key::Down);
    look([this] {
        EXPECT_EQ(dialog().ListView1.selectedItem().index(), 2);
        EXPECT_EQ(dialog().Label3.caption(), "Value of Attribut 1 :");
        EXPECT_EQ(dialog().Text1.text(), "a");
    });
    screen.key("ListView1", Key::Down);
    look([this] { EXPECT_EQ(dialog().Text1.text(), "b") << "with row 3 selected"; });
    screen.type("Text1", "x");
    look([this] {
        EXPECT_EQ(subItems(2), (Texts{"a", "b", "x"})) << "what is typed goes to the selected row";
    });
    screen.acts.push_back([](forms::Form& form) {
        EXPECT_FALSE(forms::acts::editLabel(forms::acts::controlNamed(form, "ListView1"), 1, "no"));
    });
    block("PLAIN");
    screen.key("ListView1", Key::Down);
    screen.type("Text1", "y");
    mode(kObjectArea);
    close();
    run();
    EXPECT_EQ(failures(), (Texts{"failure 91", "failure 91"}))
        << "no row: the key and the typing, not the mode";
}

TEST_F(FmLabelsTest, PicksABlockOnScreen) {
    const auto room = host.addReference("ROOM");
    host.pick(room);
    screen.click("BtnEtiquette");
    look([this] {
        EXPECT_EQ(prompts(), Texts{"Select the bloc reference label to insert :"});
        EXPECT_EQ(dialog().Combo2.text(), "ROOM");
        EXPECT_EQ(dialog().blockName(), "ROOM");
        EXPECT_EQ(faulty.count("InsertBlock"), 2) << "by the change of the text, and once more";
        EXPECT_EQ(host.references("ROOM").size(), 1U);
        EXPECT_EQ(subItems(2), (Texts{"room", "0"}));
    });
    host.breakOffPick();
    screen.answers = {forms::Answer::Cancel};
    screen.click("BtnEtiquette");
    look([this] { EXPECT_EQ(dialog().Combo2.text(), "ROOM") << "unchanged"; });
    expectEnabled("IPCT");
    close();
    run();
}

TEST_F(FmLabelsTest, BringsABlockInFromAFile) {
    host.drawing().files["/blocks/mark.v2.dwg"] =
        std::make_shared<fakes::FakeBlock>("mark.v2", fakes::FakeBlock::Attributes{{"NO", "1"}});
    block("TAG");
    screen.paths = {"/blocks/mark.v2.dwg", std::nullopt};
    screen.click("BtnImport");
    look([this] {
        EXPECT_TRUE(dialog().visible());
        EXPECT_EQ(dialog().Combo2.text(), "mark.v2");
        EXPECT_EQ(dialog().Combo2.indexOf("mark.v2"), -1) << "the list isn't refreshed";
        EXPECT_EQ(subItems(1), Texts{"NO"});
        EXPECT_TRUE(host.references("mark.v2").empty());
    });
    screen.click("BtnImport");
    look([this] {
        EXPECT_EQ(dialog().Combo2.text() + dialog().blockName(), "");
        EXPECT_EQ(subItems(1), Texts{"NO"}) << "cancelled: the rows stay";
    });
    expectEnabled("IPCT");
    withoutLeader();
    point({});
    insert();  // of the empty name: the host refuses, and the dialog comes back
    look([this] { EXPECT_TRUE(dialog().visible()); });
    close();
    run();
    EXPECT_TRUE(failures().empty());
}

TEST_F(FmLabelsTest, NoBlockAtAllLeavesTheOtherWaysIn) {
    host.drawing().blocks.clear();
    expectEnabled("T");
    look([this] { EXPECT_EQ(dialog().Combo2.listCount(), 0); });
    close();
    run();
}

TEST_F(FmLabelsTest, ASecondCommandOnTheSameObjectsStartsItsTableAnew) {
    block("TAG");
    row(2);
    mode(kPointX);
    close();
    run();
    look([this] {
        EXPECT_EQ(format().Combo1.listCount(), 20) << "the masks are added once more";
        EXPECT_EQ(format().Combo1.list(13), "0.000");
        EXPECT_EQ(dialog().modeCount(), 13);
        EXPECT_EQ(subItems(3), Texts(3, "Saisie manuel"));
        EXPECT_EQ(session.LabelTable[0].size(), 3U);
        EXPECT_EQ(dialog().Combo2.text(), "TAG");
    });
    row(3);
    close();
    run();
    EXPECT_TRUE(failures().empty());
}

TEST_F(FmLabelsTest, OverlapsNothingAndFitsItsForm) {
    const auto check = [](const forms::Form& form, const std::vector<std::string>& oneSpot) {
        const auto isIn = [&](const forms::Control* control) {
            return std::find(oneSpot.begin(), oneSpot.end(), control->name()) != oneSpot.end();
        };
        for (const forms::Control* one : form.controls()) {
            if (!one->has(forms::Property::Bounds)) continue;
            const auto width = one->container() ? one->container()->width() : form.width() - 120;
            const auto height = one->container() ? one->container()->height() : form.height() - 405;
            EXPECT_LE(one->left() + one->width(), width) << form.name() << " " << one->name();
            if (!isIn(one)) {
                EXPECT_LE(one->top() + one->height(), height) << form.name() << " " << one->name();
            }
            for (const forms::Control* other : form.controls()) {
                if (other == one || other->container() != one->container() ||
                    !other->has(forms::Property::Bounds) || (isIn(one) && isIn(other)))
                    continue;
                const bool apart = one->left() + one->width() <= other->left() ||
                                   other->left() + other->width() <= one->left() ||
                                   one->top() + one->height() <= other->top() ||
                                   other->top() + other->height() <= one->top();
                EXPECT_TRUE(apart) << form.name() << ": " << one->name() << " and " << other->name();
            }
        }
    };
    check(dialog(), {});
    check(parameters(), {});
    for (const int mode : {int{kObjectLength}, int{kCounter}, int{kObjectLayer}}) {
        format().showFieldsOf(mode);
        const bool isShort = mode == kObjectLayer;
        check(format(),
              isShort ? Texts{"Combo1", "Text3", "Label6", "Label7", "Text4"} : Texts{"Combo1", "Text3"});
        if (isShort) {
            EXPECT_GE(format().Text4.top(), format().Frame1.height()) << "cut off";
        }
    }
}

}  // namespace
}  // namespace labels
