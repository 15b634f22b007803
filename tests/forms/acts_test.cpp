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
        screen.acts.push_back([&](forms::Form&) {
            form.taken();
            test();
        });
        screen.acts.push_back([](forms::Form& up) { up.hide(); });
        form.show(screen);
    }
    Events after(const std::function<void()>& act) {
        act();
        return form.taken();
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

TEST_F(ActsTest, ClicksAndTyping) {
    whileUp([&] {
        EXPECT_EQ(after([&] { acts::click(form.Check1); }), Events{"Check1.Click"});
        EXPECT_EQ(form.Check1.value(), 1);
        acts::click(form.Check1);
        EXPECT_EQ(form.Check1.value(), 0);
        form.taken();
        EXPECT_EQ(after([&] { acts::click(form.Option1); }), Events{});  // it is on already
        EXPECT_EQ(after([&] { acts::click(form.Option2); }), Events{"Option2.Click"});
        EXPECT_EQ(after([&] { acts::type(form.Combo1, "free"); }), Events{"Combo1.Change"});
        EXPECT_EQ(form.activeControl(), &form.Combo1);
        form.Text1.setEnabled(true);
        EXPECT_EQ(after([&] { acts::type(form.Text1, ""); }), Events{"Text1.Change"});
        form.Text1.setLocked(true);
        EXPECT_EQ(refusal([&] { acts::type(form.Text1, "x"); }), "Text1 can't be edited");
    });
}

TEST_F(ActsTest, AUsersChoiceRaisesClickAlsoForTheCurrentEntry) {
    whileUp([&] {
        EXPECT_EQ(after([&] { acts::chooseText(form.List1, "window"); }), Events{"List1.Click"});
        EXPECT_EQ(after([&] { acts::chooseIndex(form.List1, 1); }), Events{"List1.Click"});
        EXPECT_EQ(after([&] { acts::chooseIndex(form.Combo1, 2); }), Events{"Combo1.Click"});
        EXPECT_EQ(form.Combo1.text(), "chair");
        EXPECT_EQ(after([&] { acts::chooseText(form.Combo2, "chair"); }), Events{"Combo2.Click"});
        EXPECT_EQ(after([&] { acts::chooseText(form.ListView1, "chair"); }),
                  (Events{"ListView1.ItemClick 3", "ListView1.Click"}));
        EXPECT_EQ(after([&] { acts::click(form.ListView1); }), Events{"ListView1.Click"});
        EXPECT_EQ(form.ListView1.selectedItem().index(), 3);
    });
}

TEST_F(ActsTest, WhatAUserCouldNotDoIsRefused) {
    EXPECT_EQ(refusal([&] { acts::click(form.Button1); }), "fmSample is not shown");
    whileUp([&] {
        EXPECT_EQ(refusal([&] { acts::controlNamed(form, "Nope"); }), "fmSample has no control Nope");
        EXPECT_EQ(refusal([&] { acts::type(form.Text1, "x"); }), "Text1 is disabled");
        EXPECT_EQ(refusal([&] { acts::click(form.Hidden1); }), "Hidden1 is hidden");
        EXPECT_EQ(refusal([&] { acts::click(form.CommonDialog1); }), "CommonDialog1 is a file dialog");
        EXPECT_EQ(refusal([&] { acts::type(form.Combo2, "x"); }),
                  "Combo2 is a combo box and can't be typed in");
        EXPECT_EQ(refusal([&] { acts::chooseText(form.List1, "Door"); }), "List1 has no entry \"Door\"");
        EXPECT_EQ(refusal([&] { acts::chooseIndex(form.List1, 3); }), "List1 has no entry 3");
        EXPECT_EQ(refusal([&] { acts::chooseIndex(form.ListView1, 0); }), "ListView1 has no entry 0");
        EXPECT_EQ(refusal([&] { acts::chooseIndex(form.Button1, 0); }),
                  "Button1 is a button and has no entries");
        form.Frame1.setEnabled(false);
        EXPECT_EQ(refusal([&] { acts::click(form.Option2); }), "Option2 is disabled with Frame1");
        form.Frame1.setVisible(false);
        EXPECT_EQ(refusal([&] { acts::click(form.Option2); }), "Option2 is hidden");
        form.setResizable(false);
        EXPECT_EQ(refusal([&] { acts::resize(form, 1, 1); }), "fmSample has a fixed size");
        EXPECT_EQ(form.taken(), Events{});
    });
}

TEST_F(ActsTest, AKeyInAListViewIsHeardBeforeTheSelectionMoves) {
    whileUp([&] {
        EXPECT_EQ(after([&] { acts::key(form.ListView1, Key::Down); }), Events{"ListView1.KeyDown at 1"});
        EXPECT_EQ(after([&] { acts::key(form, Key::End); }), Events{"ListView1.KeyDown at 2"});
        EXPECT_EQ(after([&] { acts::key(form, Key::Down); }), Events{"ListView1.KeyDown at 3"});
        EXPECT_EQ(form.ListView1.selectedItem().index(), 3);
        acts::key(form, Key::PageUp);
        EXPECT_EQ(form.ListView1.selectedItem().index(), 1);
    });
}

TEST_F(ActsTest, KeysInOtherControls) {
    whileUp([&] {
        EXPECT_EQ(after([&] { acts::key(form.List1, Key::Down); }), Events{"List1.Click"});
        EXPECT_EQ(form.List1.listIndex(), 0);
        EXPECT_EQ(after([&] { acts::key(form.List1, Key::Up); }), Events{});  // at the top already
        EXPECT_EQ(after([&] { acts::key(form.Combo1, Key::End); }), Events{"Combo1.Click"});
        EXPECT_EQ(after([&] { acts::key(form.Check1, Key::Space); }), Events{"Check1.Click"});
        acts::key(form, Key::Tab);
        EXPECT_EQ(form.activeControl(), &form.List1);  // Text1 is disabled
        EXPECT_EQ(after([&] { acts::key(form, Key::Enter); }), Events{});
        form.Button1.setDefault(true);
        EXPECT_EQ(after([&] { acts::key(form, Key::Enter); }), Events{"Button1.Click"});
        EXPECT_EQ(after([&] { acts::key(form, Key::Escape); }), Events{});
        form.Combo1.setFocus();
        form.Combo1.setEnabled(false);
        EXPECT_EQ(after([&] { acts::key(form, Key::Up); }), Events{});
        form.List1.clear();
        EXPECT_EQ(after([&] { acts::key(form.List1, Key::End); }), Events{});
    });
}

TEST_F(ActsTest, F1AsksForTheHelpOfTheControlOrElseOfTheForm) {
    whileUp([&] {
        form.Check1.setHelpContextId(7);
        acts::key(form.Check1, Key::F1);
        acts::key(form.List1, Key::F1);
        form.setHelpContextId(0);
        acts::key(form, Key::F1);
    });
    EXPECT_EQ(screen.helpContexts, (std::vector<int>{7, 109900, 0}));
}

TEST_F(ActsTest, ARowsTextIsEditedOnlyIfTheDialogLetsIt) {
    whileUp([&] {
        EXPECT_FALSE(acts::editLabel(form.ListView1, 1, "new"));
        EXPECT_EQ(form.ListView1.listItems().item(1).text(), "door");
        EXPECT_TRUE(acts::editLabel(form.ListView1, 2, "new"));
        EXPECT_EQ(form.ListView1.listItems().item(2).text(), "new");
        EXPECT_EQ(form.ListView1.selectedItem().index(), 2);
    });
}

TEST_F(ActsTest, AFailureThatLeavesAHandlerIsReportedOnceAndTheDialogStays) {
    whileUp([&] {
        // The failure passes the inner assignment and stops the outer handler too.
        form.Combo1.onChange = [] { throw basic::Error(1000, "erased"); };
        form.onGo = [&] {
            form.Combo1.setText("x");
            form.events.push_back("not reached");
        };
        EXPECT_EQ(after([&] { acts::click(form.Button1); }), Events{"Button1.Click"});
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

TEST_F(ActsTest, OtherExceptionsPassTheGuard) {
    struct EndOfScript {};
    whileUp([&] {
        form.onGo = [] { throw EndOfScript(); };
        EXPECT_THROW(acts::click(form.Button1), EndOfScript);
    });
}

TEST_F(ActsTest, ResizeRaisesOnce) {
    whileUp([&] {
        EXPECT_EQ(after([&] { acts::resize(form, 7000, 5000); }), Events{"Resize"});
        EXPECT_EQ(after([&] { acts::move(form, 10, 20); }), Events{});
        EXPECT_EQ(form.top(), 20);
        EXPECT_NE(refusal([&] { acts::resize(form, -1, 5000); }), "");
    });
}

}  // namespace
