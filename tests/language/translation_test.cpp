#include "language/translation.h"

#include "forms/controls.h"
#include "language/language.h"
#include "session/settings.h"
#include "tests/fakes/session_world.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace {

using session::Session;

/// One control of a kind with and without caption, and with and without help context.
class fmProbe : public forms::Form {
  public:
    fmProbe() : Form("fmProbe", "077", "Essai", 107700) {
        frame.setCaption("Cadre");
        button.setCaption("Bouton");
        check.setCaption("Case");
    }
    forms::Frame frame{*this, "Frame1"};
    forms::TextBox text{*this, "Text1"};
    forms::Line line{*this, "Line1"};
    forms::Button button{*this, "Command1"};
    forms::CheckBox check{*this, "Check1"};
};

struct Translation : testing::Test, fakes::SessionWorld {
    void language(const std::string& entries) {
        folder.write("Vorlane.ini", "");
        folder.write("x.lng", ":Language=X\r\n" + entries);
        language::LoadLanguages(session);
    }
    fmProbe form;
};

TEST_F(Translation, CaptionsAreFoundByTagAndIndexAndMissingOnesEmptied) {
    language::InitForm(session, form);
    EXPECT_EQ(form.caption() + form.button.caption(), "Vorlane 1.0 : EssaiBouton") << "without a language";
    language("077_me=Essay\r\n077_0=Frame\r\n077_1=no caption here\r\n077_3=Button\r\n");
    form.initialize();
    EXPECT_TRUE(language::InitForm(session, form).isEmpty());
    EXPECT_EQ(form.caption(), "Vorlane 1.0 : Essay");
    EXPECT_EQ(form.frame.caption(), "Frame");
    EXPECT_EQ(form.text.text(), "");
    EXPECT_EQ(form.button.caption(), "Button");
    EXPECT_EQ(form.check.caption(), "");
    EXPECT_EQ(form.frame.helpContextId(), 107700);
    EXPECT_EQ(form.check.helpContextId(), 107700) << "the line between has none";
    form.unload();
    EXPECT_EQ(form.button.caption(), "Button") << "captions outlive an unloading";
}

TEST_F(Translation, TheTitleGoesInFrontOnceAndOnlyInSetUp) {
    language("077_me=Vorlane en essai\r\n");
    language::InitForm(session, form);
    EXPECT_EQ(form.caption(), "Vorlane en essai");
    language("077_me=vorlane\r\n");
    language::InitForm(session, form);
    EXPECT_EQ(form.caption(), "Vorlane 1.0 : vorlane") << "the comparison minds the case";
    std::string prefix = "077";
    language::TranslateForm(session, form, prefix, 0, "");
    EXPECT_EQ(form.caption(), "vorlane");
}

TEST_F(Translation, WriteModeFillsTheFileFromTheDialog) {
    language("077_3=\r\n077_4=Box\r\n");
    std::string prefix = "077";
    language::TranslateForm(session, form, prefix, session::kWriteEntry, "x");
    EXPECT_EQ(folder.read("x.lng"),
              ":Language=X\r\n077_3=Bouton\r\n077_4=Box\r\n077_me=Essai\r\n077_0=Cadre\r\n");
    language::TranslateForm(session, form, prefix, session::kWriteEntry, "other");
    EXPECT_EQ(form.frame.caption(), "") << "of another language there is nothing to write";
    prefix.clear();
    language::TranslateForm(session, form, prefix, 0, "");
    EXPECT_EQ(prefix, "fmProbe") << "the name serves in place of a tag";
}

TEST_F(Translation, TheIconComesFromTheAboutDialogWhichItCreates) {
    class About : public forms::Form {
      public:
        explicit About(Session& session) : Form("fmAbout", "001", ""), session_(session) {
            setIcon("vorlane");
        }

      protected:
        void Form_Initialize() override { language::InitForm(session_, *this); }

      private:
        Session& session_;
    };
    language("");
    language::InitForm(session, form);
    EXPECT_EQ(form.icon(), "");
    session.registerForm("fmAbout", [](Session& s) { return std::make_unique<About>(s); });
    language::InitForm(session, form);
    EXPECT_EQ(form.icon(), "vorlane");
}

}  // namespace
