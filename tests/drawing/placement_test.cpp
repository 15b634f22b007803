#include "desk/drawing/placement.h"

#include "tests/geometry/expect_near.h"

namespace drawing {
namespace {

using geometry::expectNear;

TEST(PlacementTest, ReferencesPlaceTheirBlock) {
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
