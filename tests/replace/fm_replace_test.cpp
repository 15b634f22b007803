#include "replace/fm_replace.h"

#include "tests/fakes/layout_check.h"
#include "tests/replace/replace_world.h"

#include <gtest/gtest.h>

namespace replace {
namespace {

using forms::Answer;

class DialogTest : public testing::Test, public ReplaceWorld {
  protected:
    std::string count() { return dialog().LblNbrSelected.caption(); }
    /// Looks at what the dialog shows: the number selected, whether the zone may be selected on screen.
    void expectZone(const std::string& number, bool selectable) {
        look([=, this] {
            EXPECT_EQ(count(), number);
            EXPECT_EQ(dialog().BtnSelectZone.enabled(), selectable);
        });
    }
};

TEST_F(DialogTest, OpensOnTheFirstBlockOfTheWholeDrawing) {
    look([&] {
        EXPECT_EQ(dialog().helpContextId(), 101200);
        EXPECT_EQ(dialog().owner(), &session.form("fmOwner"));
        EXPECT_EQ(entries(dialog().lstDestination), (Texts{"chair", "DOOR"})) << "sorted without case";
        EXPECT_EQ(dialog().Check1.value(), 0);
        expectTidy(dialog());
        expectTidy(table());
    });
    expectZone("1", false);
    screen.choose("lstDestination", "DOOR");
    expectZone("2", false);
    close();
    run();
    EXPECT_EQ(host.setNames(), Texts{"SS1"}) << "the set stays in the drawing";
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_TRUE(failures().empty());
}

TEST_F(DialogTest, TakesTheFirstSelectionSetWhateverItsName) {
    host.drawing().sets.push_back(std::make_shared<fakes::FakeSelectionSet>(host.drawing(), "MINE"));
    host.drawing().sets.front()->members = {firstDoor};
    dialog();  // a surviving dialog: it is not set up again, and the set is empty until a zone is applied
    dialog().LblNbrSelected.setCaption("7");
    look([&] {
        EXPECT_EQ(count(), "7");
        EXPECT_TRUE(host.drawing().sets.front()->members.empty());
    });
    close();
    run();
    EXPECT_EQ(host.setNames(), Texts{"MINE"});
}

TEST_F(DialogTest, IsDisabledWithoutAnyInsertedBlock) {
    host.drawing().entities.clear();
    look([&] {
        for (const forms::Control* control : dialog().controls())
            EXPECT_EQ(control->has(forms::Property::Enabled) && control->enabled(),
                      control == &dialog().BtnClose)
                << control->name();
        EXPECT_EQ(dialog().Check1.value(), 1);
        EXPECT_EQ(dialog().CboBlocReplacer.listCount(), 0);
    });
    close();
    run();
    ASSERT_EQ(boxTexts(), Texts{"No block références were found in this drawing."});
    EXPECT_EQ(screen.boxes[0].title, "Quillet 1.0");
    EXPECT_EQ(screen.boxes[0].icon, forms::MessageBox::Icon::Exclamation);
}

TEST_F(DialogTest, TellsAFailureOfTheListsInEnglish) {
    host.drawing().sets.push_back(std::make_shared<fakes::FakeSelectionSet>(host.drawing(), "sTemp"));
    close();
    run();
    ASSERT_EQ(boxTexts(), Texts{"The following error has occurred trying to replace a block: "
                                "The named selection set exists"});
    EXPECT_EQ(screen.boxes[0].title, "");
    EXPECT_EQ(screen.boxes[0].icon, forms::MessageBox::Icon::None);
}

TEST_F(DialogTest, LetsAFieldFollowItsCheckBox) {
    platform.numbers = basic::Regional::french();
    for (const auto& [name, start] : {std::pair("Rotation", "0"), std::pair("XScale", "1"),
                                      std::pair("YScale", "1"), std::pair("ZScale", "1")}) {
        const std::string check = std::string("chk") + name, field = std::string("txt") + name;
        auto& text = static_cast<forms::TextBox&>(*dialog().findControl(field));
        const auto expectText = [&text, this](const std::string& expected, bool enabled) {
            look([=, &text, this] {
                EXPECT_EQ(text.text(), expected);
                EXPECT_EQ(text.enabled(), enabled);
                EXPECT_EQ(dialog().activeControl() == &text, enabled);
            });
        };
        screen.click(check);
        expectText(start, true);
        screen.type(field, "-2,5");
        screen.type(field, "2.5");  // no number under a decimal comma, but it stays as typed
        expectText("2.5", true);
        screen.click(check);
        expectText("Unchanged", false);
        screen.click(check);
        expectText(start, true);
    }
    screen.click("chkVisibility");
    look([&] {
        EXPECT_EQ(dialog().cboVisibility.text(), "On");
        EXPECT_EQ(dialog().activeControl(), &dialog().cboVisibility);
    });
    screen.click("chkVisibility");
    look([&] { EXPECT_EQ(dialog().cboVisibility.text(), "Unchanged"); });
    close();
    run();
    EXPECT_EQ(boxTexts(), Texts(4, "This value must be numeric")) << "none while a box is off";
    EXPECT_EQ(screen.boxes.at(0).title, "Vorlane 1.0");
}

TEST_F(DialogTest, OffersTheTranscriptionWhenBothBlocksHaveAttributes) {
    const auto offered = [this](bool check, bool button, int value) {
        look([=, this] {
            EXPECT_EQ(dialog().ChkAttSet.enabled(), check);
            EXPECT_EQ(dialog().BtnAttSet.enabled(), button);
            EXPECT_EQ(dialog().ChkAttSet.value(), value);
        });
    };
    screen.choose("CboBlocReplacer", "LAMP");
    offered(false, false, 0);
    screen.choose("lstDestination", "DOOR");
    offered(true, false, 0);
    screen.click("ChkAttSet");
    offered(true, true, 1);
    screen.type("CboBlocReplacer", "NONE");  // a typed name has no effect until the next click
    offered(true, true, 1);
    screen.choose("CboBlocReplacer", "chair");
    offered(false, false, 0);
    look([&] { faulty.reset(), faulty.failAt("get hasAttributes", 1); });
    screen.choose("CboBlocReplacer", "chair");  // a question that fails counts as a yes
    offered(true, false, 0);
    close();
    run();
    EXPECT_EQ(host.references("DOOR").size(), 2U) << "no trial reference is left";
    EXPECT_EQ(host.references("chair").size(), 1U);
    EXPECT_TRUE(host.references("LAMP").empty());
}

TEST_F(DialogTest, ComesBackFromEachPick) {
    const auto odd = host.addEntity("AcDbLine");
    odd->name = "DOOR";  // the zones admit any entity of the block's name
    host.pick(secondDoor);
    screen.click("BtnSelectName");
    look([&] {
        EXPECT_EQ(dialog().lstDestination.text(), "DOOR");
        EXPECT_EQ(shows("fmReplace"), 2) << "a show of its own, within the handler";
    });
    expectZone("3", false);
    host.select({firstDoor, odd, host.references("chair").at(0)});
    screen.click("optZoneSelection");  // selects at once
    expectZone("2", true);
    host.select({});
    screen.click("BtnSelectZone");
    expectZone("0", true);
    screen.choose("lstDestination", "DOOR");  // a zone on screen doesn't survive the choice of a block
    expectZone("3", false);
    host.pick(firstDoor);
    screen.choose("CboBlocReplacer", 0);  // unwinds all the shows, and the loop shows it again
    look([&] {
        EXPECT_TRUE(dialog().optZoneAll.value());
        EXPECT_EQ(dialog().CboBlocReplacer.text(), "DOOR");
        EXPECT_EQ(dialog().Check2.value(), 0);
        EXPECT_FALSE(dialog().ChkAttSet.enabled()) << "as the command entry left it, until the next click";
        EXPECT_EQ(shows("fmReplace"), 5);
    });
    screen.choose("CboBlocReplacer", "LAMP");
    host.breakOffPick();
    screen.answers = {Answer::Cancel};
    screen.choose("CboBlocReplacer", 0);
    look([&] { EXPECT_EQ(dialog().CboBlocReplacer.text(), "DOOR") << "the last name picked"; });
    close();
    EXPECT_TRUE(failures().empty());
    run();
    EXPECT_EQ(
        host.drawing().prompts,
        (Texts{"Select one block reference of the group to be replaced :",
               "Select the new bloc for the replacement :", "Select the new bloc for the replacement :"}));
    EXPECT_EQ(failures().size(), 1U) << "the name of nothing";
}

TEST_F(DialogTest, APickedBlockThatTheListLacksSelectsNothing) {
    look([&] {
        host.addBlock("NEW");
        host.pick(host.addReference("NEW"));
    });
    screen.click("BtnSelectName");
    look([&] { EXPECT_EQ(dialog().lstDestination.text(), "chair"); });
    close();
    run();
    EXPECT_EQ(shows("fmReplace"), 2);
}

TEST_F(DialogTest, ListsABlockThatWasBroughtIn) {
    host.drawing().files["/blocks/desk.dwg"] =
        std::make_shared<fakes::FakeBlock>("desk", fakes::FakeBlock::Attributes{{"CODE", "K"}});
    screen.choose("lstDestination", "DOOR");
    screen.click("chkXScale");
    screen.type("txtXScale", "3");
    screen.click("chkVisibility");
    screen.choose("cboVisibility", "Off");
    screen.paths = {"/blocks/desk.dwg"};
    screen.choose("CboBlocReplacer", 1);
    look([&] {
        fmReplace& form = dialog();
        EXPECT_EQ(entries(form.CboBlocReplacer),
                  (Texts{"<<< Select", "Browse >>>", "chair", "desk", "DOOR", "LAMP"}));
        EXPECT_EQ(form.CboBlocReplacer.listIndex(), 3);
        EXPECT_EQ(form.lstDestination.text(), "DOOR");
        EXPECT_TRUE(form.ChkAttSet.enabled()) << "found out through the list's selection";
        EXPECT_TRUE(form.BtnSelectZone.enabled()) << "though the whole drawing is the zone";
        EXPECT_EQ(form.txtXScale.text(), "3") << "the focus failed before the text was set";
        EXPECT_EQ(form.cboVisibility.text(), "On") << "the list moved before the focus failed";
    });
    host.select({firstDoor});
    host.select({secondDoor});
    screen.click("BtnSelectZone");  // turns the option on, which selects; then the zone is applied once more
    close();
    look([&] { EXPECT_EQ(count(), "1"); });
    close();
    run();
    EXPECT_TRUE(host.drawing().selections.empty());
    EXPECT_TRUE(failures().empty());
}

TEST_F(DialogTest, FailuresOfTheHostLeaveTheHandlersAndTheDialogStays) {
    screen.choose("lstDestination", "DOOR");
    look([&] { faulty.failAt("call Select"); });
    screen.choose("lstDestination", "chair");
    look([&] { EXPECT_TRUE(dialog().visible()); });
    expectZone("2", false);  // the caption isn't reached
    close();
    run();
    EXPECT_EQ(failures().size(), 1U);

    // In the opening every failing statement is skipped, so any one failure still ends in a dialog.
    faulty.reset();
    session.dropForm("fmReplace");
    dialog();
    const int calls = faulty.calls();
    for (int n = 1; n <= calls; ++n) {
        session.dropForm("fmReplace");
        host.drawing().sets.resize(1);
        faulty.failAtCall(n);
        EXPECT_EQ(fakes::errorOf([&] { dialog(); }), 0) << "call " << n;
        EXPECT_TRUE(faulty.failed()) << "call " << n;
    }
}

}  // namespace
}  // namespace replace
