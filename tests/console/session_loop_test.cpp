#include "desk/console/session_loop.h"

#include "tests/shell/shell_world.h"

namespace console {
namespace {

constexpr const char* kErase =
    "(vla-Delete (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object))) 0))";

class SessionLoopTest : public testing::Test, protected shell::ShellWorld {
  protected:
    /// The story of a session of these lines; "stopped: ..." at its end where a script couldn't go on.
    std::string story(const std::string& lines, bool interactive = false) {
        told();
        std::istringstream input(lines);
        text_face::StreamLines source(input, interactive);
        try {
            runCommandLine(desk, source);
        } catch (const text_face::ScriptError& error) {
            output << "stopped: " << error.what();
        }
        return told();
    }
};

TEST_F(SessionLoopTest, AScriptStopsAtWhatCantBeDone) {
    const struct {
        const char* lines;
        const char* stopped;
    } rows[] = {
        {"LIST\nOPEN none.dxf\n", "stopped: line 2: OPEN none.dxf: Error 53: "},
        {"(car 1)\n", "stopped: line 1: (car 1): Error"},
        {"(princ\n", "stopped: the script ended while an unfinished Lisp expression was waiting"},
    };
    for (const auto& row : rows) {
        const std::string told = story(row.lines);
        EXPECT_NE(told.find(row.stopped), std::string::npos) << told;
    }
    EXPECT_TRUE(story("FROB\n(+ 1 1)\n", true).ends_with("Command: 2\nCommand: ")) << "a person goes on";
}

TEST_F(SessionLoopTest, ChangesThatWereNotSavedAreTold) {
    const std::string notSaved = "The changes to " + house + " were not saved.\n";
    EXPECT_TRUE(story(std::string(kErase) + "\nQUIT\n").ends_with(notSaved));
    EXPECT_TRUE(story("LIST\n").ends_with(notSaved)) << "at the end of the script too";
    EXPECT_NE(story("OPEN " + house + "\n").find(notSaved), std::string::npos);
    EXPECT_EQ(story("(+ 1\n2)\nQUIT\nLIST\n"), "Command: (+ 1\n(_> 2)\n3\nCommand: QUIT\n")
        << "nothing to save any more";
    EXPECT_EQ(folder.read("house.dxf"), bytes);
}

TEST_F(SessionLoopTest, APersonIsAskedBeforeChangesAreLost) {
    const std::string erase = std::string(kErase) + "\n";
    const std::string question = "The drawing has changes that aren't saved. Leave all the same? [yes/no] ";
    EXPECT_EQ(story(erase + "QUIT\nno\n(+ 1 1)\nQUIT\nYES\n(+ 2 2)\n", true),
              "Command: nil\nCommand: " + question + "Command: 2\nCommand: " + question);
    EXPECT_TRUE(desk.hasUnsavedChanges());
    story("OPEN " + house + "\nno\n", true);
    EXPECT_TRUE(desk.hasUnsavedChanges());
    story("OPEN " + house + "\nyes\n", true);
    EXPECT_FALSE(desk.hasUnsavedChanges());
}

}  // namespace
}  // namespace console
