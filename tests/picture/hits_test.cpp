#include "desk/picture/hits.h"

#include "desk/picture/snap.h"
#include "drawn.h"

namespace picture {
namespace {

using drawing::PlainDrawing;

TEST(HitsTest, NearestFirstLinesBeforeFillsAndWindowsTakeTheWhole) {
    PlainDrawing plain;
    plain.entity("SOLID 8 0 10 0 20 0 11 10 21 0 12 0 22 10 13 10 23 10")
        .entity("LINE 8 0 10 0 20 5 11 20 21 5");
    plain.entity("CIRCLE 8 0 10 5 20 5 40 3").entity("LINE 8 OFF 10 0 20 5 11 20 21 5");
    const auto drawing = plain.make();
    const std::vector<EntityId> ids = modelEntities(*drawing);
    Picture picture(*drawing);
    HitFinder finder(picture);
    const auto at = [&](double x, double y) {
        std::vector<EntityId> found;
        for (const Hit& hit : finder.at(drawing->modelSpace(), plainProjection(), {x, y}, 1))
            found.push_back(hit.entity);
        return found;
    };
    EXPECT_EQ(at(8, 5.2), (std::vector<EntityId>{ids[2], ids[1], ids[0]}));
    EXPECT_EQ(at(12, 5.2), std::vector<EntityId>{ids[1]});
    EXPECT_EQ(at(1, 1), std::vector<EntityId>{ids[0]});
    const auto within = [&](const Frame& frame, bool crossing) {
        return finder.within(drawing->modelSpace(), plainProjection(), frame, crossing);
    };
    EXPECT_EQ(within({-1, -1, 12, 12}, false), (std::vector<EntityId>{ids[0], ids[2]}));
    EXPECT_EQ(within({-1, -1, 12, 12}, true), (std::vector<EntityId>{ids[0], ids[1], ids[2]}));
    // Amid the fill, inside of the circle's line.
    EXPECT_EQ(within({4, 6, 5, 7}, true), std::vector<EntityId>{ids[0]});
}

TEST(SnapTest, KindsBeforeDistanceAndTheShownOneHolds) {
    PlainDrawing plain;
    plain.block("B").inBlock("LINE 8 0 10 0 20 0 11 10 21 0").entity("INSERT 2 B 8 0 10 100 20 0 50 90");
    plain.entity("LINE 8 0 10 0 20 0 11 10 21 0").entity("LINE 8 0 10 4 20 -5 11 4 21 5");
    plain.entity("CIRCLE 8 0 10 50 20 0 40 10");
    const auto drawing = plain.make();
    Picture picture(*drawing);
    const auto expect = [&](const Point3& cursor, SnapKind kind, const Point3& at,
                            const std::optional<Point3>& base = {}, const std::optional<Snap>& held = {}) {
        const auto snap = findSnap(picture, drawing->modelSpace(), cursor, 1, base, held);
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
    EXPECT_EQ(findSnap(picture, drawing->modelSpace(), {4, 8, 0}, 1, {}, {}), std::nullopt);
    // Beyond the reach, but shown already.
    expect({11.3, 0, 0}, SnapKind::End, {10, 0, 0}, {}, Snap{SnapKind::End, {10, 0, 0}});
}

}  // namespace
}  // namespace picture
