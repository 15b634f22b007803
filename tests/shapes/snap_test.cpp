#include "desk/shapes/snap.h"

#include "tests/drawing/plain_drawing.h"

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

}  // namespace
}  // namespace shapes
