#pragma once

#include "desk/model/prompter.h"
#include "faces/text/line_source.h"

#include <functional>
#include <iosfwd>

namespace console {

/// The prompter on lines of text. A point is "x,y[,z]" or "@dx,dy[,dz]" from the base point; an angle is in
/// degrees or a point; an entity is "@HANDLE", "first NAME" or a point near it; a selection is what
/// answers::Selection takes, line after line, ended by an empty line; "esc" breaks off. "!name" and Lisp
/// expressions stand for their values. An answer of another form stops a script; a person is told and asked
/// again.
class TextPrompter : public model::Prompter {
  public:
    TextPrompter(text_face::LineSource& source, std::ostream& output) : source_(source), output_(output) {}

    /// Gives the answer that a Lisp expression or "!name" stands for; raises basic::Error.
    void setEvaluate(std::function<std::string(const std::string& expression)> evaluate) {
        evaluate_ = std::move(evaluate);
    }

    model::EntityPick getEntity(const drawing::Drawing& drawing, const std::string& prompt) override;
    model::PointPick getPoint(const std::optional<geometry::Point3>& base,
                              const std::string& prompt) override;
    model::AnglePick getAngle(const geometry::Point3& base, const std::string& prompt) override;
    model::SelectionPick selectEntities(const drawing::Drawing& drawing, const std::string& prompt) override;
    void message(const std::string& text) override;

  private:
    /// The next answer with blanks at both ends gone, where Tab offers `words`; comments are passed over.
    /// Raises ScriptError at the end.
    std::string ask(const std::string& prompt, const std::vector<std::string>& words);
    void refuse(const std::string& reason);

    text_face::LineSource& source_;
    std::ostream& output_;
    std::function<std::string(const std::string&)> evaluate_;
    std::vector<drawing::EntityId> previous_;  ///< what "p" stands for
};

}  // namespace console
