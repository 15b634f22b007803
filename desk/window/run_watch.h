#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace window {

class BusyBar;
class StatusLine;

/// Keeps the window alive while a command works on the drawing without a turn of the event loop: beyond 0.2 s
/// the busy cursor and bar, beyond 1 s a text and a button that gives up.
class RunWatch : public QObject {
    Q_OBJECT

  public:
    RunWatch(BusyBar& bar, StatusLine& status, QObject* parent);

    /// To be called by the work, as often as it likes. Raises shell::UserBreak when the user has given up:
    /// from then on at each call, until `reset`.
    void breathe();
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

    BusyBar& bar_;
    StatusLine& status_;
    QElapsedTimer sinceTurn_;
    QElapsedTimer sinceSeen_;
    bool busy_ = false;
    bool inside_ = false;
    bool givenUp_ = false;
};

}  // namespace window
