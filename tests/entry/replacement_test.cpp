#include "entry/component.h"
#include "language/language.h"
#include "language/translation.h"
#include "replace/fm_att_set.h"
#include "replace/fm_replace.h"
#include "tests/fakes/fake_host.h"
#include "tests/fakes/fake_lisp.h"
#include "tests/fakes/session_world.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

/// The delivered languages against the dialogs that they name the controls of.
struct Captions : testing::Test, fakes::SessionWorld {
    Captions() {
        folder.write("Vorlane.ini", "");
        session.LngFolder = VORLANE_ROOT "/resources/languages";
        language::LoadLanguages(session);
    }
    static std::vector<std::string> of(const forms::Form& form) {
        std::vector<std::string> captions{form.caption()};
        for (const forms::Control* control : form.controls())
            captions.push_back(control->has(forms::Property::Caption) ? control->caption() : "");
        return captions;
    }
    template <typename Dialog>
    void check() {
        Dialog dialog(session);
        const auto builtIn = of(dialog);
        std::string tag = dialog.tag();
        language::SetLanguage(session, "Français");
        language::TranslateForm(session, dialog, tag, 0, "");
        EXPECT_EQ(of(dialog), builtIn) << dialog.name();
        language::SetLanguage(session, "English");
        language::TranslateForm(session, dialog, tag, 0, "");
        const auto english = of(dialog);
        for (std::size_t i = 0; i < builtIn.size(); ++i)
            EXPECT_EQ(english[i].empty(), builtIn[i].empty()) << dialog.name() << " " << i;
    }
};

TEST_F(Captions, FrenchIsTheBuiltInTextAndEnglishIsComplete) {
    check<replace::fmReplace>();
    check<replace::fmAttSet>();
}

/// The command from the Lisp symbol to the drawing.
struct ReplacementCommand : testing::Test {
    ReplacementCommand() {
        namespace fs = std::filesystem;
        platform.install(folder.path());
        folder.write("Vorlane.ini", "Lng=English\r\n");
        for (const auto& file : fs::directory_iterator(VORLANE_ROOT "/resources/languages"))
            fs::copy(file.path(), folder.path());
        for (const char* member : {"ModelSpace", "Blocks", "Utility", "SelectionSets"})
            lisp.document()->members[member] = [=, this](auto&) { return host.document()->get(member); };
        lisp.symbols["ZOL101"] = "1";
        host.addBlock("Door");
        host.addBlock("Gate");
        for (const double x : {1., 2.}) host.addReference("Door", {x, 0, 0});
    }
    fakes::TempFolder folder;
    fakes::FakePlatform platform;
    fakes::RecordingScreen screen;
    fakes::FakeLisp lisp;
    fakes::FakeHost host;
    entry::Component component{platform, screen};
    std::shared_ptr<entry::VnObj0100> object = component.createVnObj0100();
};

TEST_F(ReplacementCommand, RunsFromTheSymbolToTheDrawing) {
    screen.choose("CboBlocReplacer", "Gate");
    screen.click("BtnReplace");
    screen.click("BtnClose");
    object->Exec(lisp.document());
    EXPECT_TRUE(host.references("Door").empty());
    EXPECT_EQ(host.references("Gate").size(), 2U);
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(screen.boxes[0].text, "Blocks references replaced succesfully.");

    // On the same object the dialog is still the one of before, after its end a new one in the language of
    // now.
    forms::Form& dialog = component.session().form("fmReplace");
    EXPECT_EQ(dialog.caption(), "Vorlane 1.0 : Block replacement");
    language::SetLanguage(component.session(), "Français");
    screen.click("BtnClose");
    object->Exec(lisp.document());
    EXPECT_EQ(dialog.caption(), "Vorlane 1.0 : Block replacement");
    object.reset();
    object = component.createVnObj0100();
    screen.click("BtnClose");
    object->Exec(lisp.document());
    EXPECT_EQ(component.session().form("fmReplace").caption(), "Vorlane 1.0 : Remplacement de blocs");
    EXPECT_TRUE(screen.acts.empty());
}

TEST_F(ReplacementCommand, AFailureBeforeTheDialogIsReportedAsAnEvents) {
    lisp.document()->members.erase("SelectionSets");
    object->Exec(lisp.document());
    EXPECT_EQ(screen.log.back().substr(0, 12), "failure 438:");
    EXPECT_TRUE(screen.boxes.empty());
}

}  // namespace
