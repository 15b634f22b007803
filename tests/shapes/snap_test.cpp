#include "desk/shapes/snap.h"

#include "tests/drawing/plain_drawing.h"

#include <cmath>
#include <sstream>

namespace shapes {
namespace {

using namespace drawing;

TEST(SnapTest, KindsBeforeDistanceAndTheShownOneHolds) {
    PlainDrawing plain;
    plain.block("B").inBlock("LINE 8 0 10 0 20 0 11 10 21 0").entity("INSERT 2 B 8 0 10 100 20 0 50 90");
    plain.entity("LINE 8 0 10 0 20 0 11 10 21 0").entity("LINE 8 0 10 4 20 -5 11 4 21 5");
    plain.entity("CIRCLE 8 0 10 50 20 0 40 10").entity("XLINE 8 0 10 0 20 30 11 1 21 0");
    plain.entity("TEXT 8 0 10 200 20 0 11 210 21 5 40 2 1 Salon 72 2 73 2");
    // However many corners an outline has, each is an end.
    std::string zigzag = "LWPOLYLINE 8 0 90 40 70 0";
    for (int i = 0; i < 40; ++i)
        zigzag += " 10 " + std::to_string(300 + i * 10) + " 20 " + std::to_string(i % 2 * 10);
    const auto drawing = plain.entity(zigzag).make();
    const auto expect = [&](const Point3& cursor, SnapKind kind, const Point3& at,
                            const std::optional<Point3>& base = {}, const std::optional<Snap>& held = {}) {
        const auto snap = findSnap(*drawing, drawing->modelSpace(), cursor, 1, base, held);
        ASSERT_TRUE(snap) << cursor.x << "," << cursor.y;
        EXPECT_EQ(snap->kind, kind) << cursor.x << "," << cursor.y;
        drawing::expectNear(snap->at, at);
    };
    expect({9.5, 0.3, 0}, SnapKind::End, {10, 0, 0});
    expect({4.2, 0.3, 0}, SnapKind::Intersection, {4, 0, 0});
    expect({5.9, 0.2, 0}, SnapKind::Middle, {5, 0, 0});
    expect({7.5, 0.2, 0}, SnapKind::Nearest, {7.5, 0, 0});
    expect({7.5, 0.2, 0}, SnapKind::Perpendicular, {7, 0, 0}, Point3{7, 9, 0});
    expect({50.3, 0.2, 0}, SnapKind::Centre, {50, 0, 0});
    expect({59.8, 0.4, 0}, SnapKind::Quadrant, {60, 0, 0});
    expect({100.2, 0.1, 0}, SnapKind::End, {100, 0, 0});
    expect({100.1, 9.8, 0}, SnapKind::End, {100, 10, 0});
    expect({70, 30.4, 0}, SnapKind::Nearest, {70, 30, 0});
    expect({70, 30.4, 0}, SnapKind::Perpendicular, {70.2, 30, 0}, Point3{70.2, 0, 0});
    expect({210.3, 5.1, 0}, SnapKind::Insertion, {210, 5, 0});
    expect({510.2, 9.8, 0}, SnapKind::End, {510, 10, 0});
    EXPECT_EQ(findSnap(*drawing, drawing->modelSpace(), {4, 8, 0}, 1, {}, {}), std::nullopt);
    // Beyond the reach, but shown already.
    expect({11.3, 0, 0}, SnapKind::End, {10, 0, 0}, {}, Snap{SnapKind::End, {10, 0, 0}});
}

TEST(SnapTest, RoundOnesCrossEndAndHaveMiddles) {
    PlainDrawing plain;
    plain.entity("CIRCLE 8 0 10 0 20 0 40 5").entity("CIRCLE 8 0 10 6 20 0 40 5");
    plain.entity("LINE 8 0 10 -9 20 3 11 -1 21 3").entity("CIRCLE 8 0 10 0 20 0 40 1");
    plain.entity("ARC 8 0 10 100 20 0 40 10 50 0 51 90").entity("LINE 8 0 10 100 20 -20 11 100 21 20");
    plain.entity("ELLIPSE 8 0 10 200 20 0 11 10 21 0 40 0.5 41 0 42 6.283185307179586");
    plain.entity("SPLINE 8 0 71 3 11 300 21 0 11 310 21 5 11 320 21 0");
    plain.entity("LINE 8 0 10 400 20 0 11 410 21 0").entity("LINE 8 0 10 410 20 0 11 410 21 10");
    plain.entity("SOLID 8 0 10 500 20 0 11 510 21 0 12 500 22 10 13 510 23 10")
        .entity("POINT 8 0 10 520 20 3");
    const auto drawing = plain.make();
    const auto snap = [&](const Point3& cursor, const std::optional<Point3>& base = {},
                          const std::optional<Snap>& held = {}) -> std::string {
        const auto found = findSnap(*drawing, drawing->modelSpace(), cursor, 1, base, held);
        if (!found) return "none";
        const char* names[] = {"end",    "middle",   "crossing", "insertion",
                               "centre", "quadrant", "foot",     "near"};
        std::ostringstream told;
        const auto rounded = [](double value) { return std::round(value * 1000) / 1000 + 0.0; };
        told << names[static_cast<int>(found->kind)] << " " << rounded(found->at.x) << ","
             << rounded(found->at.y);
        return told.str();
    };
    EXPECT_EQ(snap({3.3, 4.2, 0}), "crossing 3,4") << "two circles";
    EXPECT_EQ(snap({2.8, -4.4, 0}), "crossing 3,-4");
    EXPECT_EQ(snap({-4.3, 3.2, 0}), "crossing -4,3") << "a line and a circle";
    EXPECT_EQ(snap({4.2, 3.1, 0}), "near 4.023,2.969") << "which the line doesn't reach";
    EXPECT_EQ(snap({-3.6, -3.6, 0}, Point3{-10, -10, 0}), "foot -3.536,-3.536");
    EXPECT_EQ(snap({109.8, 0.3, 0}), "end 110,0");
    EXPECT_EQ(snap({99.8, 10.3, 0}), "end 100,10");
    EXPECT_EQ(snap({107.2, 7.2, 0}), "middle 107.071,7.071");
    EXPECT_EQ(snap({90, 0, 0}), "none") << "the arc isn't there";
    EXPECT_EQ(snap({99.8, -10.2, 0}), "near 100,-10.2");
    EXPECT_EQ(snap({200.3, 5.2, 0}), "quadrant 200,5");
    EXPECT_EQ(snap({190.2, 0.3, 0}), "quadrant 190,0");
    EXPECT_EQ(snap({320.2, 0.1, 0}), "end 320,0");
    EXPECT_EQ(snap({310.1, 5.2, 0}).substr(0, 4), "near") << "a fit point is no end";
    EXPECT_EQ(snap({410.1, 0.1, 0}), "end 410,0") << "a corner is no crossing";
    EXPECT_EQ(snap({509.6, 9.8, 0}), "end 510,10");
    EXPECT_EQ(snap({520.3, 3.2, 0}), "end 520,3");
    // The shown one holds against one that is nearer, not against a better kind.
    const Snap middle{SnapKind::Middle, {405, 0, 0}};
    EXPECT_EQ(snap({406.4, 0, 0}, {}, middle), "middle 405,0");
    EXPECT_EQ(snap({406.6, 0, 0}, {}, middle), "near 406.6,0");
    EXPECT_EQ(snap({409.5, 0, 0}, {}, Snap{SnapKind::Nearest, {409.5, 0, 0}}), "end 410,0");
}

}  // namespace
}  // namespace shapes
