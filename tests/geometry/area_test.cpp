#include "desk/geometry/even_odd.h"
#include "desk/geometry/fill.h"
#include "desk/geometry/measure.h"
#include "tests/geometry/expect_near.h"

#include <string>

namespace geometry {
namespace {

/// A closed outline through corners.
Path outline(const std::vector<Point3>& corners) {
    Path path;
    for (std::size_t i = 0; i < corners.size(); ++i)
        path.push_back(LineCurve{corners[i], corners[(i + 1) % corners.size()]});
    return path;
}
Path box(double x, double y, double width, double height) {
    return outline({{x, y, 0}, {x + width, y, 0}, {x + width, y + height, 0}, {x, y + height, 0}});
}
Path disc(double x, double y, double radius) { return {ArcCurve{{x, y, 0}, {radius, 0, 0}, {0, radius, 0}}}; }

TEST(EvenOddTest, CountsWhatLiesInAnOddNumberOfLoops) {
    const Path star = outline({{0, 3, 0}, {4, 3, 0}, {0, 0, 0}, {2, 5, 0}, {4, 0, 0}});
    const std::pair<std::vector<Path>, double> rows[] = {
        {{}, 0},
        {{box(0, 0, 4, 3)}, 12},
        {{box(0, 0, 4, 3), box(1, 1, 1, 1)}, 11},
        {{box(0, 0, 4, 3), box(3, 1, 2, 1)}, 12},                      // one that sticks out
        {{box(0, 0, 4, 3), box(5, 7, 2, 2)}, 16},                      // side by side, at other heights
        {{outline({{0, 0, 0}, {4, 4, 0}, {4, 0, 0}, {0, 4, 0}})}, 8},  // a bow
        {{outline({{0, 0, 0}, {6, 0, 0}, {3, 4, 0}}), outline({{0, 4, 0}, {6, 4, 0}, {3, 0, 0}})}, 12},
        {{disc(0, 0, 2), disc(0.5, 0, 1)}, 3 * kPi},
    };
    for (const auto& [loops, area] : rows) {
        Effort effort;
        EXPECT_NEAR(evenOddArea(loops, effort), area, 1e-6) << loops.size();
    }
    Effort effort;
    EXPECT_LT(evenOddArea({star}, effort), pathArea(star)) << "its heart is covered twice";
}

TEST(FillTest, ContainsByTheRuleWhereverItIsPlaced) {
    const Fill frame{{box(0, 0, 10, 6), box(2, 2, 3, 2), disc(8, 3, 1)}};
    const std::pair<Point3, bool> rows[] = {{{1, 1, 0}, true},   {{3, 3, 0}, false},  {{8, 3.9, 0}, false},
                                            {{8, 4.1, 9}, true}, {{11, 3, 0}, false}, {{-1, 2, 0}, false},
                                            {{4, 4.5, 0}, true}};
    const Transform placed =
        Transform::translation({100, 0, 0}) * Transform::rotationZ(0.5) * Transform::scaling(-2, 1, 1);
    for (const auto& [point, inside] : rows) {
        EXPECT_EQ(frame.contains(point), inside) << point.x << "," << point.y;
        EXPECT_EQ(frame.contains(placed.apply(point), placed), inside) << point.x << "," << point.y;
    }
    EXPECT_FALSE(FlatLoop({LineCurve{{0, 0, 0}, {4, 0, 0}}}).contains({2, 0, 0}));
}

TEST(FlatLoopTest, HoldsAndCuts) {
    const Path whole = box(0, 0, 10, 6);
    struct Row {
        Path other;
        bool held, cut;
        const char* what;
    };
    const Row rows[] = {
        {box(2, 2, 3, 2), true, false, "inside"},
        {box(12, 0, 3, 3), false, false, "beside"},
        {outline({{12, 1, 0}, {12, 5, 0}, {10, 2, 0}}), false, false, "touching with a corner"},
        {box(-5, -5, 30, 30), false, false, "round about"},
        {box(8, 2, 6, 2), false, true, "half inside"},
        {box(-2, 2, 14, 1), false, true, "across"},
        {outline({{3, 3, 0}, {4, 3, 0}, {3.5, 40, 0}}), false, true, "a needle that comes out"},
        {{LineCurve{{1, 1, 0}, {2, 2, 0}}}, false, false, "no area"},
    };
    for (const Row& row : rows) {
        Effort effort;
        const FlatLoop loop(whole), other(row.other);
        EXPECT_EQ(loop.holds(other), row.held) << row.what;
        EXPECT_EQ(loop.cuts(other, effort), row.cut) << row.what;
        EXPECT_EQ(other.cuts(loop, effort), row.cut) << row.what;
    }
    EXPECT_TRUE(FlatLoop(whole).holds(FlatLoop(box(0, 0, 5, 6)))) << "three borders are shared";
    // Long thin ones that cross between the places that are looked at.
    Effort effort;
    const FlatLoop bar(box(0, 0, 1000, 0.1)), post(box(700.01, -500, 0.1, 1000));
    EXPECT_TRUE(bar.cuts(post, effort));
}

TEST(FlatLoopTest, MeetingBoxesAreFoundAndTheWorkIsBounded) {
    for (const bool turned : {false, true}) {
        std::vector<FlatLoop> loops;
        const double places[][2] = {{0, 0}, {1, 1}, {5, 0}, {6, 30}, {2, 2}};
        for (const auto& [x, y] : places)
            loops.emplace_back(turned ? box(y, x * 9, 2, 18) : box(x * 9, y, 18, 2));
        loops.emplace_back(Path{});
        Effort effort;
        std::string met;
        forEachMeeting(loops, effort, [&](std::size_t a, std::size_t b) {
            met += std::to_string(std::min(a, b)) + std::to_string(std::max(a, b)) + " ";
        });
        EXPECT_EQ(met, "01 04 14 ") << turned;
    }
    Effort little;
    little.spend(249'999'990);
    const std::vector<FlatLoop> many(20, FlatLoop(box(0, 0, 1, 1)));
    EXPECT_THROW(forEachMeeting(many, little, [](std::size_t, std::size_t) {}), TooMuchWork);
}

TEST(MeasureTest, LengthsAndAreasInSpace) {
    // A square on a slope of 3 in 4, far from the origin, run backwards.
    const Path slope = outline({{1e6, 0, 0}, {1e6, 10, 0}, {1e6 + 8, 10, 6}, {1e6 + 8, 0, 6}});
    EXPECT_NEAR(pathArea(slope), 100, 1e-7);
    EXPECT_NEAR(pathLength(slope), 40, 1e-9);
    expectNear(areaVector(slope), {60, 0, -80}, 1e-6);
    expectNear(areaVector({}), {});
    // A quarter of a circle, closed by its chord, and an ellipse, by Ramanujan's second formula.
    const Path quarter{ArcCurve{{7, 7, 2}, {2, 0, 0}, {0, 2, 0}, 0, kPi / 2}};
    expectNear(areaVector(quarter), {0, 0, kPi - 2}, 1e-9);
    EXPECT_NEAR(pathLength(quarter), kPi, 1e-12);
    const double h = 1.0 / 9;
    EXPECT_NEAR(curveLength(ArcCurve{{}, {4, 0, 0}, {0, 2, 0}, 2 * kPi, 0}),
                kPi * 6 * (1 + 3 * h / (10 + std::sqrt(4 - 3 * h))), 1e-6);
    EXPECT_NEAR(curveLength(ArcCurve{{}, {3, 0, 0}, {3, 1, 0}, 0, kPi}), 8.913693301, 1e-9)
        << "radii at a slant";
    // A parabola of one span: y = x^2 from 0 to 1.
    const SplineCurve parabola{2, {0, 0, 0, 1, 1, 1}, {{0, 0, 0}, {0.5, 0, 0}, {1, 1, 0}}, {}};
    EXPECT_NEAR(curveLength(parabola), std::sqrt(5) / 2 + std::asinh(2) / 4, 1e-10);
    EXPECT_NEAR(pathArea({parabola, LineCurve{{1, 1, 0}, {1, 0, 0}}}), 1.0 / 3, 1e-10);
}

TEST(MeasureTest, WhetherPointsLieInAPlane) {
    EXPECT_TRUE(isPlanar({{0, 0, 0}, {1, 0, 0}, {5, 5, 5}}));
    EXPECT_TRUE(isPlanar({{0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {7, 7, 7}})) << "in a line";
    EXPECT_TRUE(isPlanar({{0, 0, 1}, {10, 0, 1}, {10, 10, 11}, {0, 10, 11}, {5, 5, 6}}));
    EXPECT_TRUE(isPlanar({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 1e-6}}));
    EXPECT_FALSE(isPlanar({{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 1e-3}}));
    EXPECT_FALSE(isPlanar({{0, 0, 0}, {10, 0, 0}, {4, 4, 4}, {0, 10, 0}}));
}

}  // namespace
}  // namespace geometry
