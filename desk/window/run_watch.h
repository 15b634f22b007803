#pragma once

#include "desk/drawing/work_watch.h"

#include <QElapsedTimer>
#include <QObject>
#include <functional>

namespace window {

class BusyBar;
class StatusLine;

/// Shows work that lets the event loop of the window wait: beyond 0.2 s by the busy cursor and bar, beyond 1
/// s by a text. A command's work on the drawing keeps the window alive besides, and can be given up.
class RunWatch : public QObject {
    Q_OBJECT

  public:
    RunWatch(BusyBar& bar, StatusLine& status, QObject* parent);

    /// To be called by the work, as often as it likes. Raises shell::UserBreak when the user has given up:
    /// from then on at each call, until `reset`.
    void breathe();
    /// How far the command's work has come, below 0 for not known; asked between two of its steps.
    void setShare(std::function<double()> share) { share_ = std::move(share); }
    /// A command begins or ends.
    void reset();
    /// Whether work goes on around what the event loop does now: the drawing is not to be read.
    bool isInside() const { return inside_; }

  signals:
    /// Between the two nothing but this class may draw or ask the drawing.
    void heldUp(bool on);

  protected:
    /// While the work runs, input goes nowhere but to the button and Esc.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void turned();
    void letSee(qint64 elapsed);
    void see();
    void showBusy();

    BusyBar& bar_;
    StatusLine& status_;
    drawing::WorkWatch preparing_;  ///< of pictures and picks, which nothing must come between
    std::function<double()> share_;
    QElapsedTimer sinceTurn_;
    QElapsedTimer sinceSeen_;
    bool busy_ = false;
    bool held_ = false;
    bool inside_ = false;
    bool givenUp_ = false;
};

}  // namespace window
