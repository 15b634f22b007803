#include "replace/fm_replace.h"

#include "tests/replace/replace_world.h"

#include <gtest/gtest.h>

namespace replace {
namespace {

using forms::Answer;

class DialogTest : public testing::Test, public ReplaceWorld {
  protected:
    std::string count() { return dialog().LblNbrSelected.caption(); }
    /// Everything that the user may act on but the button that closes.
    bool anyEnabledBut(const forms::Control& exempt) {
        for (const forms::Control* control : dialog().controls())
            if (control != &exempt && control->has(forms::Property::Enabled) && control->enabled())
                return true;
        return false;
    }
};

TEST_F(DialogTest, OpensOnTheFirstBlockOfTheWholeDrawing) {
    furnish();
    look([&] {
        fmReplace& form = dialog();
        EXPECT_EQ(form.caption(), "Vorlane 1.0 : Block replacement");
        EXPECT_EQ(form.helpContextId(), 101200);
        EXPECT_EQ(form.owner(), &session.form("fmOwner"));
        EXPECT_EQ(entries(form.lstDestination), (Texts{"chair", "DOOR"})) << "sorted without regard to case";
        EXPECT_EQ(entries(form.CboBlocReplacer),
                  (Texts{"<<< Select", "Browse >>>", "chair", "DOOR", "LAMP"}));
        EXPECT_EQ(entries(form.cboVisibility), (Texts{"On", "Off", "Unchanged"}));
        EXPECT_EQ(form.lstDestination.text(), "chair");
        EXPECT_EQ(count(), "1");
        for (const forms::TextBox* text :
             {&form.txtRotation, &form.txtXScale, &form.txtYScale, &form.txtZScale}) {
            EXPECT_EQ(text->text(), "Unchanged");
            EXPECT_FALSE(text->enabled());
        }
        EXPECT_EQ(form.cboVisibility.text(), "Unchanged");
        EXPECT_FALSE(form.cboVisibility.enabled());
        EXPECT_TRUE(form.optZoneAll.value());
        EXPECT_FALSE(form.BtnSelectZone.enabled());
        EXPECT_FALSE(form.ChkAttSet.enabled());
        EXPECT_FALSE(form.BtnAttSet.enabled());
        EXPECT_EQ(form.Check1.value(), 0);
    });
    screen.choose("lstDestination", "DOOR");
    look([&] { EXPECT_EQ(count(), "2"); });
    close();
    run();
    EXPECT_EQ(host.setNames(), Texts{"SS1"}) << "the set stays in the drawing";
    EXPECT_TRUE(screen.boxes.empty());
    EXPECT_TRUE(failures().empty());
}

TEST_F(DialogTest, HasItsControlsInTheOrderOfTheLanguageKeysAndNoneOverAnother) {
    const Texts order{"Check2",         "Check1",      "CommonDialog1",   "Frame2",
                      "Picture2",       "ChkAttSet",   "BtnAttSet",       "TxtBlocReplacer",
                      "txtZScale",      "chkZScale",   "cboVisibility",   "txtYScale",
                      "chkYScale",      "txtXScale",   "chkXScale",       "chkVisibility",
                      "txtRotation",    "chkRotation", "CboBlocReplacer", "Label5",
                      "Line1",          "Label1",      "Frame1",          "Picture1",
                      "BtnSelectName",  "optZoneAll",  "BtnSelectZone",   "optZoneSelection",
                      "lstDestination", "Line2",       "Label4",          "Label3",
                      "BtnClose",       "BtnReplace",  "Label2",          "LblNbrSelected"};
    const Texts tableOrder{"ListView1", "Frame1", "Combo2", "Label3", "OKButton", "Label1", "Label2"};
    furnish();
    for (const auto& [form, names] : {std::pair<forms::Form&, const Texts&>(dialog(), order),
                                      std::pair<forms::Form&, const Texts&>(table(), tableOrder)}) {
        ASSERT_EQ(form.controlCount(), static_cast<int>(names.size()));
        for (int i = 0; i < form.controlCount(); ++i) EXPECT_EQ(form.control(i).name(), names[i]);

        const auto apart = [](const forms::Bounds& a, const forms::Bounds& b) {
            return a.left + a.width <= b.left || b.left + b.width <= a.left || a.top + a.height <= b.top ||
                   b.top + b.height <= a.top;
        };
        for (const forms::Control* a : form.controls()) {
            if (!a->has(forms::Property::Bounds)) continue;
            EXPECT_GT(a->width() * a->height(), 0) << a->name();
            const forms::Control* box = a->container();
            EXPECT_LE(a->left() + a->width(), box ? box->width() : form.width()) << a->name();
            EXPECT_LE(a->top() + a->height(), box ? box->height() : form.height()) << a->name();
            for (const forms::Control* b : form.controls()) {
                if (a == b || !b->has(forms::Property::Bounds) || b->container() != box) continue;
                EXPECT_TRUE(apart(a->bounds(), b->bounds())) << a->name() << " lies over " << b->name();
            }
        }
    }
}

TEST_F(DialogTest, TakesTheFirstSelectionSetWhateverItsName) {
    furnish();
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
    host.addBlock("DOOR");
    look([&] {
        EXPECT_TRUE(dialog().BtnClose.enabled());
        EXPECT_FALSE(anyEnabledBut(dialog().BtnClose));
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
    furnish();
    host.drawing().sets.push_back(std::make_shared<fakes::FakeSelectionSet>(host.drawing(), "sTemp"));
    look([&] { EXPECT_EQ(dialog().Check1.value(), 0); });
    close();
    run();
    ASSERT_EQ(boxTexts(), Texts{"The following error has occurred trying to replace a block: "
                                "The named selection set exists"});
    EXPECT_EQ(screen.boxes[0].title, "");
    EXPECT_EQ(screen.boxes[0].icon, forms::MessageBox::Icon::None);
}

TEST_F(DialogTest, LetsAFieldFollowItsCheckBox) {
    furnish();
    for (const auto& [name, start] : {std::pair("Rotation", "0"), std::pair("XScale", "1"),
                                      std::pair("YScale", "1"), std::pair("ZScale", "1")}) {
        const std::string check = std::string("chk") + name, field = std::string("txt") + name;
        auto& text = static_cast<forms::TextBox&>(*dialog().findControl(field));
        const std::string first = start;
        screen.click(check);
        look([&text, first, this] {
            EXPECT_EQ(text.text(), first);
            EXPECT_EQ(dialog().activeControl(), &text);
        });
        screen.type(field, "2.5");
        screen.click(check);
        look([&text] {
            EXPECT_EQ(text.text(), "Unchanged");
            EXPECT_FALSE(text.enabled());
        });
        screen.click(check);
        look([&text, first] { EXPECT_EQ(text.text(), first) << "what was typed before is lost"; });
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
    EXPECT_TRUE(screen.boxes.empty()) << "no field was tested while its box was off";
}

TEST_F(DialogTest, TestsANumberAtEachChangeUnderTheUsersSettings) {
    furnish();
    platform.numbers = basic::Regional::french();
    screen.click("chkRotation");
    for (const char* text : {"", "-", "-1,5", "1.5"}) screen.type("txtRotation", text);
    look([&] {
        EXPECT_EQ(dialog().txtRotation.text(), "1.5") << "the text stays as typed";
        EXPECT_EQ(dialog().activeControl(), &dialog().txtRotation);
    });
    close();
    run();
    EXPECT_EQ(boxTexts(), Texts(3, "This value must be numeric"));
    EXPECT_EQ(screen.boxes.at(0).title, "Vorlane 1.0");
}

TEST_F(DialogTest, OffersTheTranscriptionWhenBothBlocksHaveAttributes) {
    furnish();
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
    screen.choose("lstDestination", "DOOR");
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
    furnish();
    host.pick(secondDoor);
    screen.click("BtnSelectName");
    look([&] {
        EXPECT_EQ(dialog().lstDestination.text(), "DOOR");
        EXPECT_EQ(count(), "2");
        EXPECT_EQ(shows("fmReplace"), 2) << "a show of its own, within the handler";
    });
    host.select({firstDoor, host.addEntity("AcDbLine")});
    screen.click("optZoneSelection");  // selects at once
    look([&] {
        EXPECT_EQ(count(), "1");
        EXPECT_TRUE(dialog().BtnSelectZone.enabled());
    });
    host.select({});
    screen.click("BtnSelectZone");
    look([&] { EXPECT_EQ(count(), "0"); });
    screen.choose("lstDestination", "DOOR");
    look([&] {
        EXPECT_TRUE(dialog().optZoneAll.value()) << "a zone on screen doesn't survive the choice of a block";
        EXPECT_FALSE(dialog().BtnSelectZone.enabled());
        EXPECT_EQ(count(), "2");
    });
    host.pick(firstDoor);
    screen.choose("CboBlocReplacer", 0);  // unwinds all the shows, and the loop shows it again
    look([&] {
        EXPECT_EQ(dialog().CboBlocReplacer.text(), "DOOR");
        EXPECT_EQ(dialog().Check2.value(), 0);
        EXPECT_FALSE(dialog().ChkAttSet.enabled()) << "as the command entry left it, until the next click";
        EXPECT_EQ(shows("fmReplace"), 5);
    });
    close();
    run();
    EXPECT_EQ(host.drawing().prompts, (Texts{"Select one block reference of the group to be replaced :",
                                             "Select the new bloc for the replacement :"}));
    EXPECT_TRUE(failures().empty());
}

TEST_F(DialogTest, EndsHiddenWhenThePickOfTheSourceIsBrokenOff) {
    furnish();
    host.breakOffPick();
    screen.answers = {Answer::Cancel};
    screen.click("BtnSelectName");
    run();
    EXPECT_EQ(failures().size(), 1U) << "the name of nothing";
    EXPECT_EQ(dialog().Check2.value(), 0);

    // A block that the list lacks selects nothing, and the dialog comes back as it was.
    host.addBlock("NEW");
    host.pick(host.addReference("NEW"));
    dialog().optZoneAll.setValue(true);
    screen.click("BtnSelectName");
    look([&] { EXPECT_EQ(dialog().lstDestination.text(), "chair"); });
    close();
    run();
    EXPECT_EQ(shows("fmReplace"), 3);
}

TEST_F(DialogTest, EndsHiddenWithAnEmptySetWhenTheZoneIsBrokenOff) {
    furnish();
    screen.choose("lstDestination", "DOOR");
    host.breakOffSelection();
    screen.click("optZoneSelection");
    run();
    EXPECT_EQ(failures(), Texts{"failure " + std::to_string(fakes::kEscape) + ": User input was cancelled"});
    EXPECT_TRUE(host.drawing().sets.front()->members.empty());
    EXPECT_EQ(count(), "2") << "the caption isn't reached";
}

TEST_F(DialogTest, ComesBackWithTheLastNameWhenThePickOfTheReplacementIsBrokenOff) {
    furnish();
    host.pick(firstDoor);
    screen.choose("CboBlocReplacer", 0);
    screen.choose("CboBlocReplacer", "LAMP");
    host.breakOffPick();
    screen.answers = {Answer::Cancel};
    screen.choose("CboBlocReplacer", 0);
    look([&] { EXPECT_EQ(dialog().CboBlocReplacer.text(), "DOOR"); });
    close();
    run();
    EXPECT_EQ(failures().size(), 1U);
}

TEST_F(DialogTest, ListsABlockThatWasBroughtIn) {
    furnish();
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
        EXPECT_EQ(form.CboBlocReplacer.text(), "desk");
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

TEST_F(DialogTest, LosesTheReplacementWhenTheFileDialogIsCancelled) {
    furnish();
    screen.choose("CboBlocReplacer", "LAMP");
    screen.paths = {std::nullopt};
    screen.choose("CboBlocReplacer", 1);
    look([&] { EXPECT_EQ(dialog().CboBlocReplacer.text(), ""); });
    screen.click("BtnReplace");
    close();
    run();
    EXPECT_EQ(failures(), Texts{"failure " + std::to_string(fakes::kKeyNotFound) + ": Key not found"});
    EXPECT_EQ(host.references("chair").size(), 1U);
}

TEST_F(DialogTest, StaysOpenAfterARunAndFailsAtTheSecond) {
    furnish();
    screen.choose("lstDestination", "DOOR");
    screen.choose("CboBlocReplacer", "LAMP");
    screen.click("BtnReplace");
    look([&] {
        EXPECT_EQ(boxTexts(), Texts{kSuccess});
        EXPECT_EQ(count(), "2");
        EXPECT_EQ(entries(dialog().lstDestination), (Texts{"chair", "DOOR"})) << "nothing is refreshed";
    });
    screen.click("BtnReplace");
    look([&] { EXPECT_EQ(failures().size(), 1U); });
    screen.choose("lstDestination", "DOOR");  // applies the zone again: now it is empty
    screen.click("BtnReplace");
    close();
    run();
    EXPECT_EQ(boxTexts(), (Texts{kSuccess, kSuccess}));
    EXPECT_EQ(host.references("LAMP").size(), 2U);
}

TEST_F(DialogTest, FailuresOfTheHostLeaveTheHandlersAndTheDialogStays) {
    furnish();
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
        host.drawing().sets.resize(1);
        faulty.failAtCall(n);
        EXPECT_EQ(fakes::errorOf([&] { dialog(); }), 0) << "call " << n;
        EXPECT_TRUE(faulty.failed()) << "call " << n;
    }
}

TEST_F(DialogTest, KeepsItsTextsWithoutALanguageFile) {
    furnish();
    session.CurLng = {};
    close();
    run();
    EXPECT_EQ(dialog().caption(), "Vorlane 1.0 : Remplacement de blocs");
    EXPECT_EQ(dialog().BtnReplace.caption(), "Remplacer");
    EXPECT_EQ(dialog().txtXScale.text(), "Conserver");
}

}  // namespace
}  // namespace replace
