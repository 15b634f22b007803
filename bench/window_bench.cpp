// The canvas on 100,000 entities and 30,000 references: from opening to the first picture, and what a hand
// waits for afterwards. Each figure is processor time of the one thread that does it.

#include "bench/plan.h"
#include "desk/window/canvas.h"
#include "tests/fakes/temp_folder.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <benchmark/benchmark.h>
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

}  // namespace
