#include "about/fm_about.h"
#include "about/fm_help.h"
#include "about/fm_help_hidden.h"
#include "basic/text.h"
#include "basic/text_file.h"
#include "extract/fm_extract.h"
#include "extract/fm_re_insert.h"
#include "extract/fm_vn_message.h"
#include "labels/fm_att_format.h"
#include "labels/fm_labels.h"
#include "labels/fm_param_ins.h"
#include "replace/fm_att_set.h"
#include "replace/fm_replace.h"
#include "tests/fakes/session_world.h"

#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>

namespace {

using Keys = std::set<std::string>;

/// All dialogs that are translated, as they are before any language comes in.
struct DialogCaptions : testing::Test, fakes::SessionWorld {
    about::fmAbout fmAbout{session};
    labels::fmAttFormat fmAttFormat{session};
    replace::fmAttSet fmAttSet{session};
    extract::fmVnMessage fmVnMessage{session};
    extract::fmExtract fmExtract{session};
    labels::fmLabels fmLabels{session};
    labels::fmParamIns fmParamIns{session};
    extract::fmReInsert fmReInsert{session};
    replace::fmReplace fmReplace{session};
    const std::vector<forms::Form*> dialogs{&fmAbout,  &fmAttFormat, &fmAttSet,   &fmVnMessage, &fmExtract,
                                            &fmLabels, &fmParamIns,  &fmReInsert, &fmReplace};
};

/// The keys of a dialog: its own caption, and those of the controls that have one.
Keys keysOf(const forms::Form& dialog) {
    Keys keys{dialog.tag() + "_me"};
    for (int i = 0; i < dialog.controlCount(); ++i) {
        const forms::Control& control = dialog.control(i);
        if (control.has(forms::Property::Caption) && !control.caption().empty())
            keys.insert(dialog.tag() + "_" + std::to_string(i));
    }
    return keys;
}

/// The entries of a language file other than its name and the messages.
std::map<std::string, std::string> captionsIn(const std::string& file) {
    std::map<std::string, std::string> entries;
    basic::TextReader reader(VORLANE_ROOT "/resources/languages/" + file);
    while (!reader.atEnd()) {
        const std::string line = reader.readLine();
        const std::size_t equals = line.find('=');
        if (!line.starts_with(":") && !line.starts_with("msg_"))
            entries[line.substr(0, equals)] = line.substr(equals + 1);
    }
    return entries;
}

TEST_F(DialogCaptions, EachHasItsEntryInEveryLanguageAndNoEntryServesNothing) {
    Keys wanted;
    for (const forms::Form* dialog : dialogs) wanted.merge(keysOf(*dialog));
    for (const char* file : {"Francais.LNG", "English.LNG"}) {
        Keys there;
        for (const auto& [key, caption] : captionsIn(file)) {
            there.insert(key);
            EXPECT_FALSE(basic::trim(caption).empty()) << file << " " << key;
            EXPECT_EQ(wanted.count(key), 1U) << file << ": " << key << " serves nothing";
        }
        for (const std::string& key : wanted) EXPECT_EQ(there.count(key), 1U) << file << ": no " << key;
    }
}

TEST_F(DialogCaptions, TheFrenchOnesAreTheBuiltInOnes) {
    const auto french = captionsIn("Francais.LNG");
    // These show what the program puts there before anyone sees them.
    const Keys replaced{"001_0", "001_1", "001_2", "001_3"};
    for (const forms::Form* dialog : dialogs) {
        EXPECT_EQ(french.at(dialog->tag() + "_me"), dialog->caption());
        for (int i = 0; i < dialog->controlCount(); ++i) {
            const std::string key = dialog->tag() + "_" + std::to_string(i);
            if (const auto entry = french.find(key); entry != french.end() && replaced.count(key) == 0) {
                EXPECT_EQ(entry->second, dialog->control(i).caption()) << key;
            }
        }
    }
}

TEST_F(DialogCaptions, EveryDialogIsHereWithItsHelpContextAndPage) {
    std::map<int, std::string> pages;
    std::ifstream table(VORLANE_ROOT "/resources/help/contexts.txt");
    int context = 0;
    for (std::string line; std::getline(table, line);) {
        std::istringstream words(line);
        std::string page, dialog;
        if (words >> context >> page >> dialog) pages[context] = dialog;
    }
    std::map<int, std::string> wanted;
    for (const forms::Form* dialog : dialogs) {
        EXPECT_EQ(dialog->helpContextId(), 100000 + 100 * std::stoi(dialog->tag())) << dialog->name();
        wanted[dialog->helpContextId()] = dialog->name();
    }
    EXPECT_EQ(pages, wanted);
    EXPECT_EQ(about::fmHelp(session).helpContextId(), 0);
    EXPECT_EQ(about::fmHelpHidden(session).helpContextId(), 0);
}

}  // namespace
