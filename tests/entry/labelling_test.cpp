#include "entry/component.h"
#include "labels/fm_att_format.h"
#include "labels/fm_labels.h"
#include "labels/fm_param_ins.h"
#include "labels/value_modes.h"
#include "language/language.h"
#include "language/translation.h"
#include "session/settings.h"
#include "tests/fakes/fake_host.h"
#include "tests/fakes/fake_lisp.h"
#include "tests/fakes/session_world.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

std::vector<std::string> captionsOf(const forms::Form& form) {
    std::vector<std::string> captions{form.caption()};
    for (const forms::Control* control : form.controls())
        captions.push_back(control->has(forms::Property::Caption) ? control->caption() : "");
    return captions;
}

struct LabelCaptions : testing::Test, fakes::SessionWorld {
    LabelCaptions() {
        folder.write("Vorlane.ini", "");
        session.LngFolder = VORLANE_ROOT "/resources/languages";
        language::LoadLanguages(session);
    }
    template <typename Dialog>
    void check() {
        Dialog dialog(session);
        const auto builtIn = captionsOf(dialog);
        std::string tag = dialog.tag();
        language::SetLanguage(session, "Français");
        language::TranslateForm(session, dialog, tag, 0, "");
        EXPECT_EQ(captionsOf(dialog), builtIn) << dialog.name();
        language::SetLanguage(session, "English");
        language::TranslateForm(session, dialog, tag, 0, "");
        const auto english = captionsOf(dialog);
        EXPECT_NE(english, builtIn);
        for (std::size_t i = 0; i < builtIn.size(); ++i)
            EXPECT_EQ(english[i].empty(), builtIn[i].empty()) << dialog.name() << " " << i;
    }
};

TEST_F(LabelCaptions, FrenchIsTheBuiltInTextAndEnglishIsComplete) {
    check<labels::fmLabels>();
    check<labels::fmAttFormat>();
    check<labels::fmParamIns>();
}

/// The command from the Lisp symbol to the drawing and the settings file.
struct LabellingCommand : testing::Test {
    LabellingCommand() {
        namespace fs = std::filesystem;
        platform.install(folder.path());
        folder.write("Vorlane.ini", "Lng=English\r\n");
        for (const auto& file : fs::directory_iterator(VORLANE_ROOT "/resources/languages"))
            fs::copy(file.path(), folder.path());
        for (const char* member : {"ModelSpace", "Blocks", "Utility", "SelectionSets"})
            lisp.document()->members[member] = [=, this](auto&) { return host.document()->get(member); };
        lisp.symbols["ZOL101"] = "0";
        host.addBlock("Mark", {{"NO", "?"}});
    }
    void label() {
        screen.choose("Combo2", "Mark");
        screen.choose("Combo1", "Incrément Auto");
        screen.click("BtnInserer");
        screen.click("OKButton");
        host.drawing().points = {fakes::Point{1, 2, 0}, fakes::Point{3, 4, 0}, fakes::Point{5, 6, 0}};
        host.drawing().points.emplace_back(std::nullopt);
        // The leader line of a new dialog is on: insertion point, both ends, and the end of the run.
        component.createVnObj0100()->Exec(lisp.document());
        EXPECT_TRUE(screen.acts.empty() && host.drawing().points.empty());
    }
    fakes::TempFolder folder;
    fakes::FakePlatform platform;
    fakes::RecordingScreen screen;
    fakes::FakeLisp lisp;
    fakes::FakeHost host;
    entry::Component component{platform, screen};
};

TEST_F(LabellingCommand, RemembersTheFormatsInTheSettingsFile) {
    screen.choose("Combo2", "Mark");
    screen.choose("Combo1", "Incrément Auto");
    screen.click("BtnAttFormat");
    screen.type("Text1", "n° ");
    screen.type("Text3", "007");
    screen.type("Text4", "3");
    screen.click("OKButton");
    screen.click("OKButton");
    component.createVnObj0100()->Exec(lisp.document());
    const std::string settings = folder.read("Vorlane.ini");
    EXPECT_NE(settings.find("V_10_0=n\xB0 \r\n"), std::string::npos) << "in the system's code page";
    EXPECT_NE(settings.find("V_10_3=007\r\n"), std::string::npos);

    label();  // the dialogs are new, the format is the remembered one
    label();
    ASSERT_EQ(host.references("Mark").size(), 2U);
    EXPECT_EQ(host.references("Mark")[0]->text("NO"), "n° 007");
    EXPECT_EQ(host.references("Mark")[1]->text("NO"), "n° 007") << "counters aren't stored";
    EXPECT_EQ(host.lines().size(), 2U);
    EXPECT_TRUE(screen.boxes.empty());
}

}  // namespace
