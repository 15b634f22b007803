#include "desk/drawing/transform.h"

#include "plain_drawing.h"

namespace drawing {
namespace {

TEST(TransformTest, ArbitraryAxesAreRightHandedAndKeepTheirNormal) {
    for (const Vector3& extrusion :
         {Vector3{0, 0, -1}, Vector3{1, 0, 0}, Vector3{0, 1, 0}, Vector3{0.01, 0.01, 5}, Vector3{1, 2, 3}}) {
        const Transform axes = objectToWorld(extrusion);
        EXPECT_NEAR(axes.determinant(), 1, 1e-12);
        expectNear(axes.zAxis, normalized(extrusion));
        expectNear(wcsToOcs(ocsToWcs({1, 2, 3}, extrusion), extrusion), {1, 2, 3});
    }
    // Looking from below mirrors X, which mirrored doors and texts rest upon.
    expectNear(ocsToWcs({1, 2, 3}, {0, 0, -1}), {-1, 2, -3});
    expectNear(objectToWorld({1, 0, 0}).xAxis, {0, 1, 0});
    // On either side of 1/64 another axis is taken for the cross product.
    expectNear(objectToWorld({1.0 / 65, 0, 1}).yAxis, {0, 1, 0});
    expectNear(objectToWorld({1.0 / 60, 0, 1}).xAxis, {0, 1, 0});
    expectNear(ocsToWcs({1, 2, 3}, {0, 0, 0}), {1, 2, 3});
}

TEST(TransformTest, ReferencesPlaceTheirBlock) {
    Placement placement{.insertion = {100, 50, 0}, .scale = {2, -1, 1}, .rotation = kPi / 2};
    const Transform transform = referenceTransform(placement, {10, 5, 0});
    expectNear(transform.apply({10, 5, 0}), {100, 50, 0});
    // One to the right: doubled, then turned upwards. One up: mirrored, then turned to the right.
    expectNear(transform.apply({11, 5, 0}), {100, 52, 0});
    expectNear(transform.apply({10, 6, 0}), {101, 50, 0});
    expectNear(transform.inverse().apply({101, 50, 0}), {10, 6, 0});

    // The spacing of an array turns but isn't scaled.
    placement.columnSpacing = 10;
    placement.rowSpacing = 4;
    expectNear(referenceTransform(placement, {}, 2, 1).apply({}), {96, 70, 0});

    const Placement below{.insertion = {-100, 50, 0}, .extrusion = {0, 0, -1}};
    expectNear(referenceTransform(below, {}).apply({1, 2, 0}), {99, 52, 0});
}

}  // namespace
}  // namespace drawing
