#pragma once

#include "forms/control.h"

namespace forms {

class Button : public Control {
  public:
    Button(Form& form, std::string name) : Control(form, std::move(name), Kind::Button) {}

    /// Design: the button that Enter, or Escape, presses wherever the focus is.
    void setDefault(bool isDefault) { default_ = isDefault; }
    void setCancel(bool isCancel) { cancel_ = isCancel; }
    bool isDefault() const { return default_; }
    bool isCancel() const { return cancel_; }

    std::function<void()> onClick;
    /// The user's press.
    void press() { raise(onClick); }

  private:
    bool default_ = false;
    bool cancel_ = false;
};

class CheckBox : public Control {
  public:
    CheckBox(Form& form, std::string name) : Control(form, std::move(name), Kind::CheckBox) {}

    /// 0 off, 1 on, 2 greyed.
    int value() const { return value_; }
    /// Raises Click when the value changes; another number than 0, 1, 2 raises kInvalidProperty.
    void setValue(int value);

    std::function<void()> onClick;

    void keepDesign() override;
    void restoreDesign() override;

  private:
    int value_ = 0;
    int designValue_ = 0;
};

class OptionButton : public Control {
  public:
    OptionButton(Form& form, std::string name) : Control(form, std::move(name), Kind::OptionButton) {}

    bool value() const { return value_; }
    /// Turning the option on turns off the others of its group, which raises nothing, and then raises Click.
    /// Turning it off raises nothing, nor does turning on what is on.
    void setValue(bool value);

    std::function<void()> onClick;

    void keepDesign() override;
    void restoreDesign() override;

  private:
    void turnOff();

    bool value_ = false;
    bool designValue_ = false;
};

}  // namespace forms
