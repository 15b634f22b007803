#include "desk/shapes/pick.h"
#include "tests/window/window_bench.h"

namespace window {
namespace {

using geometry::Point3;
using model::Answer;

class PrompterTest : public WindowTest {
  protected:
    CanvasPrompter& prompter() { return window_->prompter(); }
    void answer(const char* line) {
        whenAsked([this, line] { prompter().answer(line); });
    }
    void click(const Point3& point) { emit window_->canvas().pointPicked(point); }
};

TEST_F(PrompterTest, ClickedAndTypedAnswersMix) {
    whenAsked([this] { click({3, 4, 0}); });
    const model::PointPick first = prompter().getPoint(std::nullopt, "From:");
    EXPECT_EQ(first.point, (Point3{3, 4, 0}));
    answer("@1,1");
    EXPECT_EQ(prompter().getPoint(Point3{10, 10, 0}, "To:").point, (Point3{11, 11, 0}));
    answer("@2,0");
    EXPECT_EQ(prompter().getPoint(std::nullopt, "To:").point, (Point3{13, 11, 0}))
        << "counts from the last point";
    answer("45");
    EXPECT_NEAR(prompter().getAngle({}, "Angle:").radians, geometry::kPi / 4, 1e-12);
    whenAsked([this] { click({0, -1, 0}); });
    EXPECT_NEAR(prompter().getAngle({}, "Angle:").radians, geometry::kPi * 1.5, 1e-12);
    answer("");
    EXPECT_EQ(prompter().getPoint(std::nullopt, "More:").answer, Answer::Nothing);
    whenAsked([this] { emit window_->canvas().brokenOff(); });
    EXPECT_EQ(prompter().getPoint(std::nullopt, "More:").answer, Answer::BrokenOff);
}

TEST_F(PrompterTest, WhileACommandAsksTheMousePicksAndTheLineTakesText) {
    whenAsked([this] {
        Canvas& canvas = window_->canvas();
        for (const QPoint& corner : {QPoint(4, 4), QPoint(canvas.width() - 4, canvas.height() - 4)}) {
            QTest::mouseMove(&canvas, corner);
            QTest::mouseClick(&canvas, Qt::LeftButton, {}, corner);
        }
        EXPECT_GT(canvas.selection().size(), 100u);
        window_->commandLine().type("r");
        EXPECT_EQ(window_->commandLine().text(), "r");
        emit canvas.finished();
    });
    type("select");
    EXPECT_TRUE(window_->commandLine().historyText().endsWith(" selected"));
}

TEST_F(PrompterTest, AFenceTakesWhatItCrosses) {
    const auto crossed = shapes::selectWindow(drawing(), {2, 7, 0}, {2, 7.001, 0}, true);
    whenAsked([&] {
        prompter().answer("f");
        for (const Point3& corner : {Point3{2, 7, 0}, Point3{9, 9, 0}}) click(corner);
        emit window_->canvas().cornerTakenBack();
        prompter().answer("14,7");
        emit window_->canvas().finished();
        EXPECT_GT(window_->canvas().selection().size(), 5u);
        prompter().answer("f");
        emit window_->canvas().brokenOff();  // one level back: the selection goes on
        emit window_->canvas().finished();
    });
    const model::SelectionPick pick = prompter().selectEntities(drawing(), "");
    EXPECT_EQ(pick.answer, Answer::Given);
    for (const drawing::EntityId id : crossed)
        EXPECT_NE(std::find(pick.entities.begin(), pick.entities.end(), id), pick.entities.end());
}

TEST_F(PrompterTest, APolygonGivesUpItsLastCornerOnDemand) {
    whenAsked([this] {
        for (const Point3& corner : {Point3{0, 0, 0}, Point3{1, 0, 0}, Point3{9, 9, 0}}) click(corner);
        emit window_->canvas().cornerTakenBack();
        click({1, 1, 0});
        emit window_->canvas().finished();
    });
    const char* first = "Cliquer sur le premier point pour le contour polyclic : ";
    const char* next = "Cliquer sur le point suivant pour le contour polyclic : ";
    EXPECT_EQ(prompter().getPoint(std::nullopt, first).point, (Point3{0, 0, 0}));
    EXPECT_EQ(prompter().getPoint(std::nullopt, next).point, (Point3{1, 0, 0}));
    EXPECT_EQ(prompter().getPoint(std::nullopt, next).point, (Point3{1, 1, 0}));
    EXPECT_EQ(prompter().getPoint(std::nullopt, next).answer, Answer::Nothing);
}

TEST_F(PrompterTest, ASelectionGrowsByWindowTypedAndByHandleAndShrinksByR) {
    const auto inside = shapes::selectWindow(drawing(), {0, 0, 0}, {9, 9, 0}, false);
    ASSERT_GT(inside.size(), 2u);
    whenAsked([&] {
        prompter().answer("w");
        prompter().answer("0,0");
        click({9, 9, 0});
        EXPECT_EQ(window_->canvas().selection(), inside);
        prompter().answer("r");
        prompter().answer(QString("@%1").arg(drawing().handle(inside[0]), 0, 16));
        prompter().answer("nonsense");
        prompter().answer("");
    });
    const model::SelectionPick pick = prompter().selectEntities(drawing(), "");
    EXPECT_EQ(pick.entities.size(), inside.size() - 1);
    answer("esc");
    EXPECT_EQ(prompter().selectEntities(drawing(), "").answer, Answer::BrokenOff);
    whenAsked([&] {
        prompter().answer("p");
        prompter().answer("");
    });
    EXPECT_EQ(prompter().selectEntities(drawing(), "").entities, pick.entities) << "the previous one";
}

TEST_F(PrompterTest, LispAnswersAPromptButDoesNotAskAmidIt) {
    whenAsked([this] {
        window_->enterLine("(car 1)");
        window_->enterLine(
            "(vla-GetPoint (vla-get-Utility (vla-get-ActiveDocument (vlax-get-acad-object))))");
        window_->enterLine("(list 3 (+ 1 3))");
    });
    EXPECT_EQ(prompter().getPoint(std::nullopt, "Point:").point, (Point3{3, 4, 0}));
    EXPECT_TRUE(window_->commandLine().historyText().contains("A prompt is waiting already"));
}

TEST_F(PrompterTest, AMissedPickIsNoAnswer) {
    whenAsked([this] { emit window_->canvas().entityPicked(drawing::kNoEntity, {}); });
    EXPECT_EQ(prompter().getEntity(drawing(), "Pick:").answer, Answer::Missed);
    answer("@137");
    const model::EntityPick pick = prompter().getEntity(drawing(), "Pick:");
    EXPECT_EQ(drawing().handle(pick.entity), 0x137u);
}

}  // namespace
}  // namespace window
