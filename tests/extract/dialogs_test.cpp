// What the three dialogs have in common: captions and their keys, the layout, the remembered window.

#include "language/language.h"
#include "tests/extract/extract_world.h"

#include <fstream>
#include <map>
#include <set>
#include <sstream>

namespace extract {
namespace {

class DialogsTest : public testing::Test, public ExtractWorld {
  protected:
    std::vector<forms::Form*> dialogs() {
        return {&session.form("fmExtract"), &session.form("fmVnMessage"), &session.form("fmReInsert")};
    }
    /// Tags and what follows them in the keys of the current language file.
    std::map<std::string, std::set<std::string>> keys() {
        std::ifstream stream(session.CurLng.File, std::ios::binary);
        std::map<std::string, std::set<std::string>> found;
        for (std::string line; std::getline(stream, line);)
            if (line.find('_') == 3) found[line.substr(0, 3)].insert(line.substr(4, line.find('=') - 4));
        return found;
    }
    /// The places of all controls that have one.
    static std::vector<forms::Bounds> places(const forms::Form& form) {
        std::vector<forms::Bounds> found;
        for (const forms::Control* control : form.controls())
            if (control->has(forms::Property::Bounds)) found.push_back(control->bounds());
        return found;
    }
};

TEST_F(DialogsTest, HaveAKeyForEachCaptionAndACaptionForEachKey) {
    // Without a language the dialogs stand with their own, French captions.
    session.CurLng = {};
    std::map<std::string, std::string> own;
    for (forms::Form* form : dialogs()) {
        own[form->name()] = form->caption();
        for (const forms::Control* control : form->controls())
            if (control->has(forms::Property::Caption))
                own[form->name() + control->name()] = control->caption();
    }
    for (const char* file : {"Francais.LNG", "English.LNG"}) {
        session.CurLng = {file, std::string(VORLANE_ROOT "/resources/languages/") + file};
        for (const char* name : {"fmExtract", "fmVnMessage", "fmReInsert"}) session.dropForm(name);
        auto have = keys();
        for (forms::Form* form : dialogs()) {
            std::set<std::string> wanted{"me"};
            for (int i = 0; i < form->controlCount(); ++i) {
                const forms::Control& control = form->control(i);
                const std::string place = form->name() + control.name();
                if (!control.has(forms::Property::Caption)) continue;
                if (!own[place].empty()) wanted.insert(std::to_string(i));
                EXPECT_EQ(control.caption().empty(), own[place].empty()) << file << place;
                if (file[0] == 'F') {
                    EXPECT_EQ(control.caption(), own[place]);
                }
            }
            EXPECT_EQ(have[form->tag()], wanted) << file << form->name();
            if (file[0] == 'F') {
                EXPECT_EQ(form->caption(), own[form->name()]);
            }
        }
        // The button that inserts goes by these ends.
        EXPECT_TRUE(insertion().Frame1.caption().ends_with("''"));
        EXPECT_TRUE(insertion().Frame2.caption().ends_with("''"));
    }
}

TEST_F(DialogsTest, AreLaidOutWithoutOverlap) {
    for (forms::Form* form : dialogs()) {
        for (const forms::Control* a : form->controls()) {
            if (!a->has(forms::Property::Bounds) || !a->visible()) continue;
            const forms::Control* box = a->container();
            EXPECT_GT(a->width() * a->height(), 0) << a->name();
            EXPECT_LE(a->left() + a->width(), box ? box->width() : form->width()) << a->name();
            EXPECT_LE(a->top() + a->height(), box ? box->height() : form->height()) << a->name();
            for (const forms::Control* b : form->controls()) {
                if (a == b || !b->has(forms::Property::Bounds) || !b->visible() || b->container() != box)
                    continue;
                const bool apart = a->left() + a->width() <= b->left() ||
                                   b->left() + b->width() <= a->left() ||
                                   a->top() + a->height() <= b->top() || b->top() + b->height() <= a->top();
                EXPECT_TRUE(apart) << a->name() << " lies over " << b->name();
            }
        }
    }
}

TEST_F(DialogsTest, ComeWithTheWindowThatTheTableRemembers) {
    session.VTable[21] = {"10000", "8000", "300", "400", ""};
    session.VTable[22] = {"", "7000.5 ", "-15", "x", ""};
    screen.click("BtnClose");
    runInsertion();
    EXPECT_EQ(insertion().bounds(), (forms::Bounds{300, 400, 10000, 8000}));
    EXPECT_EQ(session.VTable[21], (decltype(session.VTable)::value_type{"10000", "8000", "300", "400", ""}));
    screen.click("BtnClose");
    runExtraction();
    EXPECT_EQ(extraction().bounds(), (forms::Bounds{-15, 0, 8625, 7000.5}))
        << "an empty width becomes the least";
    EXPECT_EQ(session.VTable[22], (decltype(session.VTable)::value_type{"", "7000.5", "-15", "0", ""}));

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
        int row;
    };
    for (const Case& c : {Case{extraction(), 8625, 6975, 22}, Case{insertion(), 9885, 7170, 21}}) {
        SCOPED_TRACE(c.form.name());
        EXPECT_EQ(c.form.bounds(), (forms::Bounds{0, 0, c.width, c.height}));
        const std::vector<forms::Bounds> start = places(c.form);
        c.form.moveTo(45, 60);
        c.form.resizeTo(c.width + 900, c.height + 600);
        const std::vector<forms::Bounds> grown = places(c.form);
        int moved = 0;
        for (std::size_t i = 0; i < start.size(); ++i) {
            const auto grew = [](forms::Twips from, forms::Twips to, forms::Twips by) {
                return from == to ? 0 : (to == from + by ? 1 : 100);
            };
            const int change =
                grew(start[i].left, grown[i].left, 900) + grew(start[i].width, grown[i].width, 900) +
                grew(start[i].top, grown[i].top, 600) + grew(start[i].height, grown[i].height, 600);
            EXPECT_LE(change, 2) << "the start doesn't fit the rule at control with place " << i;
            moved += change;
        }
        EXPECT_EQ(moved, c.row == 22 ? 13 : 16);
        const auto& cells = session.VTable[static_cast<std::size_t>(c.row)];
        EXPECT_EQ(cells[0], std::to_string(static_cast<int>(c.width) + 900));
        EXPECT_EQ(cells[2], "45");

        c.form.moveTo(75, 90);
        c.form.resizeTo(100, 100);
        EXPECT_EQ(c.form.width(), c.width) << "it snaps back";
        EXPECT_EQ(c.form.height(), c.height);
        EXPECT_EQ(places(c.form), grown) << "and its controls stay";
        EXPECT_EQ(cells[1], std::to_string(static_cast<int>(c.height) + 600)) << "the last wider value";
        EXPECT_EQ(cells[3], "90");
    }
}

}  // namespace
}  // namespace extract
