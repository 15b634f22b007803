// What holds for every dialog in both languages: room for its captions, its keys, where a user starts.
#include "entry/component.h"
#include "forms/accelerators.h"
#include "forms/controls.h"
#include "forms/text_metric.h"
#include "tests/fakes/dialog_world.h"
#include "tests/fakes/fake_platform.h"
#include "tests/fakes/layout_check.h"
#include "tests/fakes/recording_screen.h"

#include <gtest/gtest.h>
#include <set>

namespace {

struct Dialogs : testing::TestWithParam<const char*> {
    Dialogs() {
        session.AppName = "Vorlane";
        session.AppTitle = "Vorlane 1.0";
        session.CurLng = {GetParam(),
                          std::string(VORLANE_ROOT "/resources/languages/") + GetParam() + ".LNG"};
        session.LngList = {session.CurLng};
        session.AcadDoc = world.session.AcadDoc;
    }
    fakes::DialogWorld world;
    fakes::FakePlatform platform;
    fakes::RecordingScreen screen;
    entry::Component component{platform, screen};
    session::Session& session = component.session();
};

TEST_P(Dialogs, EveryCaptionHasRoom) {
    const forms::StandardMetric metric;
    for (const char* name : {"fmReplace", "fmAttSet", "fmLabels", "fmAttFormat", "fmParamIns", "fmExtract",
                             "fmVnMessage", "fmReInsert", "fmAbout", "fmHelp"}) {
        const forms::Form& form = session.form(name);
        // The face enlarges a dialog to no more than that.
        EXPECT_LT(forms::growthToFit(form, metric), forms::kMostGrowth) << name;
    }
}

TEST_P(Dialogs, AreTidyAndKnowWhatEnterAndEscapePress) {
    const std::pair<const char*, const char*> rows[] = {{"fmReplace", "Esc BtnClose "},
                                                        {"fmAttSet", "Enter OKButton "},
                                                        {"fmLabels", "Esc OKButton "},
                                                        {"fmAttFormat", "Enter OKButton Esc CancelButton "},
                                                        {"fmParamIns", "Enter OKButton "},
                                                        {"fmExtract", "Esc BtnClose "},
                                                        {"fmVnMessage", "Enter OKButton Esc CancelButton "},
                                                        {"fmReInsert", "Esc BtnClose "},
                                                        {"fmAbout", "Enter OKButton Esc OKButton "},
                                                        {"fmHelp", "Esc cmdOK "}};
    for (const auto& [name, keys] : rows) {
        const forms::Form& form = session.form(name);
        expectTidy(form);
        std::string told;
        for (const forms::Control* control : form.controls()) {
            const auto* button = dynamic_cast<const forms::Button*>(control);
            if (button == nullptr) continue;
            if (button->isDefault()) told += "Enter " + button->name() + " ";
            if (button->isCancel()) told += "Esc " + button->name() + " ";
        }
        EXPECT_EQ(told, keys) << name;
    }
}

TEST_P(Dialogs, NoAcceleratorTwiceAndNoneWithoutAMeaning) {
    for (const char* name : {"fmReplace", "fmLabels", "fmParamIns", "fmReInsert", "fmExtract"}) {
        std::set<char> letters;
        std::size_t buttons = 0;
        for (const forms::Control* control : session.form(name).controls())
            if (control->kind() == forms::Kind::Button && control->shown()) ++buttons;
        for (const forms::Accelerator& given : forms::accelerators(session.form(name))) {
            EXPECT_TRUE(letters.insert(given.letter).second) << name << ' ' << given.letter;
            EXPECT_EQ(given.field != nullptr, given.control->kind() == forms::Kind::Label)
                << given.control->name();
            if (given.control->kind() == forms::Kind::Button) --buttons;
        }
        EXPECT_EQ(buttons, name == std::string_view("fmLabels") ? 1U : 0U) << name;  // "..." has no letter
    }
}

INSTANTIATE_TEST_SUITE_P(InBoth, Dialogs, testing::Values("Francais", "English"));

/// Tab order of a dialog: the names, the first focus in front.
std::string tabs(const forms::Form& form) {
    std::string names = form.activeControl()->name() + ":";
    for (const forms::Control* control : form.tabOrder())
        if (control->shown()) names += ' ' + control->name();
    return names;
}

TEST(DialogKeys, AHandGoesFromTopToBottomAndStartsWhereTheWorkDoes) {
    fakes::FakePlatform platform;
    fakes::RecordingScreen screen;
    fakes::DialogWorld world;
    entry::Component component(platform, screen);
    component.session().AcadDoc = world.session.AcadDoc;
    component.session().CurLng = world.session.CurLng;
    const std::pair<const char*, const char*> rows[] = {
        {"fmVnMessage", "OKButton: BtnSelect OKButton CancelButton"},
        {"fmExtract", "BtnNew: ListView2 BtnNew BtnSave BtnErase BtnClose"},
        {"fmReInsert", "Combo1: ListView1 ComboBox1 ListView2 Combo1 BtnData Check1 BtnInsert BtnClose"},
        {"fmAttFormat", "Text1: Text1 Text2 Combo1 OKButton CancelButton"},
        {"fmParamIns", "Text1: Text1 Text2 Text3 CheckBox1 Text4 CheckBox2 Option1 Option2 OKButton"},
    };
    for (const auto& [name, order] : rows) {
        forms::Form& form = component.session().form(name);
        std::string seen;
        screen.acts.push_back([&](forms::Form& up) { seen = tabs(up), up.hide(); });
        form.show(screen);
        EXPECT_EQ(seen, order) << name;
    }
}

}  // namespace
