#include "shell_world.h"

namespace shell {
namespace {

using Outcome = Desk::Outcome;

constexpr const char* kErase =
    "(vla-Delete (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object))) 0))";

class DeskTest : public testing::Test, protected ShellWorld {
  protected:
    /// The choices for a replacement of all LAMPs.
    void queueReplacement(const std::string& block) {
        screen.choose("lstDestination", "LAMP");
        screen.type("CboBlocReplacer", block);
    }
    /// Replaces, and lists the references without the heading.
    std::string replace() {
        screen.click("BtnReplace");
        screen.click("BtnClose");
        tell("VNREPLACE");
        return tell("LIST").substr(18);
    }
};

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
    tell(kErase);
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
    tell(kErase);
    EXPECT_TRUE(desk.hasUnsavedChanges());
    EXPECT_EQ(tell("save"), "Saved " + folder.file("copy.dxf") + "\n");
    EXPECT_FALSE(desk.hasUnsavedChanges());
    EXPECT_NE(folder.read("copy.dxf"), bytes);
    EXPECT_EQ(folder.read("house.dxf"), bytes);

    tell(kErase);
    const std::string before = folder.read("copy.dxf");
    for (const std::string& target : {folder.file("no/such/folder.dxf"), folder.path()}) {
        EXPECT_TRUE(tell("SAVE " + target, Outcome::Failed).starts_with("Error ")) << target;
        EXPECT_TRUE(desk.hasUnsavedChanges());
        EXPECT_EQ(desk.document().drawing().path(), folder.file("copy.dxf"));
    }
    EXPECT_EQ(folder.read("copy.dxf"), before);
}

TEST_F(DeskTest, LinesThatAreNoCommand) {
    EXPECT_EQ(tell("!nothing"), "nil\n");
    EXPECT_EQ(tell("(car 1", Outcome::Incomplete), "");
    EXPECT_TRUE(tell("(car 1)", Outcome::Failed).starts_with("Error "));
    EXPECT_EQ(tell("FROB", Outcome::Unknown), "Unknown command \"FROB\".\n");
    EXPECT_EQ(tell("VNREPLACE now", Outcome::Unknown), "Unknown command \"VNREPLACE now\".\n");
    tell("(defun C:FROB () (princ \"frobbed\") (princ))");
    EXPECT_EQ(tell("frob"), "frobbed");
}

TEST_F(DeskTest, ACommandIsOneStepOfUndo) {
    queueReplacement("SPOT");
    replace();
    tell("(repeat 2 " + std::string(kErase) + ")");
    EXPECT_EQ(tell("LIST"), "References  Block\n         0  LAMP\n         2  SPOT\n");
    EXPECT_EQ(tell("U"), "Undone.\n");
    EXPECT_EQ(tell("  list "), "References  Block\n         0  LAMP\n         4  SPOT\n");
    EXPECT_EQ(tell("u"), "Undone.\n");
    EXPECT_EQ(desk.document().drawing().savedBytes(), bytes);
    EXPECT_FALSE(desk.hasUnsavedChanges());
    EXPECT_EQ(tell("U"), "Nothing to undo.\n");
}

TEST_F(DeskTest, AReplacementEndsAtItsFirstFailure) {
    queueReplacement("NONE");
    EXPECT_EQ(replace(), "         3  LAMP\n         1  SPOT\n");
    queueReplacement("SPOT");
    screen.click("chkRotation");
    screen.type("txtRotation", "Unchanged");
    EXPECT_EQ(replace(), "         3  LAMP\n         2  SPOT\n");
    Texts failures;
    for (const std::string& entry : screen.log)
        if (entry.starts_with("failure")) failures.push_back(entry);
    EXPECT_EQ(
        failures,
        (Texts{
            "failure -2145386445: File error: NONE: no block of the drawing and no file that could be found",
            "failure 13: Type mismatch"}));
}

TEST_F(DeskTest, ObjectsOfTheDrawingBeforeStillBelongToIt) {
    tell("(setq old (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object))) 1))");
    const std::string empty = folder.write("empty.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(tell("OPEN " + empty),
              "Opened " + empty + "\n1 finding on reading:\n  1: there is no section HEADER\n");
    EXPECT_EQ(tell("LIST"), "References  Block\n");
    EXPECT_EQ(tell("(vla-get-Name old)"), "\"LAMP\"\n");
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
