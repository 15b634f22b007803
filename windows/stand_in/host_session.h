#pragma once

#include "desk/lisp/interpreter.h"
#include "desk/model/document.h"
#include "faces/text/line_source.h"
#include "windows/stand_in/acad_border.h"
#include "windows/stand_in/story.h"

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>

namespace stand_in {

/// AutoCAD's place: the open drawing with its objects, Lisp with vorlane.lsp, and the add-in, which is the
/// registered class and is reached by COM alone.
class HostSession {
  public:
    HostSession(const std::filesystem::path& lispFile, basic::Regional regional, model::Prompter& prompter,
                text_face::LineSource& source, std::ostream& output, Story::Manner manner);

    /// Opens a drawing; raises basic::Error.
    void open(const std::string& path);
    /// Carries out the script's lines at the command prompt. Raises text_face::ScriptError.
    void run();
    /// One line more.
    void runOne(const std::string& line) { execute(line); }

    AcadBorder& border() { return border_; }
    /// The objects of the component that are alive.
    host::ObjectPtr createComponent();

  private:
    enum class Outcome { Done, Failed, Incomplete, Quit };

    bool execute(std::string line);
    Outcome runLine(const std::string& line);
    void evaluate(const std::string& expression);
    Outcome command(const std::string& line);
    bool hostCommand(const std::string& name, const std::string& rest);
    drawing::Drawing& drawing() const;

    AcadBorder border_;
    std::shared_ptr<model::Application> application_;
    lisp::Interpreter lisp_;
    text_face::LineSource& source_;
    std::ostream& output_;
    Story story_;
    Story::Manner manner_;
    std::string failure_;  ///< why the last line failed
};

}  // namespace stand_in
