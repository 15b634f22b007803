#include "shell_world.h"

namespace shell {
namespace {

using Outcome = Desk::Outcome;

class DeskTest : public testing::Test, protected ShellWorld {
  protected:
    std::string currentBytes() { return desk.document().drawing().savedBytes(); }
    /// The acts of a replacement of all LAMPs by SPOT.
    void queueReplacement() {
        screen.choose("lstDestination", "LAMP");
        screen.type("CboBlocReplacer", "SPOT");
        screen.click("BtnReplace");
        screen.click("BtnClose");
    }
};

TEST_F(DeskTest, ListCountsReferencesInSpaces) {
    EXPECT_EQ(tell("LIST"), "References  Block\n         3  LAMP\n         1  SPOT\n");
    EXPECT_EQ(tell("  list "), tell("LIST")) << "commands are matched without regard to case and blanks";
    EXPECT_EQ(tell(""), "");
    EXPECT_EQ(tell("QUIT", Outcome::Quit), "");
}

TEST_F(DeskTest, OpeningAnotherDrawing) {
    folder.write("empty.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(
        tell("OPEN " + folder.file("empty.dxf")),
        "Opened " + folder.file("empty.dxf") + "\n1 finding on reading:\n  1: there is no section HEADER\n");
    EXPECT_EQ(tell("LIST"), "References  Block\n");
    EXPECT_EQ(desk.document().drawing().path(), folder.file("empty.dxf"));
}

TEST_F(DeskTest, AFailedOpenLeavesTheCurrentDrawing) {
    const struct {
        std::string line;
        const char* told;
    } rows[] = {
        {"OPEN", "Error 52: "},
        {"OPEN " + folder.file("none.dxf"), "none.dxf"},
        {"OPEN " + folder.path(), "Error "},
        {"OPEN " + folder.write("notes.dxf", "Dear diary"), "notes.dxf"},
    };
    tell(
        "(vla-AddLine (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object)))"
        " '(0.0 0.0 0.0) '(1.0 1.0 0.0))");
    for (const auto& row : rows) {
        const std::string story = tell(row.line, Outcome::Failed);
        EXPECT_TRUE(story.starts_with("Error ")) << story;
        EXPECT_NE(story.find(row.told), std::string::npos) << story;
    }
    EXPECT_EQ(desk.document().drawing().path(), house);
    EXPECT_TRUE(desk.hasUnsavedChanges());
}

TEST_F(DeskTest, SavingUnderAnotherNameMakesItTheDrawingsOwn) {
    tell("SAVE " + folder.file("copy.dxf"));
    EXPECT_EQ(folder.read("copy.dxf"), bytes) << "unchanged, so the same to the byte";
    tell(
        "(vla-AddLine (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object)))"
        " '(0.0 0.0 0.0) '(1.0 1.0 0.0))");
    EXPECT_TRUE(desk.hasUnsavedChanges());
    EXPECT_EQ(tell("save"), "Saved " + folder.file("copy.dxf") + "\n");
    EXPECT_FALSE(desk.hasUnsavedChanges());
    EXPECT_GT(folder.read("copy.dxf").size(), bytes.size());
    EXPECT_EQ(folder.read("house.dxf"), bytes);

    tell("(vla-Delete (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object))) 0))");
    const std::string before = folder.read("copy.dxf");
    for (const std::string& target : {folder.file("no/such/folder.dxf"), folder.path()}) {
        EXPECT_TRUE(tell("SAVE " + target, Outcome::Failed).starts_with("Error ")) << target;
        EXPECT_TRUE(desk.hasUnsavedChanges());
        EXPECT_EQ(desk.document().drawing().path(), folder.file("copy.dxf"));
    }
    EXPECT_EQ(folder.read("copy.dxf"), before);
}

TEST_F(DeskTest, LispExpressionsAndVariables) {
    EXPECT_EQ(tell("(setq n (+ 1 2))"), "3\n");
    EXPECT_EQ(tell("!n"), "3\n");
    EXPECT_EQ(tell("!nothing"), "nil\n");
    EXPECT_EQ(tell("(vla-get-Name (vla-get-ActiveDocument (vlax-get-acad-object)))"), "\"house.dxf\"\n");
    EXPECT_EQ(tell("(car 1", Outcome::Incomplete), "");
    EXPECT_TRUE(tell("(car 1)", Outcome::Failed).starts_with("Error "));
    const std::string refused = tell(
        "(vla-put-XScaleFactor (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument"
        " (vlax-get-acad-object))) 0) 0)",
        Outcome::Failed);
    EXPECT_NE(refused.find("Invalid input"), std::string::npos) << refused;
    EXPECT_EQ(currentBytes(), bytes);
}

TEST_F(DeskTest, UnknownCommandsAreTold) {
    EXPECT_EQ(tell("FROB", Outcome::Unknown), "Unknown command \"FROB\".\n");
    EXPECT_EQ(tell("VNREPLACE now", Outcome::Unknown), "Unknown command \"VNREPLACE now\".\n");
    tell("(defun C:FROB () (princ \"frobbed\") (princ))");
    EXPECT_EQ(tell("frob"), "frobbed");
}

TEST_F(DeskTest, ACommandIsOneStepOfUndo) {
    EXPECT_EQ(tell("U"), "Nothing to undo.\n");
    queueReplacement();
    tell("VNREPLACE");
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(tell("LIST"), "References  Block\n         0  LAMP\n         4  SPOT\n");
    tell(
        "(repeat 2 (vla-Delete (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument"
        " (vlax-get-acad-object))) 0)))");
    EXPECT_EQ(tell("LIST"), "References  Block\n         0  LAMP\n         2  SPOT\n");
    EXPECT_EQ(tell("U"), "Undone.\n");
    EXPECT_EQ(tell("LIST"), "References  Block\n         0  LAMP\n         4  SPOT\n");
    EXPECT_EQ(tell("u"), "Undone.\n");
    EXPECT_EQ(currentBytes(), bytes);
    EXPECT_FALSE(desk.hasUnsavedChanges());
    EXPECT_EQ(tell("U"), "Nothing to undo.\n");
}

TEST_F(DeskTest, ObjectsOfTheDrawingBeforeStillBelongToIt) {
    tell("(setq old (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object))) 1))");
    folder.write("empty.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    tell("OPEN " + folder.file("empty.dxf"));
    EXPECT_EQ(tell("(vla-get-Name old)"), "\"LAMP\"\n");
    queueReplacement();
    // The new drawing has no blocks: a message, and only the button that closes works.
    screen.acts.erase(screen.acts.begin(), screen.acts.begin() + 3);
    tell("VNREPLACE");
    ASSERT_EQ(screen.boxes.size(), 1U);
    EXPECT_EQ(screen.boxes[0].text, "No block r\u00E9f\u00E9rences were found in this drawing.");
}

TEST(DeskWithoutDrawingTest, CommandsSayThatNoneIsOpen) {
    fakes::TempFolder folder;
    fakes::RecordingScreen screen;
    fakes::ScriptedPrompter prompter;
    std::ostringstream output;
    Desk desk(ShellWorld::optionsIn(folder), screen, prompter, output);
    for (const char* line : {"LIST", "SAVE x.dxf", "U", "VNREPLACE"}) {
        EXPECT_EQ(desk.run(line), Outcome::Failed) << line;
        EXPECT_EQ(std::exchange(output, {}).str(), "Error 91: No drawing is open\n") << line;
    }
    EXPECT_FALSE(desk.hasUnsavedChanges());
    EXPECT_EQ(desk.run("(* 6 7)"), Outcome::Done);
    EXPECT_EQ(output.str(), "42\n");
}

}  // namespace
}  // namespace shell
