#pragma once

#include "forms/change.h"
#include "forms/control.h"

#include <QWidget>
#include <memory>
#include <vector>

namespace qt_face {

class FormWindow;

/// A control on its form's window: makes the widget that is native to its kind, draws the model on it, and
/// turns what the user does with it into acts.
class ControlWidget {
  public:
    ControlWidget(FormWindow& window, forms::Control& control) : window_(window), control_(control) {}
    ControlWidget(const ControlWidget&) = delete;
    ControlWidget& operator=(const ControlWidget&) = delete;
    virtual ~ControlWidget() = default;

    QWidget* widget() const { return widget_; }
    forms::Control& control() const { return control_; }
    /// The objects whose keys and focus are the control's.
    virtual std::vector<QObject*> inputs() const { return {widget_}; }
    void draw(forms::Changes changes);
    /// Whether the user is writing in a field of the widget's own, whose keys aren't the control's.
    virtual bool isEditing() const { return false; }
    /// Hears a key before the widget does; returns whether it takes it.
    virtual bool keyPressed(int /*key*/, const QString& /*text*/) { return false; }

  protected:
    virtual void drawOwn(forms::Changes changes) = 0;
    virtual void drawPlace();
    void setTip();

    FormWindow& window_;
    forms::Control& control_;
    QWidget* widget_ = nullptr;  ///< owned by its parent widget
    bool isCaptionCut_ = false;
};

/// Null for a kind that has no place on the form.
std::unique_ptr<ControlWidget> makeWidget(FormWindow& window, forms::Control& control, QWidget* parent);

// The kinds whose widgets need a file of their own.
std::unique_ptr<ControlWidget> makeListWidget(FormWindow& window, forms::Control& control, QWidget* parent);
std::unique_ptr<ControlWidget> makeComboWidget(FormWindow& window, forms::Control& control, QWidget* parent);
std::unique_ptr<ControlWidget> makeTableWidget(FormWindow& window, forms::Control& control, QWidget* parent);

}  // namespace qt_face
