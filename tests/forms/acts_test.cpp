// The user's acts: what they set off, what they refuse, the guard around handlers.
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/sample_form.h"

#include <gtest/gtest.h>

namespace {

namespace acts = forms::acts;
using forms::Key;
using Events = std::vector<std::string>;

class ActsTest : public testing::Test {
  protected:
    ActsTest() {
        form.initialize();
        form.fillLists();
    }
    /// Runs `test` while the form is up.
    void whileUp(const std::function<void()>& test) {
        screen.acts.push_back([&](forms::Form&) { test(); });
        screen.acts.push_back([](forms::Form& up) { up.hide(); });
        form.show(screen);
    }
    struct Row {
        std::function<void()> act;
        Events events;
    };
    /// Does the acts while the form is up, each of which raises its events.
    void expectEvents(const std::vector<Row>& rows) {
        whileUp([&] {
            for (const Row& row : rows)
                EXPECT_EQ(form.after(row.act), row.events) << "row " << &row - &rows[0];
        });
    }
    static std::string refusal(const std::function<void()>& act) {
        try {
            act();
        } catch (const forms::ActError& error) {
            return error.what();
        }
        return "";
    }
    fakes::RecordingScreen screen;
    fakes::SampleForm form;
};

// What the other acts set off is in the contract of the faces.
TEST_F(ActsTest, TypingNothingIsAChangeAndAnOptionThatIsOnRaisesNothing) {
    form.Text1.setEnabled(true);
    expectEvents({{[&] { acts::type(form.Text1, ""); }, {"Text1.Change"}},
                  {[&] { acts::click(form.Option1); }, {}},
                  {[&] { acts::click(form.Check1); }, {"Check1.Click"}},
                  {[&] { acts::click(form.Check1); }, {"Check1.Click"}}});
    EXPECT_EQ(form.Check1.value(), 0);
}

TEST_F(ActsTest, WhatAUserCouldNotDoIsRefused) {
    EXPECT_EQ(refusal([&] { acts::click(form.Button1); }), "fmSample is not shown");
    const std::pair<std::function<void()>, const char*> rows[] = {
        {[&] { acts::type(form.Text1, "x"); }, "Text1 is disabled"},
        {[&] { acts::click(form.Hidden1); }, "Hidden1 is hidden"},
        {[&] { acts::click(form.CommonDialog1); }, "CommonDialog1 is a file dialog"},
        {[&] { acts::type(form.Combo2, "x"); }, "Combo2 is a combo box and can't be typed in"},
        {[&] { acts::chooseText(form.List1, "Door"); }, "List1 has no entry \"Door\""},
        {[&] { acts::chooseIndex(form.List1, 3); }, "List1 has no entry 3"},
        {[&] { acts::chooseIndex(form.ListView1, 0); }, "ListView1 has no entry 0"},
        {[&] { acts::chooseIndex(form.Button1, 0); }, "Button1 is a button and has no entries"},
        {[&] { acts::resize(form, -1, 5000); }, "a dialog's width and height are more than 0"},
        {[&] { form.Frame1.setEnabled(false), acts::click(form.Option2); },
         "Option2 is disabled with Frame1"},
        {[&] { form.Frame1.setVisible(false), acts::click(form.Option2); }, "Option2 is hidden"},
        {[&] { form.setResizable(false), acts::resize(form, 1, 1); }, "fmSample has a fixed size"},
        {[&] {
             form.Text1.setEnabled(true), form.Text1.setLocked(true);
             acts::type(form.Text1, "x");
         },
         "Text1 can't be edited"},
    };
    whileUp([&] {
        form.taken();
        for (const auto& [act, reason] : rows) EXPECT_EQ(refusal(act), reason);
        EXPECT_EQ(form.taken(), Events{});
    });
}

TEST_F(ActsTest, AKeyInAListViewIsHeardBeforeTheSelectionMoves) {
    expectEvents({{[&] { acts::key(form.ListView1, Key::Down); }, {"ListView1.KeyDown at 1"}},
                  {[&] { acts::key(form, Key::End); }, {"ListView1.KeyDown at 2"}},
                  {[&] { acts::key(form, Key::Down); }, {"ListView1.KeyDown at 3"}},
                  {[&] { acts::key(form, Key::PageUp); }, {"ListView1.KeyDown at 3"}}});
    EXPECT_EQ(form.ListView1.selectedItem().index(), 1);
}

TEST_F(ActsTest, KeysInOtherControls) {
    const auto press = [&](Key key) { return [&, key] { acts::key(form, key); }; };
    expectEvents({{[&] { acts::key(form.List1, Key::Down); }, {"List1.Click"}},
                  {[&] { EXPECT_EQ(form.List1.listIndex(), 0); }, {}},
                  {press(Key::Up), {}},  // at the top already
                  {[&] { acts::key(form.Combo1, Key::End); }, {"Combo1.Click"}},
                  {[&] { acts::key(form.Check1, Key::Space); }, {"Check1.Click"}},
                  {press(Key::Tab), {}},
                  {[&] { EXPECT_EQ(form.activeControl(), &form.List1) << "Text1 is disabled"; }, {}},
                  {press(Key::Enter), {}},
                  {[&] { form.Button1.setDefault(true); }, {}},
                  {press(Key::Enter), {"Button1.Click"}},
                  {press(Key::Escape), {}},
                  {[&] { form.Combo1.setFocus(), form.Combo1.setEnabled(false); }, {}},
                  {press(Key::Up), {}},
                  {[&] { form.List1.clear(), acts::key(form.List1, Key::End); }, {}}});
}

TEST_F(ActsTest, F1AsksForTheHelpOfTheControlOrElseOfTheForm) {
    form.Check1.setHelpContextId(7);
    expectEvents({{[&] { acts::key(form.Check1, Key::F1); }, {"Help 7"}},
                  {[&] { acts::key(form.List1, Key::F1); }, {"Help 109900"}},
                  {[&] { form.setHelpContextId(0), acts::key(form, Key::F1); }, {"Help 0"}}});
}

TEST_F(ActsTest, ARowsTextIsEditedOnlyIfTheDialogLetsIt) {
    whileUp([&] {
        EXPECT_FALSE(acts::beginEdit(form.ListView1, 1));
        EXPECT_EQ(refusal([&] { acts::endEdit(form.ListView1, "new"); }), "ListView1 has no row in edit");
        EXPECT_TRUE(acts::beginEdit(form.ListView1, 2));
        acts::endEdit(form.ListView1, "new");
    });
    EXPECT_EQ(form.ListView1.listItems().item(1).text(), "door");
    EXPECT_EQ(form.ListView1.listItems().item(2).text(), "new");
    EXPECT_EQ(form.ListView1.selectedItem().index(), 2);
}

TEST_F(ActsTest, AFailureThatLeavesAHandlerIsReportedOnceAndTheDialogStays) {
    struct EndOfScript : basic::Interruption {
        EndOfScript() : Interruption("the end") {}
    };
    whileUp([&] {
        form.onGo = [] { throw EndOfScript(); };
        EXPECT_THROW(acts::click(form.Button1), EndOfScript) << "interruptions pass the guard";
        // The failure passes the inner assignment and stops the outer handler too.
        form.Combo1.onChange = [] { throw basic::Error(1000, "erased"); };
        form.onGo = [&] {
            form.Combo1.setText("x");
            form.events.push_back("not reached");
        };
        EXPECT_EQ(form.after([&] { acts::click(form.Button1); }), Events{"Button1.Click"});
        EXPECT_TRUE(form.visible());
        EXPECT_EQ(screen.log.back(), "failure 1000: erased");
        // A handler that hides the form and then fails is reported all the same.
        form.onGo = [&] {
            form.hide();
            throw basic::Error(1001, "hidden");
        };
        acts::click(form.Button1);
        EXPECT_EQ(screen.log.back(), "failure 1001: hidden");
        EXPECT_FALSE(form.visible());
        screen.acts.clear();
    });
}

}  // namespace
