#include "desk/window/canvas.h"

#include "desk/window/canvas_view.h"
#include "desk/window/pick_cycle.h"
#include "tests/drawing/plain_drawing.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QWheelEvent>

namespace window {
namespace {

using drawing::EntityId;
using drawing::PlainDrawing;
using geometry::Point3;

/// A canvas of 800 x 400 pixels on a drawing, whose mouse is told places in drawing units.
class CanvasTest : public ::testing::Test {
  protected:
    CanvasTest() {
        PlainDrawing plain;
        plain.block("B").inBlock("CIRCLE 8 0 10 0 20 0 40 1");
        plain.entity("LINE 8 0 10 0 20 0 11 40 21 20")
            .entity("INSERT 2 B 8 0 10 10 20 10")
            .entity("INSERT 2 B 8 0 10 30 20 10");
        plain.entity("INSERT 2 B 8 0 10 30 20 10");
        drawing = plain.make();
        ids = modelEntities(*drawing);
        canvas.resize(800, 400);
        canvas.setDrawing(drawing.get());
        QObject::connect(&canvas, &Canvas::pointPicked, [this](const Point3& at) { points.push_back(at); });
        QObject::connect(&canvas, &Canvas::entityPicked,
                         [this](EntityId id, const Point3&) { picked.push_back(id); });
        QObject::connect(&canvas, &Canvas::finished, [this] { ++finished; });
        QObject::connect(&canvas, &Canvas::brokenOff, [this] { ++brokenOff; });
        QObject::connect(&canvas, &Canvas::cornerTakenBack, [this] { ++takenBack; });
    }

    /// The drawing's 40 x 20 units fill the canvas but for 3 % at each side.
    QPointF place(const Point3& at) const {
        const double scale = 400 * 0.94 / 20;
        return {400 + (at.x - 20) * scale, 200 - (at.y - 10) * scale};
    }
    void send(QEvent::Type type, const Point3& at, Qt::MouseButton button, Qt::KeyboardModifiers with = {}) {
        QMouseEvent event(type, place(at), canvas.mapToGlobal(place(at)), button,
                          type == QEvent::MouseButtonPress ? button : Qt::NoButton, with);
        QApplication::sendEvent(&canvas, &event);
    }
    void move(const Point3& at) { send(QEvent::MouseMove, at, Qt::NoButton); }
    void click(const Point3& at, Qt::KeyboardModifiers with = {}, Qt::MouseButton button = Qt::LeftButton) {
        move(at);
        send(QEvent::MouseButtonPress, at, button, with);
        send(QEvent::MouseButtonRelease, at, button, with);
    }
    void key(int code, const QString& text = {}) {
        QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier, text);
        QApplication::sendEvent(&canvas, &event);
    }
    void ask(Asking asking) {
        CanvasPrompt prompt;
        prompt.asking = asking;
        canvas.ask(prompt);
    }

    std::unique_ptr<drawing::Drawing> drawing;
    std::vector<EntityId> ids;
    Canvas canvas;
    std::vector<Point3> points;
    std::vector<EntityId> picked;
    int finished = 0;
    int brokenOff = 0;
    int takenBack = 0;
};

TEST_F(CanvasTest, AnEntityIsPickedAndTabAndSpaceGoThroughWhatLiesThere) {
    ask(Asking::Entity);
    click({31, 10, 0});
    key(Qt::Key_Tab);
    click({31, 10, 0});
    key(Qt::Key_Space, " ");
    click({31, 10, 0});
    click({20, 16, 0});
    EXPECT_EQ(picked, (std::vector<EntityId>{ids[3], ids[2], ids[3], drawing::kNoEntity}));
    EXPECT_EQ(finished, 0);
    // Over a single thing Space is Enter; while something is typed it belongs to that.
    move({9, 10, 0});
    key(Qt::Key_Space, " ");
    move({31, 10, 0});
    QSignalSpy typedKeys(&canvas, &Canvas::typedKey);
    canvas.setTyped("3");
    key(Qt::Key_Space, " ");
    EXPECT_EQ(typedKeys.count(), 1);
    canvas.setTyped({});
    click({9, 10, 0}, {}, Qt::RightButton);
    EXPECT_EQ(finished, 2);
    key(Qt::Key_Escape);
    EXPECT_EQ(brokenOff, 1);
}

TEST_F(CanvasTest, ClicksWindowsAndCrossingsSelectAndShiftTakesOut) {
    ask(Asking::Selection);
    click({9, 10, 0});
    EXPECT_EQ(canvas.selection(), std::vector<EntityId>{ids[1]});
    click({8, 14, 0});
    click({34, 6, 0});  // to the right: the whole
    EXPECT_EQ(canvas.selection(), (std::vector<EntityId>{ids[1], ids[2], ids[3]}));
    click({13, 13, 0}, Qt::ShiftModifier);
    click({10, 9, 0}, Qt::ShiftModifier);  // to the left: what it touches
    EXPECT_EQ(canvas.selection(), (std::vector<EntityId>{ids[2], ids[3]}));
    // Esc gives a rectangle up before the prompt.
    click({4, 18, 0});
    key(Qt::Key_Escape);
    EXPECT_EQ(brokenOff, 0);
    canvas.setPicking(false);
    click({9, 10, 0});
    EXPECT_EQ(canvas.selection().size(), 2u);
}

TEST_F(CanvasTest, PointsSnapAndKeepToTheAxesAndAPolygonGivesCornersBack) {
    CanvasPrompt prompt;
    prompt.asking = Asking::Point;
    prompt.base = Point3{5, 5, 0};
    canvas.ask(prompt);
    click({39.8, 19.9, 0});
    canvas.setOrtho(true);
    click({12, 6, 0});
    key(Qt::Key_F3);
    key(Qt::Key_F8);
    EXPECT_FALSE(canvas.snap());
    click({39.8, 19.9, 0});
    ASSERT_EQ(points.size(), 3u);
    drawing::expectNear(points[0], {40, 20, 0});
    drawing::expectNear(points[1], {12, 5, 0});
    drawing::expectNear(points[2], {39.8, 19.9, 0});
    prompt.isPolygon = true;
    canvas.ask(prompt);
    key(Qt::Key_Backspace);
    EXPECT_EQ(takenBack, 1);
}

TEST_F(CanvasTest, TheWheelKeepsWhatIsUnderTheCursorAndThePromptStands) {
    ask(Asking::Point);
    canvas.setSnap(false);
    const QPointF at = place({30, 5, 0});
    QWheelEvent wheel(at, at, {}, {0, 480}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&canvas, &wheel);
    drawing::expectNear(canvas.cursor(), {30, 5, 0});
    EXPECT_EQ(canvas.asking(), Asking::Point);
    EXPECT_EQ(canvas.inView({ids[1]}), 0u);
    canvas.zoomPrevious();
    EXPECT_EQ(canvas.inView({ids[1]}), 1u);
    canvas.zoomWindow();
    click({25, 5, 0});
    click({35, 15, 0});
    EXPECT_EQ(canvas.inView({ids[1]}), 0u);
    EXPECT_EQ(canvas.inView({ids[2]}), 1u);
    EXPECT_TRUE(points.empty());
}

TEST(CanvasViewTest, GlidesKeepToTheLineAndPreviousForgetsWhatIsShown) {
    CanvasView view;
    view.resize(100, 50);
    view.setLook({{0, 0, 0}, 1});
    view.remember();
    const CanvasView::Look close{{100, 0, 0}, 100};
    view.setLook(close);
    view.remember();
    const CanvasView::Look half = CanvasView::between({{0, 0, 0}, 1}, close, 0.5);
    EXPECT_NEAR(half.scale, 10, 1e-9);
    EXPECT_NEAR(half.center.x, 100 * (1 - 0.1) / (1 - 0.01), 1e-9);
    CanvasView::Look before;
    ASSERT_TRUE(view.previous(before));
    EXPECT_EQ(before.scale, 1);
    EXPECT_FALSE(view.previous(before));
}

}  // namespace
}  // namespace window
