#include "desk/window/work.h"

#include "desk/drawing/work_watch.h"
#include "desk/window/parts.h"
#include "desk/window/status_line.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <atomic>
#include <exception>
#include <memory>
#include <thread>

namespace window {

namespace {

constexpr int kShowBusyAfter = 200;  // ms
constexpr int kOfferCancelAfter = 1000;
constexpr int kBetweenShares = 100;

/// What worker and waiting thread tell each other.
struct Shared {
    std::atomic<double> share{-1};
    std::atomic<bool> isGivenUp{false};
    std::exception_ptr failure;
};

/// Ends a work that nobody waits for any more.
struct GivenUp {};

}  // namespace

bool workAside(BusyBar& bar, StatusLine& status, const QString& text, std::function<void()> function) {
    QEventLoop loop;
    const auto shared = std::make_shared<Shared>();
    auto* finished =
        new QObject;  // takes the worker's message on this thread, also when nobody waits any more
    bool done = false;
    QObject::connect(finished, &QObject::destroyed, &loop, [&] {
        done = true;
        loop.quit();
    });
    std::thread([function = std::move(function), shared, finished] {
        const drawing::WorkWatch watch([&](double share) {
            if (shared->isGivenUp) throw GivenUp();
            shared->share = share;
        });
        try {
            function();
        } catch (...) {
            shared->failure = std::current_exception();
        }
        finished->deleteLater();
    }).detach();

    bool busyShown = false;
    QTimer::singleShot(kShowBusyAfter, &loop, [&] {
        busyShown = true;
        QApplication::setOverrideCursor(Qt::BusyCursor);
        bar.setBusy(true);
    });
    QTimer showing;
    QObject::connect(&showing, &QTimer::timeout, &loop, [&] {
        showing.setInterval(kBetweenShares);
        bar.setBusy(true, shared->share);
        status.showWork(text, shared->share, true);
    });
    showing.start(kOfferCancelAfter);
    QObject::connect(&status, &StatusLine::cancelAsked, &loop, &QEventLoop::quit);
    loop.exec();
    shared->isGivenUp = true;
    if (busyShown) QApplication::restoreOverrideCursor();
    bar.setBusy(false);
    status.endWork();
    if (done && shared->failure) std::rethrow_exception(shared->failure);
    return done;
}

}  // namespace window
