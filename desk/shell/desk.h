#pragma once

#include "desk/lisp/interpreter.h"
#include "desk/model/document.h"
#include "desk/shell/linux_platform.h"
#include "entry/component.h"

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>

namespace shell {

struct DeskOptions {
    std::filesystem::path installFolder;
    std::filesystem::path resources;
    basic::Regional regional;
    bool frenchDesktop = false;  ///< decides the language while the user has chosen none
};

/// What stands in the CAD host's place: the open drawing with its automation objects, the Lisp interpreter
/// with vorlane.lsp, the loaded add-in, and the command line that reaches them all.
class Desk {
  public:
    /// Prepares the install folder and loads vorlane.lsp; raises what hinders it. Screen, prompter and output
    /// outlive the desk.
    Desk(const DeskOptions& options, forms::Screen& screen, model::Prompter& prompter, std::ostream& output);
    ~Desk();

    /// Opens a drawing in place of the current one and tells what was repaired. Raises basic::Error; the
    /// current drawing then stays.
    void open(const std::string& path);
    /// Saves the current drawing under `path`, under its own for an empty one. Raises basic::Error; the file
    /// of before then stays as it was.
    void save(const std::string& path);
    bool hasDrawing() const { return application_->active() != nullptr; }
    /// The current document; raises kObjectNotSet where no drawing is open.
    model::Document& document() const;
    /// Whether there is an open drawing with changes that weren't saved.
    bool hasUnsavedChanges() const;

    enum class Outcome {
        Done,
        Failed,      ///< it was told why
        Unknown,     ///< no such command; it was told
        Incomplete,  ///< a Lisp expression that needs more lines
        Quit,
    };
    /// Carries out a line of the command line as one undo step: a Lisp expression, a command that Lisp
    /// defines, or a host command.
    Outcome run(const std::string& line);

    /// What F1 in a dialog does.
    void showHelp(std::int32_t context) { component_->showHelp(context); }
    std::ostream& output() { return output_; }

  private:
    Outcome evaluate(const std::string& expression);
    Outcome command(const std::string& line);

    std::ostream& output_;
    std::unique_ptr<LinuxPlatform> platform_;
    std::shared_ptr<model::Application> application_;
    std::unique_ptr<lisp::Interpreter> lisp_;
    std::unique_ptr<entry::Component> component_;
};

}  // namespace shell
