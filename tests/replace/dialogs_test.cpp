// What transcripts can't show of the two dialogs: a host that fails, and what is asked of it.

#include "tests/fakes/layout_check.h"
#include "tests/replace/replace_world.h"

namespace replace {
namespace {

struct DialogTest : testing::Test, ReplaceWorld {
    std::string count() { return dialog().LblNbrSelected.caption(); }
    Texts destinations() {
        Texts found;
        for (int row = 1; row <= table().rowCount(); ++row) found.push_back(table().destination(row));
        return found;
    }
};

TEST_F(DialogTest, IsTidyAndUsesTheFirstSelectionSetWhateverItsName) {
    const auto mine = model::called(object("SelectionSets"), "Add", {"MINE"});
    select({firstDoor});
    mine->invoke("SelectOnScreen");
    dialog();  // a surviving dialog: it is not set up again, and the set is empty until a zone is applied
    dialog().LblNbrSelected.setCaption("7");
    look([&] {
        expectTidy(dialog());
        expectTidy(table());
        EXPECT_EQ(count(), "7");
        EXPECT_EQ(mine->get("Count").integer(), 0);
    });
    close();
    run();
    EXPECT_EQ(setNames(), Texts{"MINE"});
}

TEST_F(DialogTest, IsDisabledWithoutAnyInsertedBlock) {
    eraseAll();
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
    EXPECT_EQ(screen.boxes[0].icon, forms::MessageDialog::Icon::Exclamation);
}

TEST_F(DialogTest, TellsAFailureOfTheListsInEnglish) {
    object("SelectionSets")->invoke("Add", {"sTemp"});
    close();
    run();
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_TRUE(
        screen.boxes[0].text.starts_with("The following error has occurred trying to replace a block: "));
    EXPECT_EQ(screen.boxes[0].title, "");
    EXPECT_EQ(screen.boxes[0].icon, forms::MessageDialog::Icon::None);
}

TEST_F(DialogTest, TakesAQuestionThatFailsForAYes) {
    screen.choose("lstDestination", "DOOR");
    screen.choose("CboBlocReplacer", "chair");
    look([&] {
        EXPECT_FALSE(dialog().ChkAttSet.enabled());
        faulty.reset();
        faulty.failAt("get hasAttributes");
    });
    screen.choose("CboBlocReplacer", "chair");
    look([&] { EXPECT_TRUE(dialog().ChkAttSet.enabled()); });
    close();
    run();
    EXPECT_EQ(references("DOOR").size() + references("chair").size(), 3U) << "no trial reference is left";
}

TEST_F(DialogTest, FailuresOfTheHostLeaveTheHandlersAndTheDialogStays) {
    screen.choose("lstDestination", "DOOR");
    look([&] { faulty.failAt("call Select"); });
    screen.choose("lstDestination", "chair");
    look([&] {
        EXPECT_TRUE(dialog().visible());
        EXPECT_EQ(count(), "2") << "the caption isn't reached";
    });
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
        while (setNames().size() > 1) set(1)->invoke("Delete");
        faulty.failAtCall(n);
        EXPECT_EQ(fakes::errorOf([&] { dialog(); }), 0) << "call " << n;
        EXPECT_TRUE(faulty.failed()) << "call " << n;
    }
}

TEST_F(DialogTest, AFailedTableLeavesTheTrialReferenceAndTheNextUseTriesAgain) {
    screen.choose("lstDestination", "DOOR");
    screen.choose("CboBlocReplacer", "LAMP");
    screen.click("ChkAttSet");
    screen.type("CboBlocReplacer", "NONE");
    screen.click("BtnAttSet");
    look([&] {
        EXPECT_EQ(failures().size(), 1U);
        EXPECT_EQ(references("DOOR").size(), 3U);
        EXPECT_FALSE(table().visible());
    });
    screen.type("CboBlocReplacer", "LAMP");
    screen.click("BtnAttSet");
    screen.choose("ListView1", 1);
    screen.choose("Combo2", "CODE");
    screen.click("OKButton");
    look([&] { faulty.reset(); });
    screen.click("BtnAttSet");
    look([&] {
        EXPECT_EQ(destinations(), (Texts{"CODE", ""}));
        EXPECT_EQ(faulty.calls(), 0) << "for the same blocks nothing is inserted again";
    });
    screen.click("OKButton");
    screen.type("CboBlocReplacer", "NONE");
    screen.click("BtnAttSet");
    look([&] {
        EXPECT_EQ(destinations(), (Texts{"CODE", ""})) << "discarded only when the blocks can be read";
    });
    screen.click("OKButton");
    close();
    run();
    EXPECT_EQ(failures().size(), 2U);
}

}  // namespace
}  // namespace replace
