// The text face: what it prints, how lines become acts, how it stops a script and asks a person again.
#include "faces/text/text_screen.h"

#include "tests/fakes/sample_form.h"

#include <gtest/gtest.h>
#include <sstream>

namespace {

using forms::Answer;
using forms::MessageBox;

class TextScreenTest : public testing::Test {
  protected:
    TextScreenTest() {
        form.initialize();
        form.fillLists();
        form.taken();
    }

    struct Session {
        Session(const std::string& lines, bool interactive)
            : input(lines),
              source(input, interactive),
              screen(source, output, [this](int context) { output << "help " << context << '\n'; }) {}
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
            {"First\r\nsecond", "Title", MessageBox::Buttons::Ok, MessageBox::Icon::Exclamation});
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
+-- Title (!)
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
        {"press the button\n", "line 1: press the button: is no act on a dialog"},
        {"resize 1\n", "line 1: resize 1: is no act on a dialog"},
        {"Check1\n", "the script ended while fmSample was waiting"},
    };
    for (const auto& [lines, error] : rows) EXPECT_EQ(errorOf(lines), error);
    EXPECT_FALSE(form.visible());
}

TEST_F(TextScreenTest, APersonIsToldAndAskedAgain) {
    form.show(person("nonsense\nkey F1\nclose\n").screen);
    const std::string story = session->output.str();
    EXPECT_NE(story.find("> ? fmSample has no control nonsense\n> help 109900\n> [fmSample] hidden\n"),
              std::string::npos)
        << story;
}

TEST_F(TextScreenTest, MessageBoxesTakeTheirOwnButtonsOnly) {
    const MessageBox okCancel{"Again?", "", MessageBox::Buttons::OkCancel, MessageBox::Icon::None};
    EXPECT_EQ(script("OK\n").screen.messageBox(okCancel), Answer::Ok);
    EXPECT_EQ(session->output.str(), "+-- Message\n|  Again?\n+-- [ok] [cancel]\n> OK\n");
    EXPECT_EQ(script(" cancel \n").screen.messageBox(okCancel), Answer::Cancel);
    EXPECT_THROW(script("yes\n").screen.messageBox(okCancel), text_face::ScriptError);
    EXPECT_THROW(script("").screen.messageBox(okCancel), text_face::ScriptError);
    EXPECT_EQ(person("yes\n\nok\n").screen.messageBox(okCancel), Answer::Ok);
    const MessageBox yesNo{"Save?", "T", MessageBox::Buttons::YesNo, MessageBox::Icon::Information};
    EXPECT_EQ(script("yes\n").screen.messageBox(yesNo), Answer::Yes);
    EXPECT_EQ(script("no\n").screen.messageBox(yesNo), Answer::No);
}

TEST_F(TextScreenTest, FileDialogsTakeAPathOrCancel) {
    forms::FileDialog& dialog = form.CommonDialog1;
    dialog.setFilter("Drawings|*.dxf");
    dialog.showOpen(script("file  my block.dxf\n").screen);
    EXPECT_EQ(dialog.fileName(), "my block.dxf");
    EXPECT_EQ(session->output.str(),
              "+-- Open\n|  Drawings\n+-- [file PATH] [cancel]\n> file  my block.dxf\n");
    dialog.showSave(script("cancel\n").screen);
    EXPECT_EQ(dialog.fileName(), "my block.dxf");
    dialog.setInitDir("/drawings");
    dialog.showOpen(script("file a.dxf\n").screen);
    EXPECT_EQ(dialog.fileName(), "/drawings/a.dxf");
    dialog.showOpen(script("file /b.dxf\n").screen);
    EXPECT_EQ(dialog.fileName(), "/b.dxf");
    EXPECT_THROW(dialog.showOpen(script("b.dxf\n").screen), text_face::ScriptError);
    EXPECT_THROW(dialog.showOpen(script("file \n").screen), text_face::ScriptError);
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
