#include "desk/geometry/curve.h"

#include "desk/geometry/measure.h"
#include "desk/geometry/spline.h"
#include "tests/geometry/expect_near.h"

namespace geometry {
namespace {

ArcCurve circle(const Point3& center, double radius, double start = 0, double end = 2 * kPi) {
    return {center, {radius, 0, 0}, {0, radius, 0}, start, end};
}

/// A quarter of the unit circle as a rational spline.
SplineCurve quarter() {
    return {2, {0, 0, 0, 1, 1, 1}, {{1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, {1, std::sqrt(0.5), 1}};
}

TEST(CurveTest, BulgeRunsFromStartToEndOnItsSide) {
    const Point3 start{0, 0, 7};
    const Point3 end{10, 0, 7};
    for (double bulge : {1.0, -1.0, 0.2, -3.5, 1e-4}) {
        const Curve curve = bulgeCurve(start, end, bulge);
        expectNear(startPoint(curve), start, 1e-8);
        expectNear(endPoint(curve), end, 1e-8);
        // Halfway the arc stands off the chord by half the chord times the bulge, to the right when positive.
        const auto& arc = std::get<ArcCurve>(curve);
        expectNear(arc.at((arc.start + arc.end) / 2), {5, -5 * bulge, 7}, 1e-8);
    }
    EXPECT_TRUE(std::holds_alternative<LineCurve>(bulgeCurve(start, end, 0)));
    EXPECT_TRUE(std::holds_alternative<LineCurve>(bulgeCurve(start, start, 1)));
}

TEST(CurveTest, BoundsOfArcsReachTheirExtremes) {
    Box box;
    addBounds(circle({10, 20, 0}, 5, kPi / 4, 3 * kPi / 4), box);
    EXPECT_NEAR(box.high.y, 25, 1e-12);
    EXPECT_NEAR(box.low.y, 20 + 5 * std::sqrt(0.5), 1e-12);
    EXPECT_NEAR(box.low.x, 10 - 5 * std::sqrt(0.5), 1e-12);
    // A slanted ellipse: extent of x is the length of both x parts together.
    Box slanted;
    addBounds(ArcCurve{{}, {3, 1, 0}, {-1, 2, 0}}, slanted);
    EXPECT_NEAR(slanted.high.x, std::hypot(3, 1), 1e-12);
    EXPECT_NEAR(slanted.low.y, -std::hypot(1, 2), 1e-12);
}

TEST(CurveTest, DistanceToArcsAndSplines) {
    const Curve half = circle({0, 0, 0}, 5, 0, kPi);
    EXPECT_NEAR(distanceXY(half, {0, 3, 99}), 2, 1e-12);
    EXPECT_NEAR(distanceXY(half, {0, 8, 0}), 3, 1e-12);
    // Below the missing half the ends are nearest.
    EXPECT_NEAR(distanceXY(half, {5, -2, 0}), 2, 1e-12);
    // An ellipse, which has no closed form: points on its normal at a known place.
    const ArcCurve ellipse{{}, {4, 0, 0}, {0, 2, 0}};
    const Vector3 normal = normalized({2 * std::cos(1), 4 * std::sin(1), 0});
    EXPECT_NEAR(distanceXY(Curve{ellipse}, ellipse.at(1) + normal * 0.5), 0.5, 1e-7);
    EXPECT_NEAR(distanceXY(Curve{quarter()}, {2, 2, 0}), std::sqrt(8) - 1, 1e-7);
    EXPECT_NEAR(distanceXY(LineCurve{{0, 0, 0}, {10, 0, 5}}, {12, 0, 0}), 2, 1e-12);
}

TEST(CurveTest, RectanglesTouchedByCurves) {
    const Rectangle box({10, 6, 0}, {0, 0, 0});
    // Its box overlaps the rectangle, itself passes the corner.
    EXPECT_FALSE(touches(LineCurve{{9, 10, 0}, {14, 4, 0}}, box));
    // Ends in front of it, begins behind it, runs along its side and beside it.
    EXPECT_FALSE(touches(LineCurve{{5, 12, 0}, {5, 6.5, 0}}, box));
    EXPECT_FALSE(touches(LineCurve{{5, -0.5, 0}, {5, -3, 0}}, box));
    EXPECT_TRUE(touches(LineCurve{{-5, 6, 0}, {20, 6, 0}}, box));
    EXPECT_FALSE(touches(LineCurve{{-5, 6.1, 0}, {20, 6.1, 0}}, box));
    EXPECT_TRUE(touches(circle({5, 9, 0}, 3.5), box));
    EXPECT_FALSE(touches(circle({5, 9, 0}, 2.5), box));
    // Round about the rectangle, and an arc whose lowest point is missing.
    EXPECT_FALSE(touches(circle({5, 3, 0}, 20), box));
    EXPECT_FALSE(touches(circle({5, 9, 0}, 3.5, 0, kPi), box));
    EXPECT_TRUE(touches(Curve{quarter()}, Rectangle({0.6, 0.6, 0}, {0.8, 0.8, 0})));
    EXPECT_FALSE(touches(Curve{quarter()}, Rectangle({0, 0, 0}, {0.7, 0.7, 0})));
}

TEST(CurveTest, ReversedCurvesRunBackOverTheSamePoints) {
    const SplineCurve uneven{
        2, {0, 0, 0, 1, 4, 4, 4}, {{0, 0, 0}, {1, 3, 0}, {4, 3, 1}, {6, 0, 0}}, {1, 2, 3, 1}};
    for (const Curve& curve : {Curve{uneven}, Curve{circle({1, 1, 0}, 2, 0.5, 3)}}) {
        const Curve back = reversed(curve);
        expectNear(startPoint(back), endPoint(curve));
        expectNear(endPoint(back), startPoint(curve));
        EXPECT_NEAR(curveLength(back), curveLength(curve), 1e-9);
    }
    expectNear(evaluate(uneven, 1.7).point, evaluate(std::get<SplineCurve>(reversed(uneven)), -1.7).point);
}

TEST(SplineTest, InterpolationMeetsPointsAndTangents) {
    const std::vector<Point3> points{{0, 0, 0}, {2, 3, 0}, {5, 1, 1}, {9, 4, 0}};
    const SplineCurve open = interpolate(points, {0, 2, 0}, {}, false);
    double chord = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 0) chord += distance(points[i - 1], points[i]);
        expectNear(evaluate(open, chord).point, points[i]);
    }
    expectNear(evaluate(open, 0).derivative, {0, 1, 0});
    // The second derivative doesn't jump at an inner point.
    const double inner = distance(points[0], points[1]);
    const auto slope = [&](double t) { return evaluate(open, t).derivative; };
    const double h = 1e-5;
    expectNear((slope(inner) - slope(inner - h)) / h, (slope(inner + h) - slope(inner)) / h, 1e-3);

    // Closed through the corners of a square: the same at each corner, and smooth where it closes.
    const SplineCurve ring = interpolate({{1, 0, 0}, {0, 1, 0}, {-1, 0, 0}, {0, -1, 0}}, {}, {}, true);
    expectNear(evaluate(ring, 0).derivative, evaluate(ring, 1e9).derivative);
    EXPECT_NEAR(evaluate(ring, 0).derivative.x, 0, 1e-12);
}

TEST(SplineTest, DamagedListsAreRepaired) {
    SplineCurve tooFewKnots{3, {0, 1}, {{0, 0, 0}, {1, 1, 0}, {2, 0, 0}, {3, 1, 0}, {4, 0, 0}}, {1, 2}};
    ASSERT_TRUE(repairSpline(tooFewKnots));
    EXPECT_EQ(tooFewKnots.knots, (std::vector<double>{0, 0, 0, 0, 1, 2, 2, 2, 2}));
    EXPECT_TRUE(tooFewKnots.weights.empty());
    expectNear(endPoint(tooFewKnots), {4, 0, 0});

    SplineCurve twoPoints{5, {}, {{0, 0, 0}, {3, 4, 0}}, {}};
    ASSERT_TRUE(repairSpline(twoPoints));
    EXPECT_NEAR(curveLength(twoPoints), 5, 1e-12);
    SplineCurve onePoint{3, {}, {{0, 0, 0}}, {}};
    EXPECT_FALSE(repairSpline(onePoint));
    SplineCurve infinite{1, {}, {{0, 0, 0}, {Box::kFar, 0, 0}}, {}};
    EXPECT_FALSE(repairSpline(infinite));
}

}  // namespace
}  // namespace geometry
