#include "desk/shapes/measure.h"

#include "desk/geometry/measure.h"
#include "tests/drawing/plain_drawing.h"

#include <string>
#include <vector>

namespace shapes {
namespace {

using namespace drawing;

/// A measure of the first entity of model space.
double measured(Measure what, const std::string& words, const std::vector<std::string>& rest = {}) {
    PlainDrawing plain;
    plain.entity(words);
    for (const std::string& more : rest) plain.entity(more);
    const auto drawing = plain.make();
    return measure(*drawing, modelEntities(*drawing).at(0), what);
}
double lengthOf(const std::string& words, const std::vector<std::string>& rest = {}) {
    return measured(Measure::Length, words, rest);
}
double areaOf(const std::string& words, const std::vector<std::string>& rest = {}) {
    return measured(Measure::Area, words, rest);
}

const std::string kSquare = "LWPOLYLINE 8 0 90 4 70 1 38 5 10 0 20 0 10 10 20 0 10 10 20 10 10 0 20 10";
const std::string kCircle = "CIRCLE 8 0 10 600000 20 2400000 40 3";
/// A stadium: a rectangle of 4 by 2 with two half circles.
const std::string kStadium = "LWPOLYLINE 8 0 90 4 70 1 10 0 20 0 10 4 20 0 42 1 10 4 20 2 10 0 20 2 42 1";

TEST(MeasureTest, Lengths) {
    EXPECT_DOUBLE_EQ(lengthOf("LINE 8 0 10 1 20 1 30 1 11 3 21 4 31 7"), 7);
    EXPECT_DOUBLE_EQ(lengthOf(kSquare), 40);
    EXPECT_NEAR(lengthOf(kStadium), 8 + 2 * kPi, 1e-12);
    // Open: the bulge of the last vertex has no stretch.
    EXPECT_DOUBLE_EQ(lengthOf("LWPOLYLINE 8 0 90 2 70 0 10 0 20 0 10 3 20 4 42 1"), 5);
    EXPECT_NEAR(measured(Measure::Circumference, kCircle), 6 * kPi, 1e-12);
}

TEST(MeasureTest, PolylinesWithVertices) {
    const std::vector<std::string> vertices{"VERTEX 8 0 10 0 20 0 30 0", "VERTEX 8 0 10 3 20 0 30 0",
                                            "VERTEX 8 0 10 3 20 4 30 0", "SEQEND 8 0"};
    EXPECT_DOUBLE_EQ(lengthOf("POLYLINE 8 0 66 1 70 1", vertices), 12);
    EXPECT_DOUBLE_EQ(lengthOf("POLYLINE 8 0 66 1 70 0", vertices), 7);
    EXPECT_DOUBLE_EQ(areaOf("POLYLINE 8 0 66 1 70 0", vertices), 6);
    // The frame of a fitted spline isn't part of it.
    EXPECT_DOUBLE_EQ(
        lengthOf("POLYLINE 8 0 66 1 70 4", {"VERTEX 8 0 10 0 20 9 70 16", "VERTEX 8 0 10 0 20 0 70 8",
                                            "VERTEX 8 0 10 3 20 4 70 8", "SEQEND 8 0"}),
        5);
    const std::vector<std::string> space{"VERTEX 8 0 10 0 20 0 30 0 70 32", "VERTEX 8 0 10 2 20 3 30 6 70 32",
                                         "SEQEND 8 0"};
    EXPECT_DOUBLE_EQ(lengthOf("POLYLINE 8 0 66 1 70 8", space), 7);
    EXPECT_EQ(errorOf([&] { areaOf("POLYLINE 8 0 66 1 70 8", space); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { lengthOf("POLYLINE 8 0 66 1 70 16 71 2 72 1", space); }), basic::kNoSuchMember);
}

TEST(MeasureTest, Areas) {
    EXPECT_DOUBLE_EQ(areaOf(kSquare), 100);
    EXPECT_NEAR(areaOf(kStadium), 8 + kPi, 1e-12);
    EXPECT_NEAR(areaOf(kCircle), 9 * kPi, 1e-9);
    // A clockwise arc of a mirrored polyline takes off what it bulges in.
    EXPECT_NEAR(areaOf("LWPOLYLINE 8 0 90 4 70 1 230 -1 10 0 20 0 42 -1 10 2 20 0 10 2 20 2 10 0 20 2"),
                4 - kPi / 2, 1e-12);
    // Closed by a straight line: half a disc.
    EXPECT_NEAR(areaOf("ARC 8 0 10 7 20 7 40 2 50 270 51 90"), 2 * kPi, 1e-12);
    EXPECT_NEAR(areaOf("ELLIPSE 8 0 10 1 20 1 11 3 21 4 40 0.5 41 0 42 6.283185307179586"), 12.5 * kPi,
                1e-10);
    EXPECT_DOUBLE_EQ(areaOf("LWPOLYLINE 8 0 90 3 70 0 10 0 20 0 10 4 20 0 10 4 20 3"), 6);
}

TEST(MeasureTest, Splines) {
    // A circle in four rational quadratic pieces is exact.
    const std::string w = " 41 0.70710678118654752 41 1";
    EXPECT_NEAR(
        areaOf("SPLINE 8 0 70 13 71 2 72 12 73 9 40 0 40 0 40 0 40 1 40 1 40 2 40 2 40 3 40 3 40 4 40 4 "
               "40 4 41 1" +
               w + w + w + w +
               " 10 2 20 0 10 2 20 2 10 0 20 2 10 -2 20 2 10 -2 20 0 10 -2 "
               "20 -2 10 0 20 -2 10 2 20 -2 10 2 20 0"),
        4 * kPi, 1e-9);
    // A parabola y = x (2 - x) as its control polygon, and fit points on a straight line.
    const std::string parabola =
        "SPLINE 8 0 71 2 10 0 20 0 10 1 20 2 10 2 20 0 40 0 40 0 40 0 40 1 40 1 40 1";
    EXPECT_NEAR(areaOf(parabola), 4.0 / 3, 1e-12);
    EXPECT_NEAR(areaOf("SPLINE 8 0 71 3 74 3 11 0 21 0 11 1 21 1 11 5 21 5"), 0, 1e-12);
    const char* bent = "SPLINE 8 0 71 3 10 0 20 0 30 0 10 1 20 0 30 0 10 1 20 1 30 0 10 0 20 1 30 1";
    EXPECT_EQ(errorOf([&] { areaOf(bent); }), kNotApplicable);
    EXPECT_EQ(errorOf([&] { lengthOf(parabola); }), basic::kNoSuchMember);
}

TEST(MeasureTest, Hatches) {
    const std::string head = "HATCH 8 0 10 0 20 0 30 2 210 0 220 0 230 1 2 SOLID 70 1 71 0 91 ";
    const std::string outer = " 92 3 72 0 73 1 93 4 10 0 20 0 10 10 20 0 10 10 20 10 10 0 20 10 97 0";
    const std::string island = " 92 2 72 1 73 1 93 2 10 4 20 5 42 1 10 6 20 5 42 1 97 0";
    const std::string core =
        " 92 2 72 0 73 1 93 4 10 4.8 20 4.8 10 5.2 20 4.8 10 5.2 20 5.2 10 4.8 20 5.2 97 0";
    const auto area = [&](int count, const std::string& loops, int style) {
        return areaOf(head + std::to_string(count) + loops + " 75 " + std::to_string(style) + " 76 1 98 0");
    };
    EXPECT_NEAR(area(1, outer, 0), 100, 1e-12);
    EXPECT_NEAR(area(3, outer + island + core, 0), 100 - kPi + 0.16, 1e-9);
    EXPECT_NEAR(area(3, outer + island + core, 1), 100 - kPi, 1e-9);
    EXPECT_NEAR(area(3, outer + island + core, 2), 100, 1e-9);
    // A hole that is listed before its outline and begins where that does.
    const std::string notch = " 92 2 72 0 73 1 93 4 10 0 20 0 10 2 20 0 10 2 20 2 10 0 20 2 97 0";
    EXPECT_NEAR(area(2, notch + outer, 1), 96, 1e-9);
    // Two holes that overlap by a quarter count by the even-odd rule, curves too.
    const std::string holes =
        " 92 2 72 0 73 1 93 4 10 1 20 1 10 3 20 1 10 3 20 3 10 1 20 3 97 0"
        " 92 2 72 0 73 1 93 4 10 2 20 2 10 4 20 2 10 4 20 4 10 2 20 4 97 0";
    EXPECT_NEAR(area(3, outer + holes, 0), 100 - 4 - 4 + 2, 1e-9);
    const std::string corner = " 92 2 72 1 73 1 93 2 10 9 20 0 42 1 10 11 20 0 42 1 97 0";
    EXPECT_NEAR(area(2, outer + corner, 0), 100 + kPi / 2, 1e-6);
    // Two outlines in one path of edges: a square, its last edge against the run, and a circle.
    EXPECT_NEAR(area(1,
                     " 92 1 93 5 72 1 10 0 20 0 11 4 21 0 72 1 10 4 20 0 11 4 21 4 72 1 10 4 20 4 11 0 21 4"
                     " 72 1 10 0 20 0 11 0 21 4 72 2 10 9 20 9 40 1 50 0 51 360 73 1 97 0",
                     0),
                16 + kPi, 1e-9);
    // Edges: a line against the run of the others, a clockwise arc, half an ellipse, a spline with and
    // without the count of fit points that stands behind it from R2010 on.
    const std::string half = " 92 1 93 2 72 1 10 2 20 0 11 -2 21 0 ";
    EXPECT_NEAR(area(1, half + "72 2 10 0 20 0 40 2 50 0 51 180 73 1 97 0", 0), 2 * kPi, 1e-9);
    EXPECT_NEAR(area(1, half + "72 2 10 0 20 0 40 2 50 180 51 360 73 0 97 0", 0), 2 * kPi, 1e-9);
    EXPECT_NEAR(area(1, half + "72 3 10 0 20 0 11 2 21 0 40 0.5 50 0 51 180 73 1 97 0", 0), kPi, 1e-9);
    const std::string spline =
        half + "72 4 94 2 73 0 74 0 95 6 96 3 40 0 40 0 40 0 40 1 40 1 40 1 10 -2 20 0 10 0 20 4 10 2 20 0";
    EXPECT_NEAR(area(1, spline + " 97 1 330 2F", 0), 16.0 / 3, 1e-9);
    EXPECT_NEAR(area(1, spline + " 97 0 97 0", 0), 16.0 / 3, 1e-9);
}

TEST(MeasureTest, WhatHasNone) {
    EXPECT_EQ(errorOf([&] { measured(Measure::Perimeter, kSquare); }), basic::kNoSuchMember);
    EXPECT_EQ(errorOf([&] { measured(Measure::Perimeter, "REGION 8 0"); }), kNotApplicable);
    const auto drawing = PlainDrawing().entity(kCircle).make();
    const EntityId id = modelEntities(*drawing).at(0);
    drawing->erase(id);
    EXPECT_EQ(errorOf([&] { measure(*drawing, id, Measure::Area); }), kObjectErased);
}

}  // namespace
}  // namespace shapes
