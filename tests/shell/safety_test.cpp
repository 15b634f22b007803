// What keeps a drawing safe from the machine and from other programs: lock file, changed file, recovery.
#include "bench/big_drawing.h"
#include "desk/dxf/transient.h"
#include "desk/shell/temporary_folder.h"
#include "shell_world.h"

#include <csignal>
#include <fstream>
#include <sys/wait.h>
#include <unistd.h>

namespace shell {
namespace {

namespace fs = std::filesystem;
using Outcome = Desk::Outcome;

constexpr const char* kErase =
    "(vla-Delete (vla-Item (vla-get-ModelSpace (vla-get-ActiveDocument (vlax-get-acad-object))) 0))";

class SafetyTest : public testing::Test {
  protected:
    /// A desk with a person before it, who answers with `answer`.
    std::unique_ptr<Desk> person(bool answer = true) {
        return std::make_unique<Desk>(optionsOfPerson(answer), screen, prompter, output);
    }
    DeskOptions optionsOfPerson(bool answer = true) {
        DeskOptions options = ShellWorld::optionsIn(folder);
        options.stateFolder = folder.file("state");
        options.autosave = true;
        options.confirm = [this, answer](const std::string& question) {
            questions.push_back(question);
            return answer;
        };
        return options;
    }
    std::unique_ptr<Desk> script() {
        DeskOptions options = ShellWorld::optionsIn(folder);
        options.stateFolder = folder.file("state");
        return std::make_unique<Desk>(options, screen, prompter, output);
    }
    /// A session that is killed after `line`, as by a power cut.
    void killAfter(const std::string& line) {
        inChild([&] {
            const auto desk = person();
            desk->open(house);
            desk->run(line);
            kill(getpid(), SIGKILL);
        });
    }
    /// Runs `session` in a process of its own; the signal that ended it.
    template <typename Session>
    static int inChild(const Session& session) {
        const pid_t child = fork();
        if (child == 0) {
            session();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }
    std::string told() { return std::exchange(output, {}).str(); }
    /// The copies of unsaved changes that there are.
    int copies() const {
        int count = 0;
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(folder.file("state"), none))
            count += entry.path().extension() == ".dxf" ? 1 : 0;
        return count;
    }

    fakes::TempFolder folder;
    fakes::RecordingScreen screen;
    fakes::ScriptedPrompter prompter;
    std::ostringstream output;
    std::vector<std::string> questions;
    std::string bytes = bench::BigDrawing::make(3);
    std::string house = folder.write("house.dxf", bytes);
};

TEST_F(SafetyTest, UnsavedChangesOutliveAKill) {
    killAfter(kErase);
    EXPECT_EQ(copies(), 1);
    {
        const auto batch = script();
        batch->open(house);
        EXPECT_NE(told().find("that a session before couldn't save are in"), std::string::npos);
        EXPECT_FALSE(batch->hasUnsavedChanges());
    }
    {
        const auto desk = person();
        desk->open(house);
        EXPECT_EQ(questions.size(), 1U);
        EXPECT_TRUE(desk->hasUnsavedChanges());
        EXPECT_EQ(desk->document().drawing().path(), house);
        desk->leaveCopy();  // and killed again
    }
    const auto desk = person();
    desk->open(house);
    EXPECT_EQ(questions.size(), 2U);
    desk->save("");
    EXPECT_NE(folder.read("house.dxf"), bytes);
    EXPECT_EQ(copies(), 0);
}

TEST_F(SafetyTest, SignalsTakeWhatIsTemporaryAndLeaveTheCopy) {
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        const int ended = inChild([&] {
            dxf::removeTransientsAtSignals();
            const ChangedVariable temporary("TMPDIR", folder.path());
            const TemporaryFolder passing("passing");
            std::ofstream(passing.path() / "file") << "x";
            DeskOptions options = optionsOfPerson();
            options.autosaveInterval = {};
            const drawing::Drawing* drawing = nullptr;
            options.watch = [&] {  // amid the command
                if (drawing != nullptr && drawing->isModified()) raise(signal);
            };
            Desk desk(options, screen, prompter, output);
            desk.open(house);
            drawing = &desk.document().drawing();
            desk.run(std::string("(progn ") + kErase + " (while t))");
        });
        EXPECT_EQ(ended, signal);
        EXPECT_EQ(copies(), 1);
        EXPECT_FALSE(fs::exists(folder.file("house.dwl")));
        for (const auto& entry : fs::directory_iterator(folder.path()))
            EXPECT_FALSE(entry.path().filename().string().starts_with("passing")) << entry;
        fs::remove_all(folder.file("state"));
    }
}

TEST_F(SafetyTest, AnExceptionThatEndsTheSessionLeavesTheCopy) {
    try {
        const auto desk = person();
        desk->open(house);
        desk->run(kErase);
        throw std::bad_alloc();
    } catch (const std::bad_alloc&) {
        EXPECT_EQ(copies(), 1);
    }
}

TEST_F(SafetyTest, ACleanEndLeavesNothing) {
    {
        const auto desk = person();
        desk->open(house);
        desk->run(kErase);
        EXPECT_EQ(copies(), 1);
        EXPECT_EQ(fs::status(folder.file("state")).permissions(), fs::perms::owner_all);
        desk->run("U");
        EXPECT_EQ(copies(), 0) << "nothing is unsaved any more";
        desk->run(kErase);
    }
    EXPECT_EQ(copies(), 0);
    EXPECT_FALSE(fs::exists(folder.file("house.dwl")));
}

TEST_F(SafetyTest, AFileThatAnotherProgramChangedIsAskedAbout) {
    const auto desk = script();
    desk->open(house);
    folder.write("house.dxf", bytes + "999\nother\n");
    EXPECT_EQ(desk->run("SAVE"), Outcome::Failed);
    EXPECT_NE(told().find("was changed by another program"), std::string::npos);
    EXPECT_TRUE(folder.read("house.dxf").ends_with("other\n"));
    EXPECT_EQ(desk->run("SAVE!"), Outcome::Done);
    EXPECT_EQ(folder.read("house.dxf"), bytes);
    EXPECT_EQ(desk->run("SAVE"), Outcome::Done);

    const auto no = person(false);
    no->open(house);
    EXPECT_EQ(no->run("SAVE"), Outcome::Failed) << "the other desk has it open";
    EXPECT_EQ(questions.size(), 1U);
}

TEST_F(SafetyTest, CtrlCTakesBackWhatRuns) {
    DeskOptions options = ShellWorld::optionsIn(folder);
    options.breakable = true;
    Desk desk(options, screen, prompter, output);
    desk.open(house);
    const std::string erase = std::string("(progn ") + kErase + " (while t))";
    const pid_t other = fork();
    if (other == 0) {  // presses Ctrl-C again and again
        for (int i = 0; i < 1000 && kill(getppid(), 0) == 0; ++i) {
            usleep(20000);
            kill(getppid(), SIGINT);
        }
        _exit(0);
    }
    // Outside of a line the signal would end the test.
    const auto before = std::signal(SIGINT, SIG_IGN);
    EXPECT_EQ(desk.run(erase), Outcome::Failed);
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    std::signal(SIGINT, before);
    EXPECT_TRUE(told().ends_with("*Cancel*\n"));
    EXPECT_EQ(desk.document().drawing().savedBytes(), bytes);
}

TEST_F(SafetyTest, TheLockFileTellsWhoHasTheDrawing) {
    folder.write("house.dwl", "anna\nDESK7\nMon Nov 23 02:41:46 2026\n");  // of a CAD program
    {
        const auto desk = script();
        desk->open(house);
        EXPECT_NE(told().find("It is open already: anna on DESK7 since Mon"), std::string::npos);
        EXPECT_EQ(desk->run("SAVE"), Outcome::Failed);
        EXPECT_EQ(desk->run("SAVE " + folder.file("copy.dxf")), Outcome::Done);
    }
    EXPECT_TRUE(fs::exists(folder.file("house.dwl"))) << "it isn't ours";
    fs::remove(folder.file("house.dwl"));
    killAfter("LIST");
    EXPECT_TRUE(fs::exists(folder.file("house.dwl")));
    const auto desk = script();
    told();
    desk->open(house);
    EXPECT_EQ(told().find("It is open already"), std::string::npos) << "left by a process that is gone";
}

}  // namespace
}  // namespace shell
