#include "desk/geometry/transform.h"

#include "tests/geometry/expect_near.h"

namespace geometry {
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

}  // namespace
}  // namespace geometry
