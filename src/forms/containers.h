#pragma once

#include "forms/control.h"

namespace forms {

/// A text on the dialog. It has no help context.
class Label : public Control {
  public:
    Label(Form& form, std::string name) : Control(form, std::move(name), Kind::Label) {}
    std::function<void()> onClick;
    /// The user's click.
    void press() { raise(onClick); }
};

/// A box with a caption around other controls.
class Frame : public Control {
  public:
    Frame(Form& form, std::string name) : Control(form, std::move(name), Kind::Frame) {}
};

/// A plain container without a caption.
class PictureBox : public Control {
  public:
    PictureBox(Form& form, std::string name) : Control(form, std::move(name), Kind::PictureBox) {}
};

/// A rule of the layout. It can be hidden, and has no other property of the common ones.
class Line : public Control {
  public:
    Line(Form& form, std::string name) : Control(form, std::move(name), Kind::Line) {}

    /// Design: the two ends, relative to the container.
    void setEnds(Twips x1, Twips y1, Twips x2, Twips y2) { x1_ = x1, y1_ = y1, x2_ = x2, y2_ = y2; }
    Twips x1() const { return x1_; }
    Twips y1() const { return y1_; }
    Twips x2() const { return x2_; }
    Twips y2() const { return y2_; }

  private:
    Twips x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
};

}  // namespace forms
