#include "about/fm_help.h"

#include "about/fm_help_hidden.h"
#include "tests/about/about_world.h"
#include "tests/fakes/layout_check.h"

namespace about {
namespace {

/// fmHelp that stays up when it is shown, as a later command might have it.
class StayingHelp : public fmHelp {
  public:
    using fmHelp::fmHelp;

  protected:
    void Form_Activate() override {}
};

struct Help : AboutWorld {
    Help() { session.HelpFile = "Vorlane.chm"; }
};

TEST_F(Help, TheHiddenDialogOpensTheStartPageAndIsNeverDrawn) {
    forms::Form& dialog = session.form("fmHelpHidden");
    dialog.show(screen);
    EXPECT_EQ(platform.helps, std::vector<std::string>{"Vorlane.chm|"});  // the start page
    EXPECT_FALSE(dialog.visible());
    EXPECT_TRUE(screen.log.empty()) << screen.log.front();
    EXPECT_EQ(dialog.caption(), "Bo\u00EEte de dialogue");
}

TEST_F(Help, TheOtherHelpStaysFrenchAndHidesItselfToo) {
    session.form("fmAbout");
    const int before = platform.commonControls;
    auto& dialog = session.form<fmHelp>("fmHelp");
    EXPECT_EQ(platform.commonControls, before + 1);
    expectTidy(dialog);
    EXPECT_EQ(dialog.caption(), "Aide Quillet 1.0");
    EXPECT_EQ(dialog.cmdOK.caption(), "Annuler");
    EXPECT_EQ(dialog.BtnHelp.caption(), "Aide local");
    EXPECT_EQ(dialog.Command1.caption(), "Site Web");
    dialog.show(screen);
    EXPECT_EQ(platform.helps, std::vector<std::string>{"Vorlane.chm|"});  // the start page
    EXPECT_TRUE(screen.log.empty()) << screen.log.front();
}

TEST_F(Help, ItsButtonsLeadToTheHelpAndTheSupportPage) {
    session.registerForm("fmHelp", [](session::Session& s) { return std::make_unique<StayingHelp>(s); });
    screen.click("BtnHelp");
    screen.click("Command1");
    screen.click("cmdOK");
    session.form("fmHelp").show(screen);
    EXPECT_EQ(platform.helps, std::vector<std::string>{"Vorlane.chm|"});  // the start page
    EXPECT_EQ(platform.opened, std::vector<std::string>{VORLANE_SITE "/query.php?link=03010001|0|0"});
    EXPECT_EQ(screen.log, (std::vector<std::string>{"show fmHelp", "hide fmHelp"}));
}

}  // namespace
}  // namespace about
