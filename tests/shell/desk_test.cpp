#include "shell_world.h"
#include "tests/fakes/error_of.h"

namespace shell {
namespace {

using Outcome = Desk::Outcome;

constexpr const char* kEraseAll =
    "(vla-Delete (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object))) 0))";

struct DeskTest : testing::Test, ShellWorld {};

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
    tell(kEraseAll);
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
    tell(kEraseAll);
    EXPECT_TRUE(desk.hasUnsavedChanges());
    EXPECT_EQ(tell("save"), "Saved " + folder.file("copy.dxf") + "\n");
    EXPECT_FALSE(desk.hasUnsavedChanges());
    EXPECT_NE(folder.read("copy.dxf"), bytes);
    EXPECT_EQ(folder.read("house.dxf"), bytes);

    tell(kEraseAll);
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

TEST_F(DeskTest, AShortageOfMemoryThatAHandlerWentOverIsTold) {
    struct : fakes::ScriptedPrompter {
        model::EntityPick getEntity(const drawing::Drawing&, const std::string&) override {
            throw std::bad_alloc();
        }
    } shortOfMemory;
    Desk other(optionsIn(folder), screen, shortOfMemory, output);
    other.open(house);
    told();
    EXPECT_EQ(other.run("(vl-catch-all-apply 'vla-GetEntity (list (vla-get-Utility (vla-get-ActiveDocument "
                        "(vlax-get-acad-object))) 'entity 'point))"),
              Outcome::Failed);
    EXPECT_TRUE(told().ends_with("Memory ran out: a part of the command may not have been done.\n"));
    EXPECT_EQ(other.run("(+ 1 1)"), Outcome::Done);
}

TEST_F(DeskTest, AnswersFromLispEndInAnErrorWhereListsAreTooDeepOrTooLong) {
    EXPECT_EQ(desk.answerOf("'((1 2) \"a\" nil ((3.5 4 5)))"), "1,2 a  3.5,4,5");
    const auto answer = [&] { return fakes::errorOf([&] { desk.answerOf("!l"); }); };
    desk.run("(repeat 60000 (setq l (list l \"x\")))");
    EXPECT_EQ(answer(), basic::kTypeMismatch);
    desk.run(
        "(setq l nil)(repeat 90 (setq l (list l l)))(princ)");  // 2 to the power of 90 values in 90 cells
    EXPECT_EQ(answer(), basic::kTypeMismatch);
}

TEST_F(DeskTest, ObjectsOfTheDrawingBeforeStillBelongToIt) {
    tell("(setq old (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object))) 1))");
    const std::string empty = folder.write("empty.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(tell("OPEN " + empty),
              "Opened " + empty + "\n1 finding on reading:\n  K5 1: there is no section HEADER\n");
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
