#include "desk/window/run_watch.h"

#include "desk/shell/user_break.h"
#include "desk/window/parts.h"
#include "desk/window/status_line.h"
#include "faces/qt/input_events.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <utility>

namespace window {

namespace {

constexpr qint64 kShowBusyAfter = 200;  // ms
constexpr qint64 kOfferCancelAfter = 1000;
constexpr qint64 kBetweenLooks = 40;

}  // namespace

RunWatch::RunWatch(BusyBar& bar, StatusLine& status, QObject* parent)
    : QObject(parent), bar_(bar), status_(status), preparing_([this](double) { see(); }) {
    sinceTurn_.start();
    sinceSeen_.start();
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this, &RunWatch::turned);
    connect(&status_, &StatusLine::cancelAsked, this, [this] {
        if (inside_) givenUp_ = true;
    });
}

void RunWatch::reset() {
    givenUp_ = false;
    turned();
}

void RunWatch::turned() {
    if (inside_) return;
    sinceTurn_.restart();
    if (!busy_) return;
    busy_ = false;
    QApplication::restoreOverrideCursor();
    bar_.setBusy(false);
    status_.endWork();
    if (std::exchange(held_, false)) emit heldUp(false);
}

void RunWatch::breathe() {
    if (givenUp_) throw shell::UserBreak();
    if (inside_ || sinceSeen_.elapsed() < kBetweenLooks) return;
    sinceSeen_.restart();
    const qint64 elapsed = sinceTurn_.elapsed();
    if (elapsed > kShowBusyAfter) letSee(elapsed);
}

void RunWatch::showBusy() {
    if (std::exchange(busy_, true)) return;
    QApplication::setOverrideCursor(Qt::BusyCursor);
    bar_.setBusy(true);
}

/// The event loop stays away: only the signs of the work are painted.
void RunWatch::see() {
    if (inside_ || sinceSeen_.elapsed() < kBetweenLooks || sinceTurn_.elapsed() < kShowBusyAfter) return;
    sinceSeen_.restart();
    showBusy();
    bar_.repaint();
    if (sinceTurn_.elapsed() < kOfferCancelAfter) return;
    status_.showWork(tr("Working on the drawing"), -1, false);
    status_.repaint();
}

void RunWatch::letSee(qint64 elapsed) {
    inside_ = true;
    if (!std::exchange(held_, true)) emit heldUp(true);
    showBusy();
    if (elapsed > kOfferCancelAfter) {
        const double share = share_ ? share_() : -1;
        bar_.setBusy(true, share);
        status_.showWork(tr("Working on the drawing"), share, true);
    }
    qApp->installEventFilter(this);
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    qApp->removeEventFilter(this);
    inside_ = false;
}

bool RunWatch::eventFilter(QObject* watched, QEvent* event) {
    if (!qt_face::isInput(event->type()) && event->type() != QEvent::Close) return false;
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        givenUp_ = true;
        return true;
    }
    return watched != status_.cancelButton() && !(watched->isWindowType() && event->type() != QEvent::Close);
}

}  // namespace window
