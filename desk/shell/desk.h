#pragma once

#include "desk/lisp/interpreter.h"
#include "desk/model/document.h"
#include "desk/shell/autosave.h"
#include "desk/shell/drawing_file.h"
#include "desk/shell/linux_platform.h"
#include "desk/shell/user_break.h"
#include "entry/component.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace shell {

struct DeskOptions {
    std::filesystem::path installFolder;
    std::filesystem::path resources;
    basic::Regional regional;
    bool frenchDesktop = false;  ///< decides the language while the user has chosen none
    /// For copies of what isn't saved yet and of files that can only be written in place; empty for none.
    std::filesystem::path stateFolder;
    bool autosave = false;  ///< whether a copy is kept after each command that leaves something unsaved
    /// A copy is kept within a command, too, that goes on for so long.
    std::chrono::milliseconds autosaveInterval = std::chrono::minutes(1);
    bool breakable = false;  ///< whether Ctrl-C breaks off what runs rather than ending the program
    /// Asks a person a question of yes and no; empty where nobody is there.
    std::function<bool(const std::string& question)> confirm;
    /// Runs a reading that takes long, which touches nothing of the desk's, and returns when it is done; for
    /// a program that stays alive meanwhile. What it raises ends the opening. Empty: it is just called.
    std::function<void(const std::string& path, std::function<void()> reading)> aside;
    /// Called by that reading with what was read, before anybody else has it. May be empty. Reading and this
    /// tell drawing::WorkWatch of their progress.
    std::function<void(const drawing::Drawing&)> readied;
    /// Called again and again while a command works; it may raise UserBreak. May be empty.
    std::function<void()> watch;
    LinuxPlatform::ShowPage showPage;  ///< empty: the help tells its text
    std::string language;  ///< display name of a language to be chosen; empty: what the settings say
};

/// What stands in the CAD host's place: the open drawing with its automation objects, the Lisp interpreter
/// with vorlane.lsp, the loaded add-in, and the command line that reaches them all.
class Desk {
  public:
    /// Prepares the install folder and loads vorlane.lsp; raises what hinders it. Screen, prompter and output
    /// outlive the desk.
    Desk(const DeskOptions& options, forms::Screen& screen, model::Prompter& prompter, std::ostream& output);
    ~Desk();

    /// Opens a drawing, DXF or DWG, in place of the current one and tells what was repaired, who else has it
    /// open, and whether there is a copy with changes that a session before couldn't save; a person may work
    /// on with it. Raises basic::Error; the current drawing then stays.
    void open(const std::string& path);
    enum class Overwriting { Asked, Wanted };
    /// Saves the current drawing as DXF under `path`, under its own for an empty one; one that came from a
    /// DWG file overwrites nothing without a path. Where another program has changed the drawing's file or
    /// has it open, a person is asked; else that is an error unless it is `Wanted`. Raises basic::Error; the
    /// file of before then stays as it was.
    /// Asks a person, where there is one, before a file other than the drawing's own is written over. Raises
    /// kPermissionDenied for a no.
    void requireReplacing(const std::string& path) const;
    void save(const std::string& path, Overwriting overwriting = Overwriting::Asked);
    bool hasDrawing() const { return application_->active() != nullptr; }
    /// The current document; raises kObjectNotSet where no drawing is open.
    model::Document& document() const;
    /// Whether there is an open drawing with changes that weren't saved.
    bool hasUnsavedChanges() const;
    /// Leaves the copy of the unsaved changes for the next opening to find.
    void leaveCopy() {
        if (autosave_) autosave_->leave();
        recovered_.clear();
    }

    enum class Outcome {
        Done,
        Failed,      ///< it was told why; a line that the user broke off has left the drawing as it was
        Unknown,     ///< no such command; it was told
        Incomplete,  ///< a Lisp expression that needs more lines
        Quit,
    };
    /// Carries out a line of the command line as one undo step: a Lisp expression, a command that Lisp
    /// defines, or a host command.
    Outcome run(const std::string& line);
    /// What a Lisp expression or "!name" stands for at a prompt of the drawing. Raises Lisp's errors, and
    /// kTypeMismatch for a value that can't be an answer.
    std::string answerOf(const std::string& expression);
    /// The names of the commands that Lisp defines and of the host's own.
    std::vector<std::string> commandNames() const;
    /// Why the last line failed or was unknown.
    const std::string& failure() const { return failure_; }

    /// Keeps the copy of what isn't saved up to date, where the options ask for one. Each line does so at its
    /// end; a program does besides after changes of its own, and while a line waits for its user.
    void keepCopy();

    /// What F1 in a dialog does.
    std::ostream& output() { return output_; }
    model::Prompter& prompter() { return prompter_; }

  private:
    Outcome evaluate(const std::string& expression);
    Outcome command(const std::string& line);
    Outcome fail(Outcome outcome, std::string reason);
    std::unique_ptr<drawing::Drawing> openOrRecover(const std::string& path);
    using Read = std::function<std::unique_ptr<drawing::Drawing>()>;
    std::unique_ptr<drawing::Drawing> readAside(const std::string& path, Read read) const;
    void requireOverwriting(const std::string& path, Overwriting overwriting) const;
    std::string backupFolder() const;
    void keepCopyInTime();
    void takeBack(const model::ContextPtr& context, std::uint64_t revision);
    void removeRecovered();

    std::ostream& output_;
    model::Prompter& prompter_;
    std::string failure_;
    std::filesystem::path stateFolder_;
    bool autosaves_;
    bool breakable_;
    const HeldBreak* break_ = nullptr;  ///< of the line that runs
    std::function<bool(const std::string&)> confirm_;
    std::function<void(const std::string&, std::function<void()>)> aside_;
    std::function<void(const drawing::Drawing&)> readied_;
    std::unique_ptr<DrawingFile>
        file_;  ///< none for a drawing that came from a DWG file and wasn't saved yet
    std::unique_ptr<Autosave> autosave_;
    std::chrono::steady_clock::duration autosaveInterval_;
    std::chrono::steady_clock::time_point nextCopy_;  ///< when one is due amid a command
    std::filesystem::path
        recovered_;             ///< the copy of a session before, which goes with a save or a clean end
    bool isRecovered_ = false;  ///< the drawing is that copy's and isn't saved yet
    std::unique_ptr<LinuxPlatform> platform_;
    std::shared_ptr<model::Application> application_;
    std::unique_ptr<lisp::Interpreter> lisp_;
    std::unique_ptr<entry::Component> component_;
};

}  // namespace shell
