// What the three dialogs have in common: the layout and the remembered window.

#include "tests/extract/extract_world.h"
#include "tests/fakes/layout_check.h"

namespace extract {
namespace {

class DialogsTest : public testing::Test, public ExtractWorld {
  protected:
    /// The places of all controls that have one.
    static std::vector<forms::Bounds> places(const forms::Form& form) {
        std::vector<forms::Bounds> found;
        for (const forms::Control* control : form.controls())
            if (control->has(forms::Property::Bounds)) found.push_back(control->bounds());
        return found;
    }
};

TEST_F(DialogsTest, AreTidyAndKeepInsertionOffInEveryLanguage) {
    for (const char* file : {"Francais.LNG", "English.LNG"}) {
        session.CurLng = {file, std::string(VORLANE_ROOT "/resources/languages/") + file};
        session.dropForm("fmReInsert");
        // The button that inserts goes by these ends.
        EXPECT_TRUE(insertion().Frame1.caption().ends_with("''"));
        EXPECT_TRUE(insertion().Frame2.caption().ends_with("''"));
    }
    for (const char* name : {"fmExtract", "fmVnMessage", "fmReInsert"}) expectTidy(session.form(name));
}

TEST_F(DialogsTest, ComeWithTheWindowThatTheTableRemembers) {
    using Cells = decltype(session.VTable)::value_type;
    session.VTable[21] = {"10000", "8000", "300", "400", ""};
    session.VTable[22] = {"", "7000.5 ", "-15", "x", ""};
    screen.click("BtnClose");
    runInsertion();
    EXPECT_EQ(insertion().bounds(), (forms::Bounds{300, 400, 10000, 8000}));
    EXPECT_EQ(session.VTable[21], (Cells{"10000", "8000", "300", "400", ""}));
    screen.click("BtnClose");
    runExtraction();
    EXPECT_EQ(extraction().bounds(), (forms::Bounds{-15, 0, 8625, 7000.5})) << "empty becomes the least";
    EXPECT_EQ(session.VTable[22], (Cells{"", "7000.5", "-15", "0", ""}));

    // What no window can have is left aside, as a damaged settings file holds it.
    session.VTable[22] = {"1e400", "-1", "1e30", "-1e30", ""};
    session.dropForm("fmExtract");
    EXPECT_EQ(extraction().bounds(), (forms::Bounds{0, 0, 8625, 6975}));

    platform.numbers = basic::Regional::french();
    screen.acts.push_back([](forms::Form& form) { forms::acts::resize(form, 8700.25, 7000); });
    screen.click("BtnClose");
    runExtraction();
    EXPECT_EQ(session.VTable[22][0], "8700,25") << "written with a comma, read up to it";
    session.dropForm("fmExtract");
    EXPECT_EQ(extraction().width(), 8700);
}

TEST_F(DialogsTest, MoveTheirControlsWithTheSize) {
    struct Case {
        forms::Form& form;
        forms::Twips width, height;
        int row, moved;
    };
    for (const Case& c : {Case{extraction(), 8625, 6975, 22, 13}, Case{insertion(), 9885, 7170, 21, 16}}) {
        SCOPED_TRACE(c.form.name());
        const auto start = places(c.form);
        c.form.moveTo(45, 60);
        c.form.resizeTo(c.width + 900, c.height + 600);
        const auto grown = places(c.form);
        int moved = 0;
        for (std::size_t i = 0; i < start.size(); ++i) {
            const auto grew = [](forms::Twips from, forms::Twips to, forms::Twips by) {
                return from == to ? 0 : (to == from + by ? 1 : 100);
            };
            moved += grew(start[i].left, grown[i].left, 900) + grew(start[i].width, grown[i].width, 900) +
                     grew(start[i].top, grown[i].top, 600) + grew(start[i].height, grown[i].height, 600);
        }
        EXPECT_EQ(moved, c.moved) << "beyond 100: the start doesn't fit the rule";
        const auto& cells = session.VTable[static_cast<std::size_t>(c.row)];
        EXPECT_EQ(cells[0] + "," + cells[2], basic::toText(c.width + 900, platform.numbers) + ",45");

        c.form.moveTo(75, 90);
        c.form.resizeTo(100, 100);
        EXPECT_EQ(c.form.bounds(), (forms::Bounds{75, 90, c.width, c.height})) << "it snaps back";
        EXPECT_EQ(places(c.form), grown) << "and its controls stay";
        EXPECT_EQ(cells[1] + "," + cells[3], basic::toText(c.height + 600, platform.numbers) + ",90")
            << "the last wider value";
    }
}

}  // namespace
}  // namespace extract
