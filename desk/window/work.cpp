#include "desk/window/work.h"

#include "desk/window/parts.h"
#include "desk/window/status_line.h"

#include <QApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <exception>
#include <memory>
#include <thread>

namespace window {

namespace {

constexpr int kShowBusyAfter = 200;  // ms
constexpr int kOfferCancelAfter = 1000;

}  // namespace

bool workAside(BusyBar& bar, StatusLine& status, const QString& text, std::function<void()> function) {
    QEventLoop loop;
    auto failure = std::make_shared<std::exception_ptr>();
    auto* finished =
        new QObject;  // takes the worker's message on this thread, also when nobody waits any more
    const QPointer<QEventLoop> waiting(&loop);
    bool done = false;
    QObject::connect(finished, &QObject::destroyed, &loop, [&] {
        done = true;
        loop.quit();
    });
    std::thread([function = std::move(function), failure, finished] {
        try {
            function();
        } catch (...) {
            *failure = std::current_exception();
        }
        finished->deleteLater();
    }).detach();

    bool busyShown = false;
    QTimer::singleShot(kShowBusyAfter, &loop, [&] {
        busyShown = true;
        QApplication::setOverrideCursor(Qt::BusyCursor);
        bar.setBusy(true);
    });
    QTimer::singleShot(kOfferCancelAfter, &loop, [&] { status.showWork(text, -1, true); });
    QObject::connect(&status, &StatusLine::cancelAsked, &loop, &QEventLoop::quit);
    loop.exec();
    if (busyShown) QApplication::restoreOverrideCursor();
    bar.setBusy(false);
    status.endWork();
    if (done && *failure) std::rethrow_exception(*failure);
    return done;
}

}  // namespace window
