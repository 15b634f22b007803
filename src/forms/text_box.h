#pragma once

#include "forms/control.h"

namespace forms {

class TextBox : public Control {
  public:
    TextBox(Form& form, std::string name) : Control(form, std::move(name), Kind::TextBox) {}

    const std::string& text() const { return text_; }
    /// Raises Change when the text changes.
    void setText(std::string_view text);

    /// Design: several lines, and text that the user can't edit.
    void setMultiLine(bool multiLine) { multiLine_ = multiLine; }
    bool multiLine() const { return multiLine_; }
    void setLocked(bool locked) { locked_ = locked; }
    bool locked() const { return locked_; }

    std::function<void()> onChange;

    void keepDesign() override;
    void restoreDesign() override;

  private:
    std::string text_;
    std::string designText_;
    bool multiLine_ = false;
    bool locked_ = false;
};

}  // namespace forms
