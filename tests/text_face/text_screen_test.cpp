// The text face: what it prints, how lines become acts, how it stops a script and asks a person again.
#include "faces/text/text_screen.h"

#include "basic/error.h"
#include "tests/fakes/sample_form.h"
#include "tests/fakes/temp_folder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace {

using forms::Answer;
using forms::MessageDialog;

class TextScreenTest : public testing::Test {
  protected:
    TextScreenTest() {
        form.initialize();
        form.fillLists();
        form.taken();
    }

    struct Session {
        Session(const std::string& lines, bool interactive)
            : input(lines), source(input, interactive), screen(source, output) {}
        std::istringstream input;
        std::ostringstream output;
        text_face::StreamLines source;
        text_face::TextScreen screen;
    };
    Session& script(const std::string& lines) {
        session = std::make_unique<Session>(lines, false);
        return *session;
    }
    Session& person(const std::string& lines) {
        session = std::make_unique<Session>(lines, true);
        return *session;
    }
    /// The message of the ScriptError that the script of one dialog ends in.
    std::string errorOf(const std::string& lines) {
        try {
            form.show(script(lines).screen);
        } catch (const text_face::ScriptError& error) {
            return error.what();
        }
        return "";
    }

    fakes::SampleForm form;
    std::unique_ptr<Session> session;
};

TEST_F(TextScreenTest, ATranscriptReadsAsTheStory) {
    form.Button1.setToolTipText("Run");
    form.ListView1.listItems().item(2).setSubItem(1, "two\nlines");
    form.Combo1.clear();
    form.Combo2.clear();
    bool again = false;
    form.onGo = [&] {
        form.hide();
        if (std::exchange(again, true)) return;
        session->screen.messageBox(
            {"First\r\nsecond", "Title", MessageDialog::Buttons::Ok, MessageDialog::Icon::Information});
        form.show(session->screen);
    };
    form.show(script("; a comment\n\ncheck1\nButton1\nok\nButton1\n").screen);
    EXPECT_EQ(session->output.str(), R"([fmSample] Sample
  Frame1: Values
    Option1: (o) All
    Option2: ( ) Some
    Check1: [ ] Rotate
  Text1: "design" (disabled)
  List1: 3 entries
      0 door
      1 window
      2 chair
  Combo1: ""
  Combo2: ""
  ListView1: 3 rows
      # | Source | Target
    > 1 | door |
      2 | window | two\nlines
      3 | chair |
  Button1: [Go] (tip: Run)
; a comment
> check1
> Button1
[fmSample] hidden
+-- Title (i)
|  First
|  second
+-- [ok]
> ok
[fmSample] Sample (again)
> Button1
[fmSample] hidden
)");
}

TEST_F(TextScreenTest, ValuesKeepTheirBlanksAndSigns) {
    form.Text1.setEnabled(true);
    script("Text1 =  two = # blanks \nclose\n");
    form.Text1.onChange = [&] { form.events.push_back("<" + form.Text1.text() + ">"); };
    form.show(session->screen);
    EXPECT_EQ(form.events[2], "< two = # blanks >");
    form.Text1.setEnabled(true);
    form.taken();
    form.show(script("Text1 =\nCombo1=x\nclose\n").screen);
    EXPECT_EQ(form.events[2], "<>");
    EXPECT_EQ(form.events[3], "Combo1.Change");
}

TEST_F(TextScreenTest, AScriptStopsAtWhatCannotBeDone) {
    const std::pair<const char*, const char*> rows[] = {
        {"\n; c\nBtnNone\n", "line 3: BtnNone: fmSample has no control BtnNone"},
        {"Text1 = x\n", "line 1: Text1 = x: Text1 is disabled"},
        {"Combo2 # one\n", "line 1: Combo2 # one: \"one\" is no number"},
        {"Combo2 # 1 2\n", "line 1: Combo2 # 1 2: \"1 2\" is no number"},
        {"key F99\n", "line 1: key F99: there is no key F99"},
        {"press the button\n", "line 1: press the button: fmSample has no control press the button"},
        {"= 1\n", "line 1: = 1: is no act on a dialog"},
        {"Combo2 : doors\n", "line 1: Combo2 : doors: Combo2 has no entry \"doors\""},
        {"Check1\n", "the script ended while fmSample was waiting"},
    };
    for (const auto& [lines, error] : rows) EXPECT_TRUE(errorOf(lines).starts_with(error)) << errorOf(lines);
    EXPECT_FALSE(form.visible());
}

TEST_F(TextScreenTest, APersonIsToldAndAskedAgain) {
    form.show(person("nonsense\nkey F1\nclose\n").screen);
    const std::string story = session->output.str();
    EXPECT_NE(story.find("close ends it\n> > [fmSample] hidden\n"), std::string::npos) << story;
}

TEST_F(TextScreenTest, MessageBoxesTakeTheirOwnButtonsOnly) {
    const MessageDialog okCancel{"Again?", "", MessageDialog::Buttons::OkCancel, MessageDialog::Icon::None};
    EXPECT_EQ(script("OK\n").screen.messageBox(okCancel), Answer::Ok);
    EXPECT_EQ(session->output.str(), "+-- Message\n|  Again?\n+-- [ok] [cancel]\n> OK\n");
    EXPECT_EQ(script(" cancel \n").screen.messageBox(okCancel), Answer::Cancel);
    EXPECT_THROW(script("yes\n").screen.messageBox(okCancel), text_face::ScriptError);
    EXPECT_THROW(script("").screen.messageBox(okCancel), text_face::ScriptError);
    EXPECT_EQ(person("yes\n\nok\n").screen.messageBox(okCancel), Answer::Ok);
    const MessageDialog yesNo{"Save?", "T", MessageDialog::Buttons::YesNo, MessageDialog::Icon::Information};
    EXPECT_EQ(script("yes\n").screen.messageBox(yesNo), Answer::Yes);
    EXPECT_EQ(script("no\n").screen.messageBox(yesNo), Answer::No);
}

TEST_F(TextScreenTest, EntriesAndCaptionsStandForControls) {
    form.show(script("combo2 : WINDOW\nCombo1 = window\nGo\nclose\n").screen);
    for (const char* event : {"Combo2.Click", "Button1.Click"})
        EXPECT_NE(std::find(form.events.begin(), form.events.end(), event), form.events.end()) << event;
    EXPECT_NE(session->output.str().find("(typed only; \"Combo1 : window\" chooses the entry)"),
              std::string::npos);
}

TEST_F(TextScreenTest, AFailureStopsAScriptOrIsCounted) {
    form.onGo = [] { throw basic::Error(basic::kOverflow); };
    EXPECT_EQ(errorOf("Button1\nclose\n"), "line 1: Button1: Error 6: Overflow");
    const MessageDialog warning{"Row 3 failed", "", MessageDialog::Buttons::Ok,
                                MessageDialog::Icon::Exclamation};
    EXPECT_THROW(script("ok\n").screen.messageBox(warning), text_face::ScriptError);
    std::ostringstream errors;
    script("ok\n").source.keepGoing(errors, "program: ");
    EXPECT_EQ(session->screen.messageBox(warning), Answer::Ok);
    EXPECT_EQ(session->source.failures(), 1);
    EXPECT_EQ(errors.str(), "program: line 1: ok: Row 3 failed\n");
}

TEST_F(TextScreenTest, FileDialogsTakeAPathOrCancel) {
    fakes::TempFolder folder;
    const std::string there = folder.write("my block.dxf", "block");
    forms::FileDialog& dialog = form.CommonDialog1;
    dialog.setFilter("Drawings|*.dwg");
    dialog.showOpen(script("file  " + there + "\n").screen);
    EXPECT_EQ(dialog.fileName(), there);
    EXPECT_EQ(session->output.str(),
              "+-- Open\n|  Drawings (.dxf too)\n+-- [file PATH] [cancel]\n> file  " + there + "\n");
    dialog.showSave(script("cancel\n").screen);
    EXPECT_EQ(dialog.fileName(), there);
    dialog.setInitDir(folder.path());
    dialog.showSave(person("file .\nfile none/a.txt\nfile my block.dxf\nno\nfile a.txt\n").screen);
    EXPECT_EQ(dialog.fileName(), folder.file("a.txt")) << "a folder, no folder, and not overwritten";
    for (const char* line : {"b.dxf\n", "file \n", "file missing.dxf\n"})
        EXPECT_THROW(dialog.showOpen(script(line).screen), text_face::ScriptError) << line;
}

TEST_F(TextScreenTest, LinesLoseMarksAndCarriageReturns) {
    std::istringstream input("\xEF\xBB\xBF; first\r\n  Second  \r\n\r\n");
    std::ostringstream output;
    text_face::StreamLines lines(input, false);
    EXPECT_EQ(lines.nextAct(output), "Second  ");
    EXPECT_EQ(lines.lineNumber(), 2);
    EXPECT_EQ(lines.next(output, "Command: "), "");
    EXPECT_EQ(lines.next(output), std::nullopt);
    EXPECT_EQ(output.str(), "; first\n>   Second  \nCommand: \n");
}

}  // namespace
