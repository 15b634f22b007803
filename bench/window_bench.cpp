// The canvas on 100,000 entities and 30,000 references: from opening to the first picture, and what a hand
// waits for afterwards. Each figure is processor time of the one thread that does it.

#include "bench/hostile.h"
#include "bench/plan.h"
#include "desk/picture/picture.h"
#include "desk/window/canvas.h"
#include "tests/fakes/temp_folder.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <memory>

namespace {

QApplication& application() {
    static int argc = 1;
    static char name[] = "bench_window";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Never destroyed: at the program's exit the toolkit's own statics are gone before it.
    static auto* const application = new QApplication(argc, argv);
    return *application;
}

const std::string& planFile() {
    static const fakes::TempFolder folder;
    static const std::string path = folder.write("plan.dxf", bench::plan(100'000, 30'000));
    return path;
}

/// A canvas of 1600 x 1000 with its picture finished.
struct Shown {
    Shown() : drawing(drawing::Drawing::open(planFile())) {
        canvas.resize(1600, 1000);
        canvas.show();
        canvas.setDrawing(drawing.get());
        settle();
    }
    void settle() {
        canvas.finishPicture();
        canvas.repaint();
        QCoreApplication::processEvents();
    }
    void move(const QPointF& at) {
        QMouseEvent event(QEvent::MouseMove, at, at, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
    }
    std::unique_ptr<drawing::Drawing> drawing;
    window::Canvas canvas;
};

void openToFirstPicture(benchmark::State& state) {
    application();
    planFile();
    for (auto _ : state) {
        auto shown = std::make_unique<Shown>();
        state.PauseTiming();
        shown.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(openToFirstPicture)->Unit(benchmark::kMillisecond)->Iterations(3);

/// One notch of the wheel with the frame that follows at once.
void zoomStep(benchmark::State& state) {
    application();
    Shown shown;
    int step = 0;
    for (auto _ : state) {
        QWheelEvent wheel({800, 500}, {800, 500}, {}, {0, ++step % 8 < 4 ? 120 : -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&shown.canvas, &wheel);
        shown.canvas.repaint();
    }
}
BENCHMARK(zoomStep)->Unit(benchmark::kMillisecond);

/// The fine picture after it, in one go.
void finePicture(benchmark::State& state) {
    application();
    Shown shown;
    int step = 0;
    for (auto _ : state) {
        QWheelEvent wheel({800, 500}, {800, 500}, {}, {0, ++step % 8 < 4 ? 120 : -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&shown.canvas, &wheel);
        shown.settle();
    }
}
BENCHMARK(finePicture)->Unit(benchmark::kMillisecond);

/// A movement of the mouse with what it lights; `range` 1 asks for a point with snaps.
void hover(benchmark::State& state) {
    application();
    Shown shown;
    window::CanvasPrompt prompt;
    prompt.asking = state.range(0) == 1 ? window::Asking::Point : window::Asking::Entity;
    shown.canvas.ask(prompt);
    double x = 100;
    for (auto _ : state) {
        x = x > 1500 ? 100 : x + 7;
        shown.move({x, 500});
        shown.canvas.repaint();
    }
}
BENCHMARK(hover)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// All references of a block lit beside what stepped back.
void lightAll(benchmark::State& state) {
    application();
    Shown shown;
    window::CanvasMarks marks;
    shown.drawing->forEachEntity(shown.drawing->modelSpace(), [&](drawing::EntityId id) {
        if (shown.drawing->type(id) == "INSERT") marks.lit.push_back(id);
        return true;
    });
    for (auto _ : state) {
        shown.canvas.setMarks(marks);
        shown.canvas.repaint();
    }
}
BENCHMARK(lightAll)->Unit(benchmark::kMillisecond);

/// What the canvas does after an edit of one entity.
void followAnEdit(benchmark::State& state) {
    application();
    Shown shown;
    drawing::EntityId reference = drawing::kNoEntity;
    shown.drawing->forEachEntity(shown.drawing->modelSpace(), [&](drawing::EntityId id) {
        if (shown.drawing->type(id) == "INSERT") reference = id;
        return reference == drawing::kNoEntity;
    });
    double angle = 0;
    for (auto _ : state) {
        shown.drawing->setRotation(reference, angle += 0.1);
        shown.canvas.drawingChanged();
        shown.canvas.repaint();
    }
}
BENCHMARK(followAnEdit)->Unit(benchmark::kMillisecond);

double cpuMilliseconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// Drawings that ask for more than a screen can show: how long the window doesn't answer at worst (longest,
/// ms) while it draws them, zooms and follows the mouse. They were read and prepared aside.
void hostileDrawing(benchmark::State& state) {
    application();
    const auto kind = static_cast<bench::Hostile>(state.range(0));
    const fakes::TempFolder folder;
    const auto drawing = drawing::Drawing::open(folder.write("hostile.dxf", bench::hostile(kind)));
    double longest = 0;
    double hover = 0;
    double hoverAtFirst = 0;
    for (auto _ : state) {
        picture::prepare(*drawing);
        window::Canvas canvas;
        canvas.resize(1600, 1000);
        canvas.show();
        const auto timed = [&](double& worst, auto&& act) {
            const double begin = cpuMilliseconds();
            act();
            worst = std::max(worst, cpuMilliseconds() - begin);
        };
        const auto settle = [&](int milliseconds) {
            QElapsedTimer timer;
            timer.start();
            while (timer.elapsed() < milliseconds) timed(longest, [] { QCoreApplication::processEvents(); });
        };
        timed(longest, [&] { canvas.setDrawing(drawing.get()); });
        settle(2000);
        for (int step = 0; step < 4; ++step) {
            QWheelEvent wheel({800, 500}, {800, 500}, {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            timed(longest, [&] { QApplication::sendEvent(&canvas, &wheel); });
            settle(400);
        }
        window::CanvasPrompt prompt;
        prompt.asking = window::Asking::Entity;
        canvas.ask(prompt);
        for (int step = 0; step < 20; ++step) {
            const QPointF place(300 + step * 50, 500);
            QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            timed(step == 0 ? hoverAtFirst : hover, [&] {
                QApplication::sendEvent(&canvas, &move);
                canvas.repaint();
            });
        }
    }
    state.SetLabel(bench::hostileName(kind));
    state.counters["longest"] = longest;
    state.counters["hoverAtFirst"] = hoverAtFirst;
    state.counters["hover"] = hover;
}
BENCHMARK(hostileDrawing)
    ->DenseRange(0, static_cast<int>(bench::Hostile::kCount) - 1)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
