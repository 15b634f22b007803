#pragma once

#include "desk/model/prompter.h"
#include "faces/text/line_source.h"

#include <functional>
#include <iosfwd>

namespace console {

/// The prompter on lines of text. A point is "x,y[,z]" or "@dx,dy[,dz]" from the base point; an angle is in
/// degrees or a point; an entity is "@HANDLE" or a point near it; a selection is "all", "w x1,y1 x2,y2"
/// (window), "c x1,y1 x2,y2" (crossing), handles or a point, line after line, ended by an empty line; "esc"
/// breaks off. An answer of another form stops a script; a person is told and asked again.
class TextPrompter : public model::Prompter {
  public:
    TextPrompter(text_face::LineSource& source, std::ostream& output) : source_(source), output_(output) {}

    model::EntityPick getEntity(const drawing::Drawing& drawing, const std::string& prompt) override;
    model::PointPick getPoint(const std::optional<drawing::Point3>& base, const std::string& prompt) override;
    model::AnglePick getAngle(const drawing::Point3& base, const std::string& prompt) override;
    model::SelectionPick selectEntities(const drawing::Drawing& drawing, const std::string& prompt) override;
    void message(const std::string& text) override;

  private:
    /// The next answer with blanks at both ends gone; comments are passed over. Raises ScriptError at the
    /// end.
    std::string ask(const std::string& prompt);
    void refuse(const std::string& answer, const char* reason);

    text_face::LineSource& source_;
    std::ostream& output_;
};

}  // namespace console
