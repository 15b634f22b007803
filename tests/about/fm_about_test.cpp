#include "about/fm_about.h"

#include "tests/about/about_world.h"

namespace about {
namespace {

struct AboutDialog : AboutWorld {
    fmAbout& dialog() { return session.form<fmAbout>("fmAbout"); }
    /// Shows the dialog, with the acts queued on the screen and then OK.
    void show() {
        screen.click("OKButton");
        dialog().show(screen);
    }
    template <typename Look>
    void look(Look&& look) {
        screen.acts.push_back([look](forms::Form&) { look(); });
    }
};

TEST_F(AboutDialog, ItsListIsThatOfItsMakingUntilTheCloseBoxUnloadsIt) {
    dialog();
    folder.write("later.lng", ":Language=Deutsch\r\n");
    load();
    screen.choose("Combo1", "Fran\u00E7ais");
    show();
    EXPECT_EQ(dialog().Combo1.listCount(), 3);

    screen.closeBox();
    dialog().show(screen);
    look([this] {
        EXPECT_EQ(dialog().Combo1.listCount(), 4);
        EXPECT_EQ(dialog().Label1.caption(), "Vorlane 1.0");
    });
    show();
}

TEST_F(AboutDialog, WithoutLanguagesItCantBeMade) {
    for (const char* name : {"Francais.LNG", "English.LNG", "my.own.lng"})
        std::filesystem::remove(folder.file(name));
    session.CurLng = {};
    load();
    for (int time = 1; time <= 2; ++time)  // nothing half made stays
        EXPECT_EQ(fakes::errorOf([this] { dialog(); }), basic::kBadFileName);
}

}  // namespace
}  // namespace about
