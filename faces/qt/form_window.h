#pragma once

#include "forms/acts.h"
#include "forms/change.h"
#include "forms/form.h"
#include "forms/text_metric.h"

#include <QWidget>
#include <exception>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

class QEventLoop;

namespace qt_face {

class ControlWidget;
struct QtHooks;

/// The window of one form: its widgets, drawn from the model, and the way of the user's acts to it.
class FormWindow : public QWidget {
  public:
    FormWindow(forms::Form& form, QWidget* parent, const QtHooks& hooks);
    ~FormWindow() override;

    forms::Form& form() const { return form_; }
    const QtHooks& hooks() const { return hooks_; }

    /// Comes up, drawn whole, until leave is called or an act raises what no guard takes, which comes out
    /// here.
    void run(const std::function<void()>& shown);
    void leave();

    void mark(forms::Change change);
    void mark(forms::Control& control, forms::Change change);
    /// Draws what has been marked.
    void flush();

    /// Does an act of the user, and draws: `source`, whose widget has changed by itself, whatever became of
    /// the act.
    void act(forms::Control* source, const std::function<void()>& act);
    /// Whether the face itself is writing to the widgets: what they tell then is an echo.
    bool isQuiet() const { return quiet_ > 0; }

    /// A control's place in its container, in pixels.
    QRect placeOf(const forms::Bounds& bounds) const;
    int toPixels(forms::Twips twips) const;
    forms::Twips toTwips(int pixels) const;
    /// The size of the form's inside.
    QSize insideOf(forms::Twips width, forms::Twips height) const;
    /// A caption in the room that it has: wrapped where the control is high enough, else cut short with an
    /// ellipsis
    /// (`isCut` then), and with the mark of its accelerator if `marked`.
    QString captionOf(const forms::Control& control, int room, int lines, bool marked,
                      bool* isCut = nullptr) const;
    /// The field that a label's accelerator leads to; null for none.
    QWidget* buddyOf(const forms::Control& label) const;
    /// The text of the label before a field, for screen readers.
    QString nameOf(const forms::Control& control) const;
    /// The widget of a control; null for one that isn't drawn.
    QWidget* widgetOf(const forms::Control& control) const;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeWidgets();
    void measure();
    void drawForm(forms::Changes changes);
    void drawFocus();
    void giveAccelerators();
    bool pressKey(forms::Control* control, int key);
    void focusIn(forms::Control& control, Qt::FocusReason reason);

    forms::Form& form_;
    const QtHooks& hooks_;
    std::map<const forms::Control*, std::unique_ptr<ControlWidget>> widgets_;
    std::map<const QObject*, forms::Control*> controlOf_;
    std::map<const forms::Control*, std::size_t> letters_;
    std::map<const forms::Control*, const forms::Control*> fields_;
    std::map<forms::Control*, forms::Changes> dirty_;
    forms::Changes formDirty_;
    std::vector<QEventLoop*> loops_;
    std::exception_ptr failure_;
    std::pair<forms::Twips, forms::Twips> place_;  ///< the model's, as last drawn or told
    float scale_ = 0.08f;                          ///< pixels to the twip
    float growth_ = 1;
    forms::Twips edge_ = 0;  ///< added at the right, where the controls reach the frame
    int quiet_ = 0;
    bool isFlushPosted_ = false;
    bool hasWaitCursor_ = false;
};

}  // namespace qt_face
