// The life of a form: load, nested shows, unload; the focus.
#include "forms/reading_order.h"
#include "tests/fakes/recording_screen.h"
#include "tests/fakes/sample_form.h"

#include <gtest/gtest.h>

namespace {

using Events = std::vector<std::string>;

class FormTest : public testing::Test {
  protected:
    FormTest() { form.initialize(); }
    fakes::RecordingScreen screen;
    fakes::SampleForm form;
};

TEST_F(FormTest, LoadsOnceAndActivatesAtEachShow) {
    form.onGo = [&] { form.hide(); };
    screen.click("Button1");
    screen.click("Button1");
    fakes::SampleForm owner;
    form.show(screen, &owner);
    EXPECT_EQ(form.owner(), &owner);
    form.show(screen);
    form.ensureLoaded();
    EXPECT_EQ(form.taken(),
              (Events{"Initialize", "Load", "Activate", "Button1.Click", "Activate", "Button1.Click"}));
    EXPECT_EQ(screen.log, (Events{"show fmSample", "hide fmSample", "show fmSample", "hide fmSample"}));
}

TEST_F(FormTest, ShowsNestInsideAHandler) {
    bool nested = false;
    form.onGo = [&] {
        form.hide();
        if (nested) return;
        nested = true;
        form.show(screen);
        form.events.push_back("inner show ended");
    };
    screen.click("Button1");
    screen.click("Button1");
    form.show(screen);
    EXPECT_FALSE(form.visible());
    EXPECT_EQ(form.events.back(), "inner show ended");
    EXPECT_EQ(form.timesDrawn(), 2);
}

TEST_F(FormTest, ShowsNestOnlySoDeep) {
    form.onGo = [&] {
        form.hide();
        form.show(screen);
    };
    for (int click = 0; click < 20000; ++click) screen.click("Button1");
    form.show(screen);
    EXPECT_EQ(form.timesDrawn(), forms::Form::kDeepestShow);
    EXPECT_EQ(screen.log.back(), "failure 28: Out of stack space");
}

TEST_F(FormTest, ASecondShowOfAVisibleFormFailsAndIsReported) {
    form.onGo = [&] { form.show(screen); };
    screen.click("Button1");
    screen.closeBox();
    form.show(screen);
    EXPECT_EQ(screen.log[1], "failure 400: Form already displayed; can't show modally");
}

TEST_F(FormTest, AFormThatHidesItselfWhileActivatedIsNeverDrawn) {
    form.onActivate = [&] { form.hide(); };
    form.show(screen);
    EXPECT_TRUE(screen.log.empty());
    EXPECT_EQ(screen.changes, 0);
}

TEST_F(FormTest, AFailureOfActivateIsReportedAndTheFormStaysUp) {
    form.onActivate = [] { throw basic::Error(basic::kObjectNotSet); };
    screen.closeBox();
    form.show(screen);
    EXPECT_EQ(screen.log.size(), 3u);
    EXPECT_TRUE(screen.log[0].starts_with("failure 91: "));
    EXPECT_EQ(screen.log[1], "show fmSample");
}

TEST_F(FormTest, AFailureOfLoadComesOutAndTheNextUseTriesAgain) {
    form.onLoad = [] { throw basic::Error(basic::kInvalidCall); };
    EXPECT_THROW(form.show(screen), basic::Error);
    EXPECT_FALSE(form.visible() || form.loaded());
    EXPECT_TRUE(screen.log.empty());
    form.onLoad = nullptr;
    form.ensureLoaded();
    EXPECT_TRUE(form.loaded());
}

TEST_F(FormTest, AnExceptionOfTheFaceUnwindsAllShows) {
    form.onGo = [&] {
        form.hide();
        form.show(screen);
    };
    screen.click("Button1");
    EXPECT_THROW(form.show(screen), basic::Interruption);
    EXPECT_FALSE(form.visible());
    EXPECT_EQ(form.screen(), nullptr);
}

TEST_F(FormTest, TheCloseBoxBringsTheDesignBackButKeepsTranslatedCaptions) {
    form.setCaption("Muster");
    form.Check1.setCaption("Drehen");
    form.Check1.setHelpContextId(109900);
    form.setIcon("house");
    form.rememberDesign();

    form.onLoad = [&] { form.fillLists(); };
    form.ensureLoaded();
    form.Text1.setText("typed");
    form.Text1.setEnabled(true);
    form.Check1.setValue(1);
    form.Check1.setCaption("changed later");
    form.setIcon("later");
    form.Option2.setValue(true);
    form.Combo1.setText("free");
    form.Button1.setTop(1);
    form.ListView1.columnHeaders().clear();
    form.CommonDialog1.setFileName("a.dxf");
    form.taken();
    screen.acts.push_back([](forms::Form& up) { forms::acts::resize(up, 9000, 9000); });
    screen.closeBox();
    form.show(screen);

    EXPECT_EQ(form.taken(), (Events{"Activate", "Resize"}));
    EXPECT_FALSE(form.loaded() || form.visible());
    EXPECT_EQ(form.caption(), "Muster");
    EXPECT_EQ(form.icon(), "house");
    EXPECT_EQ(form.width(), 6000);
    EXPECT_EQ(form.Check1.caption(), "Drehen");
    EXPECT_EQ(form.Check1.helpContextId(), 109900);
    EXPECT_EQ(form.Check1.value(), 0);
    EXPECT_EQ(form.Text1.text(), "design");
    EXPECT_FALSE(form.Text1.enabled());
    EXPECT_TRUE(form.Option1.value() && !form.Option2.value());
    EXPECT_EQ(form.List1.listCount() + form.Combo1.listCount() + form.ListView1.listItems().count(), 0);
    EXPECT_EQ(form.Combo1.text() + form.CommonDialog1.fileName(), "");
    EXPECT_FALSE(form.ListView1.hasSelectedItem());
    EXPECT_EQ(form.ListView1.columnHeaders().count(), 2);
    EXPECT_EQ(form.Button1.top(), 4400);

    form.ensureLoaded();
    EXPECT_EQ(form.taken(), Events{"Load"});
    EXPECT_EQ(form.ListView1.selectedItem().text(), "door");
}

TEST_F(FormTest, FocusNeedsAReachableControl) {
    EXPECT_THROW(form.Check1.setFocus(), basic::Error);  // the form isn't visible
    screen.acts.push_back([&](forms::Form&) {
        EXPECT_EQ(form.activeControl(), &form.Option1);
        form.Combo1.setFocus();
        EXPECT_EQ(form.activeControl(), &form.Combo1);
        EXPECT_THROW(form.Text1.setFocus(), basic::Error);    // disabled
        EXPECT_THROW(form.Hidden1.setFocus(), basic::Error);  // hidden
        EXPECT_THROW(form.Frame1.setFocus(), basic::Error);   // takes no focus
        form.Frame1.setEnabled(false);
        EXPECT_THROW(form.Option1.setFocus(), basic::Error);  // disabled with its container's container
        EXPECT_EQ(form.activeControl(), &form.Combo1);
    });
    screen.closeBox();
    form.show(screen);
    EXPECT_EQ(form.activeControl(), nullptr);
}

TEST_F(FormTest, TabGoesRoundInReadingOrderWithAGroupOfOptionsAsOneStop) {
    screen.acts.push_back([&](forms::Form&) {
        std::string round;
        for (int i = 0; i < 7; ++i) {
            round += form.activeControl()->name() + ' ';
            forms::acts::key(form, forms::Key::Tab);
        }
        EXPECT_EQ(round, "Option1 Check1 List1 Combo1 Combo2 ListView1 Button1 ");
        forms::acts::key(form, forms::Key::ShiftTab);
        EXPECT_EQ(form.activeControl(), &form.Button1);
        form.onGo = [&] { form.Button1.setEnabled(false); };
        forms::acts::click(form.Button1);
        EXPECT_EQ(form.activeControl(), &form.Option1)
            << "the focus goes on from a control that can't have it";
    });
    screen.closeBox();
    form.show(screen);
}

TEST(ReadingOrder, GoesByRowsAndOneWithoutAHeightIsARowOfItsOwn) {
    struct Rows : forms::Form {
        Rows() : Form("fmRows", "098", "Rows") {
            flat.place(0, 0, 100, 0);
            right.place(500, 10, 100, 100);
            left.place(0, 50, 100, 100);
            below.place(0, 61, 100, 100);
        }
        forms::Button flat{*this, "flat"}, right{*this, "right"}, left{*this, "left"}, below{*this, "below"};
    } rows;
    std::string names;
    for (const forms::Control* control : forms::readingOrder(rows)) names += control->name() + " ";
    EXPECT_EQ(names, "flat left right below ");
}

TEST_F(FormTest, WhatAShortFrameCutsOffCannotBeActedOn) {
    screen.acts.push_back([&](forms::Form&) {
        form.Frame1.setHeight(1650);  // Check1 begins there
        EXPECT_THROW(forms::acts::click(form.Check1), forms::ActError);
        EXPECT_THROW(form.Check1.setFocus(), basic::Error);
        form.Frame1.setHeight(1651);
        forms::acts::click(form.Check1);
    });
    screen.closeBox();
    form.show(screen);
}

TEST_F(FormTest, TheScreenHearsOfChangesOnlyWhileTheFormIsUp) {
    form.Check1.setCaption("before");
    EXPECT_EQ(screen.changes, 0);
    screen.acts.push_back([&](forms::Form&) {
        const int before = screen.changes;
        form.Check1.setCaption("during");
        form.Check1.setCaption("during");
        form.setCaption("during");
        EXPECT_EQ(screen.changes, before + 2);
    });
    screen.closeBox();
    form.show(screen);
}

}  // namespace
