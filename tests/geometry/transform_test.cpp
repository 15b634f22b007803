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

TEST(TransformTest, ProductsAndInverses) {
    const Transform turn = Transform::rotationZ(kPi / 6);
    const Transform grown = Transform::scaling(2, -3, 0.5);
    const Transform both = Transform::translation({5, 6, 7}) * turn * grown;
    expectNear(both.apply({1, 1, 2}), {5 + 2 * std::cos(kPi / 6) + 1.5, 6 + 1 - 3 * std::cos(kPi / 6), 8});
    EXPECT_NEAR(both.determinant(), -3, 1e-12);
    expectNear(both.applyDirection({0, 0, 2}), {0, 0, 1});
    const Transform slanted = both * Transform{{1, 0, 0.25}, {0.5, 1, 0}, {0, 2, 1}, {1, 2, 3}};
    expectNear(slanted.inverse().apply(slanted.apply({3, -4, 5})), {3, -4, 5});
    expectNear(slanted.apply(slanted.inverse().apply({3, -4, 5})), {3, -4, 5});
    expectNear(Transform::scaling(1, 0, 1).inverse().apply({1, 2, 3}), {1, 2, 3});
}

}  // namespace
}  // namespace geometry
